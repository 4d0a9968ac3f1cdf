#include "forms/control.h"

#include <gtest/gtest.h>

#include "forms/fault.h"
#include "tests/forms/form_rig.h"

namespace corvana::prova {

namespace {
using Diario = std::vector<std::string>;
}

TEST(Controllo, IsUsableWhileItAndAllThatItLiesInAreEnabledAndVisible) {
    FinestraProva f;
    EXPECT_TRUE(f.dentro.Utilizzabile());
    f.cornice.Visible = false;
    EXPECT_FALSE(f.dentro.Utilizzabile());
    f.cornice.Visible = true;
    f.cornice.Enabled = false;
    EXPECT_FALSE(f.dentro.Utilizzabile());
    f.cornice.Enabled = true;
    f.Enabled = false;
    EXPECT_FALSE(f.dentro.Utilizzabile());
    f.Enabled = true;
    f.dentro.Enabled = false;
    EXPECT_FALSE(f.dentro.Utilizzabile());
}

TEST(Controllo, AsksItsMirrorForTheFocus) {
    BancoFinestra b;
    b.finestra.bottone.SetFocus();
    b.finestra.casella.SetFocus();
    EXPECT_EQ(b.specchio.fuochi, (Diario{"bottone", "casella"}));
}

TEST(Controllo, TakesATextAsItsCaptionOrItsTextOrNotAtAll) {
    FinestraProva f;
    f.bottone.PonTesto("a");
    f.casella.PonTesto("b");
    f.PonTesto("c");
    f.figura.PonTesto("d");
    EXPECT_EQ(f.bottone.Caption(), "a");
    EXPECT_EQ(f.casella.Text(), "b");
    EXPECT_EQ(f.Caption(), "c");
}

TEST(Guasto, ReadsAsItsNumberALineBreakAndItsDescription) {
    EXPECT_EQ(TestoGuasto(Guasto(13, "Type mismatch")), "13\r\nType mismatch");
}

}  // namespace corvana::prova
