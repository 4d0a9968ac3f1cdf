#include <gtest/gtest.h>

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include "tests/desktop/stage.h"

namespace corvana::prova {
namespace {

TEST(Menu, TheBarAndItsMenusHoldTheEntriesInTheirOrder) {
    Palco palco;
    const auto barra = palco.scrivania.Davanti()->Finestra().menuBar()->actions();
    ASSERT_EQ(barra.size(), 2);
    EXPECT_EQ(barra[0]->text(), "&File");
    EXPECT_EQ(barra[1]->text(), "A&iuto");
    const auto voci = barra[0]->menu()->actions();
    ASSERT_EQ(voci.size(), 3);
    EXPECT_EQ(voci[0]->text(), "&Apri");
    EXPECT_TRUE(voci[1]->isSeparator());
    ASSERT_TRUE(voci[2]->menu());
    EXPECT_EQ(voci[2]->menu()->actions().size(), 1);
}

TEST(Menu, ChoosingAnEntryIsAClickAndLeavesTheCheckToTheLogic) {
    Palco palco;
    QAction& apri = TrovaVoce(palco.scrivania, "Apri");
    EXPECT_TRUE(apri.isChecked());
    apri.trigger();
    EXPECT_EQ(palco.Diario(), (Righe{"Apri click"}));
    EXPECT_TRUE(apri.isChecked());
    palco.NellaLogica([](FormDiProva& form) { form.Apri.Checked = false; });
    EXPECT_FALSE(apri.isChecked());
}

TEST(Menu, OpeningAMenuClicksItsHeader) {
    Palco palco;
    QMenu* altro = TrovaVoce(palco.scrivania, "Altro").menu();
    altro->popup({});
    ASSERT_TRUE(Aspetta([&] { return altro->isVisible(); }));
    altro->close();
    EXPECT_EQ(palco.Diario(), (Righe{"Altro click"}));
}

TEST(Menu, DisabledAndRenamedEntriesChangeAtOnce) {
    Palco palco;
    palco.NellaLogica([](FormDiProva& form) {
        form.File.Enabled = false;
        form.Uno.Caption = "&One";
        form.Apri.Visible = false;
    });
    EXPECT_FALSE(TrovaVoce(palco.scrivania, "File").isEnabled());
    EXPECT_EQ(TrovaVoce(palco.scrivania, "Uno").text(), "&One");
    EXPECT_FALSE(TrovaVoce(palco.scrivania, "Apri").isVisible());
}

TEST(Menu, AHeaderCanBeChecked) {
    Palco palco([](FormDiProva& form) { form.Altro.Checked = true; });
    EXPECT_TRUE(TrovaVoce(palco.scrivania, "Altro").isChecked());
}

TEST(Menu, AWindowWithoutEntriesHasNoBar) {
    Palco palco;
    palco.Ordina([](FormDiProva& form) { form.finestre.MostraModale(form.sopra); });
    AspettaFinestra(palco.scrivania, "FormSopra");
    EXPECT_FALSE(palco.scrivania.Davanti()->Finestra().menuBar()->isVisible());
    Clicca(palco.scrivania, "ok");
    AspettaFinestra(palco.scrivania, "FormDiProva");
}

}  // namespace
}  // namespace corvana::prova
