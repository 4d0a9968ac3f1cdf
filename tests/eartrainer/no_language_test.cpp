// Without a language file all prompts, messages and captions are empty, and are compared all the
// same: who decides by them decides by their value.
#include <gtest/gtest.h>

#include "tests/eartrainer/into_rig.h"

namespace corvana::prova {

namespace {

using P = PaginaInto;

struct BancoMuto : BancoInto {
    explicit BancoMuto(P pagina) : BancoInto({pagina}) { globali.testi = {}; }
};

}  // namespace

TEST(SenzaLingua, PitchIsTrainedWithAnEmptyPromptAndTheWindowDoesNotClose) {
    BancoMuto b(P::Intonazione);
    b.Estrai(4, 13);
    b.Estrai(0, 13);
    b.Clicca(1, "IntoStart");
    b.Tasto(5, 28);
    b.Clicca(9, "IntoStart");
    b.Chiudi(10);
    EXPECT_TRUE(b.Vai(11)) << "an empty prompt is that of the reference";
    EXPECT_EQ(b.Punti(), "1 0 100.00%");
    EXPECT_EQ(b.Passo(), "");
    EXPECT_EQ(b.Consiglio("lblSolotb"), "  ");
}

TEST(SenzaLingua, ARefusedKeyIsToldInAnEmptyBox) {
    BancoMuto b(P::Accordi);
    b.Tasto(1, 59);
    b.Vai(2);
    EXPECT_EQ(b.riquadri.messaggi, std::vector<std::string>{""});
    EXPECT_TRUE(b.Segnati().empty());
}

TEST(SenzaLingua, ChordsCannotStartSinceTheirPromptIsThatOfTheSecondLimit) {
    BancoMuto b(P::Accordi);
    b.Tasto(1, 10);
    b.Tasto(2, 20);
    b.Clicca(3, "ComdRacStart");
    b.Vai(4);
    EXPECT_TRUE(b.finestra.accordi.AccPronto);
    EXPECT_EQ(b.Testo("ComdRacStart"), "Start");
    EXPECT_TRUE(b.Note(1).empty());
}

TEST(SenzaLingua, TheRootOfIntervalsIsVariableForeverOnceItIs) {
    BancoMuto b(P::Intervalli);
    b.Clicca(1, "lblFv");
    b.Clicca(2, "lblFv");
    b.Estrai(4, 14);
    b.Clicca(3, "CmdIntStart");
    b.Vai(7);
    EXPECT_TRUE(b.Visibile("frmRifVar"));
    EXPECT_FALSE(b.Visibile("SelIntRoot"));
    EXPECT_EQ(b.Note(3).size(), 6U);
}

TEST(SenzaLingua, OnlyWhiteKeysAreEverAskedForAndTheirPageCloses) {
    BancoMuto b(P::Tasti);
    b.Clicca(1, "lblSceltaTasti");
    b.Estrai(1, 7);
    b.Clicca(2, "cmdRicTasto");
    b.Quando(3, [&] { EXPECT_EQ(b.Passo(), "Re") << "the name alone, with nothing around it"; });
    b.Tasto(4, 2);
    b.Clicca(5, "cmdRicTasto");
    b.Chiudi(6);
    EXPECT_FALSE(b.Vai(7)) << "its prompt is a name, not empty";
}

TEST(SenzaLingua, TonalityIsTrainedAsEver) {
    BancoMuto b(P::Tonalita);
    b.Estrai(2, 24);
    b.Clicca(1, "cmdT");
    b.Clicca(8, "T2");
    b.Vai(15);
    EXPECT_EQ(b.Punti(), "1 0 100.00%");
}

}  // namespace corvana::prova
