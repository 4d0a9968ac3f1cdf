// The bookmark of the whole melody, as it follows the soprano.
#include <gtest/gtest.h>

#include "tests/composer/composer_rig.h"

namespace corvana::prova {

namespace {

struct BancoRiferimenti : BancoComposer {
    BancoRiferimenti() { Voce(soprano, "60;62;64;", "1"); }
    Righe Aggiornate(Righe righe) {
        finestra.riferimenti.lstBookMark.List = std::move(righe);
        finestra.riferimenti.AggiornaRiferimentoIntero();
        return finestra.riferimenti.lstBookMark.List();
    }
};

}  // namespace

TEST(RiferimentoIntero, AnEmptyListStaysEmpty) {
    BancoRiferimenti b;
    EXPECT_TRUE(b.Aggiornate({}).empty());
}

TEST(RiferimentoIntero, ShowsTheSopranosCountAndTheLanguagesLabelWithoutABlankBeforeIt) {
    BancoRiferimenti b;
    EXPECT_EQ(b.Aggiornate({"1 ÷ 9 ÷Tutta", "2 ÷ 3 ÷ a"}), (Righe{"1 ÷ 3 ÷Tutta", "2 ÷ 3 ÷ a"}));
    b.globali.testi.TxtMelodiaIntera = "All";
    EXPECT_EQ(b.Aggiornate({"1 ÷ 3 ÷Tutta", "2 ÷ 3 ÷ a"}), (Righe{"1 ÷ 3 ÷All", "2 ÷ 3 ÷ a"}));
}

TEST(RiferimentoIntero, TakesTheFirstRowForItWhateverItHolds) {
    BancoRiferimenti b;
    EXPECT_EQ(b.Aggiornate({"2 ÷ 3 ÷ a", "1 ÷ 3 ÷Tutta"}), (Righe{"1 ÷ 3 ÷Tutta", "1 ÷ 3 ÷Tutta"}));
}

TEST(RiferimentoIntero, FollowsTheSopranoAndNoOtherVoice) {
    BancoRiferimenti b;
    b.finestra.riferimenti.lstBookMark.List = Righe{"1 ÷ 3 ÷Tutta", "2 ÷ 3 ÷ a"};
    b.Voce(1, "48;50;52;53;55;", "1");
    EXPECT_EQ(b.finestra.riferimenti.lstBookMark.List->front(), "1 ÷ 3 ÷Tutta");
    b.Voce(soprano, "60;62;64;65;", "1");
    EXPECT_EQ(b.finestra.riferimenti.lstBookMark.List->front(), "1 ÷ 4 ÷Tutta");
    EXPECT_FALSE(b.finestra.stato.lblModificato.Visible());
}

}  // namespace corvana::prova
