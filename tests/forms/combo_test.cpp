#include <gtest/gtest.h>

#include "forms/controls.h"
#include "forms/fault.h"
#include "tests/forms/form_rig.h"

namespace corvana::prova {

namespace {

using Diario = std::vector<std::string>;

}  // namespace

TEST(Combo, ReadsAsItsChosenRowAndAsNothingWhileNoneIsChosen) {
    FinestraProva f;
    EXPECT_EQ(f.combo.Text(), "");
    f.combo.ListIndex = 1;
    EXPECT_EQ(f.combo.Text(), "minore");
    f.combo.ListIndex = 4;
    EXPECT_EQ(f.combo.Text(), "");
    f.combo.Clear();
    EXPECT_EQ(f.combo.Text(), "");
}

TEST(Combo, ATextChoosesTheFirstRowThatReadsExactlySo) {
    FinestraProva f;
    f.combo.PonTesto("Minore");
    EXPECT_EQ(f.combo.ListIndex(), 2);
    f.combo.PonTesto("minore");
    EXPECT_EQ(f.combo.ListIndex(), 1);
}

TEST(Combo, AChoiceFromCodeFiresClickEachTimeTheSameRowToo) {
    FinestraProva f;
    f.combo.PonTesto("Maggiore");
    f.combo.PonTesto("Maggiore");
    f.combo.Seleziona(2);
    EXPECT_EQ(f.diario, (Diario{"chosen Maggiore", "chosen Maggiore", "chosen Minore"}));
}

TEST(Combo, ATextThatNoRowHasIsAFaultAndChangesNothing) {
    FinestraProva f;
    f.combo.PonTesto("Minore");
    f.diario.clear();
    for (const char* testo : {"MINORE", "Min", "", "Minore "}) {
        try {
            f.combo.PonTesto(testo);
            ADD_FAILURE() << "chosen: " << testo;
        } catch (const Guasto& guasto) {
            EXPECT_EQ(guasto.Numero(), guastoProprieta) << testo;
        }
    }
    EXPECT_EQ(f.combo.ListIndex(), 2);
    EXPECT_TRUE(f.diario.empty());
}

TEST(Combo, TheUsersChoiceIsTakenBeforeItsHandlerRunsAndTheFaceIsntTold) {
    BancoFinestra b;
    b.finestra.diario.clear();
    b.specchio.registra = true;
    b.Accoda(Fatto::Click, "combo", 2);
    b.Consegna();
    EXPECT_EQ(b.finestra.diario, (Diario{"chosen Minore"}));
    EXPECT_TRUE(b.specchio.cambi.empty());
}

TEST(Combo, ARowThatTheUserCantHaveChosenLeavesTheChoice) {
    BancoFinestra b;
    b.Accoda(Fatto::Click, "combo", 2);
    b.Accoda(Fatto::Click, "combo", 4);
    b.Accoda(Fatto::Click, "combo", -1);
    b.Consegna();
    EXPECT_EQ(b.finestra.combo.ListIndex(), 2);
}

TEST(Combo, IsAListOfItsOwnKind) {
    FinestraProva f;
    EXPECT_EQ(f.combo.tipo, Genere::Combo);
    EXPECT_EQ(f.lista.tipo, Genere::Lista);
}

}  // namespace corvana::prova
