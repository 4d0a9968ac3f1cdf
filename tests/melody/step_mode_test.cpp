// Which note comes under the step, and how it is rewritten.
#include "melody/step_mode.h"

#include <gtest/gtest.h>

#include "tests/melody/edited_voice.h"
#include "tests/melody/fault_number.h"

namespace corvana::prova {

namespace {

struct CasoPasso {
    std::int16_t indice, da, a, fine, avanti, indietro;
};

/// The voice after the change, and what the change says of itself.
struct Cambiata {
    TestiVoce testi;
    EsitoModifica esito;
};

Cambiata Cambia(VoceMelodia voce, long i, const NotaVoluta& voluta) {
    const EsitoModifica esito = ModificaNota(voce, i, voluta);
    return {TestiDellaVoce(voce), esito};
}

}  // namespace

TEST(PassoPasso, WalksInACircleOverTheRange) {
    for (const CasoPasso& c : {CasoPasso{2, 2, 5, 5, 3, 5},
                               {3, 2, 5, 5, 4, 2},
                               {5, 2, 5, 5, 2, 4},
                               {4, 2, 5, 5, 5, 3},
                               // Before the first step.
                               {1, 2, 5, 5, 2, 5},
                               {-1, 0, 5, 5, 0, 5},
                               // A range of one note.
                               {3, 3, 3, 3, 3, 3},
                               // Left behind by a range that was moved.
                               {0, 2, 5, 5, 1, 5},
                               {9, 2, 5, 5, 10, 8},
                               // The soprano's field and its box may differ.
                               {2, 2, 9, 5, 3, 5},
                               {9, 2, 9, 5, 2, 8},
                               // A first-note box of 0.
                               {-1, -1, 3, 3, 0, 3},
                               {-2, -1, 3, 3, -1, 3},
                               {0, -1, 3, 3, 1, -1}}) {
        const TrattoPasso tratto{c.da, c.a, c.fine};
        EXPECT_EQ(PassoAvanti(c.indice, tratto), c.avanti) << c.indice;
        EXPECT_EQ(PassoIndietro(c.indice, tratto), c.indietro) << c.indice;
    }
}

TEST(PassoPasso, BeyondTheLastIndexThatSixteenBitsHoldIsAnOverflow) {
    EXPECT_EQ(NumeroDelGuasto([] { PassoAvanti(32767, {0, 5, 5}); }), 6);
    EXPECT_EQ(PassoAvanti(32767, {0, 32767, 5}), 0);
    EXPECT_EQ(PassoAvanti(32766, {0, 5, 5}), 32767);
}

TEST(PassoPasso, TheRangeIsWhatItsBoxesShowCountedFromOne) {
    const TrattoPasso tratto = TrattoDaCaselle("3", "7");
    EXPECT_EQ(tratto.da, 2);
    EXPECT_EQ(tratto.a, 6);
    EXPECT_EQ(tratto.fine, 6);
    EXPECT_EQ(TrattoDaCaselle(" 1 ", "0").da, 0);
    EXPECT_EQ(TrattoDaCaselle("1", "0").a, -1);
}

TEST(PassoPasso, ABoxThatHoldsNoNumberOrOneTooLargeIsAFault) {
    for (const char* testo : {"", "x", "1;"})
        EXPECT_EQ(NumeroDelGuasto([&] { TrattoDaCaselle(testo, "1"); }), 13) << testo;
    EXPECT_EQ(NumeroDelGuasto([] { TrattoDaCaselle("1", "32768"); }), 6);
    EXPECT_EQ(NumeroDelGuasto([] { TrattoDaCaselle("-32768", "1"); }), 6);
    EXPECT_EQ(TrattoDaCaselle("1", "32767").a, 32766);
}

TEST(PassoPasso, BeginsBeforeItsRangeWhicheverWayItThenGoes) {
    const TrattoPasso tratto{4, 8, 8};
    EXPECT_EQ(PrimaDelTratto(tratto), 3);
    EXPECT_EQ(PassoAvanti(PrimaDelTratto(tratto), tratto), 4);
    EXPECT_EQ(PassoIndietro(PrimaDelTratto(tratto), tratto), 8);
}

TEST(PassoPasso, AStepOutOfTheVoiceIsReportedInFourLines) {
    EXPECT_EQ(AvvisoPasso(5, {2, 9, 9}),
              "From= 2\r\nTo= 9\r\nIndiceNotaPP= 5\r\nAbnormal condition !!!");
}

TEST(ModificaNota, WithNothingChangedChangesNothing) {
    const Cambiata c = Cambia(TreNote(), 1, {62, 0.5, true, "s", '.'});
    EXPECT_EQ(c.testi, TestiDellaVoce(TreNote()));
    EXPECT_FALSE(c.esito.cambiato);
    EXPECT_FALSE(c.esito.terzinaUsata);
    EXPECT_FALSE(c.esito.mostrata);
}

TEST(ModificaNota, WritesAPitchThatDiffers) {
    const Cambiata c = Cambia(TreNote(), 2, {72, 2, false, "t", '.'});
    EXPECT_EQ(c.testi, (TestiVoce{"60;62;72;", "1;0.5;2;", "n;s;t;"}));
    EXPECT_TRUE(c.esito.cambiato);
    EXPECT_EQ(c.esito.mostrata, 72);
}

TEST(ModificaNota, WritesAValueThatDiffersAndTheTripletTakesTwoThirdsOfIt) {
    Cambiata c = Cambia(TreNote(), 0, {60, 1.5, false, "n", ','});
    EXPECT_EQ(c.testi, (TestiVoce{"60;62;64;", "1,5;0.5;2;", "n;s;t;"}));
    EXPECT_FALSE(c.esito.terzinaUsata);
    EXPECT_FALSE(c.esito.mostrata);
    c = Cambia(TreNote(), 0, {60, 0.5, true, "n", '.'});
    EXPECT_EQ(c.testi[1], "0.333333333333333;0.5;2;");
    EXPECT_TRUE(c.esito.terzinaUsata && c.esito.cambiato);
}

TEST(ModificaNota, TheSameValueOtherwiseSpelledDoesntDiffer) {
    const Cambiata c = Cambia(VoceSpezzata("60;", "1,50;", "n;"), 0, {60, 1.5, true, "n", '.'});
    EXPECT_EQ(c.testi[1], "1,50;");
    EXPECT_FALSE(c.esito.cambiato);
}

TEST(ModificaNota, ARestsAttributeMakesTheNoteARest) {
    const Cambiata c = Cambia(TreNote(), 0, {60, 1, false, "p", '.'});
    EXPECT_EQ(c.testi, (TestiVoce{"00;62;64;", "1;0.5;2;", "p;s;t;"}));
    EXPECT_EQ(c.esito.mostrata, 0);
}

TEST(ModificaNota, ANewAttributeMakesANoteOfARestRightAfterTheStepTheOneOfOneCharacter) {
    const VoceMelodia pausa = VoceSpezzata("60;00;", "1;0.5;", "n;p;");
    Cambiata c = Cambia(pausa, 1, {0, 0.5, false, "n", '.'});
    EXPECT_EQ(c.testi, (TestiVoce{"60;0;", "1;0.5;", "n;n;"}));
    EXPECT_EQ(c.esito.mostrata, 0);
    c = Cambia(pausa, 1, {67, 0.5, false, "a", '.'});
    EXPECT_EQ(c.testi, (TestiVoce{"60;67;", "1;0.5;", "n;a;"}));
    EXPECT_EQ(c.esito.mostrata, 67);
}

TEST(ModificaNota, ARestThatStaysOneCanTakeAPitch) {
    const Cambiata c = Cambia(VoceSpezzata("00;", "1;", "p;"), 0, {64, 1, false, "p", '.'});
    EXPECT_EQ(c.testi, (TestiVoce{"64;", "1;", "p;"}));
    EXPECT_EQ(c.esito.mostrata, 64);
}

TEST(ModificaNota, ANoteThatIsntThereOrCantBeReadIsAFaultThatChangesNothing) {
    struct Caso {
        VoceMelodia voce;
        long i;
        int numero;
    };
    for (const Caso& caso : {Caso{TreNote(), -1, 9},
                             {TreNote(), 3, 13},
                             {TreNote(), 4, 9},
                             {VoceMelodia{}, 0, 9},
                             {VoceSpezzata("x;", "1;", "n;"), 0, 13},
                             {VoceSpezzata("60;", "x;", "n;"), 0, 13},
                             {VoceSpezzata("60;", "", "n;"), 0, 9}}) {
        VoceMelodia voce = caso.voce;
        EXPECT_EQ(NumeroDelGuasto([&] {
                      ModificaNota(voce, caso.i, {72, 4, false, "a", '.'});
                  }),
                  caso.numero);
        EXPECT_EQ(TestiDellaVoce(voce), TestiDellaVoce(caso.voce));
    }
}

TEST(CancellataSotto, TheStepGoesToTheNoteBeforeAndTheRangeFollowsItDown) {
    struct Caso {
        std::int16_t indice, prima, nuovo, nuovaPrima;
        bool cambiata, carica;
    };
    for (const Caso& caso : {Caso{5, 0, 4, 0, false, true},
                             {5, 4, 4, 4, false, true},
                             {5, 5, 4, 4, true, true},
                             {1, 1, 0, 0, true, true},
                             {1, 0, 0, 0, false, true},
                             {0, 0, 0, 0, true, false},
                             {0, 3, 0, 0, true, false}}) {
        const DopoCancellata dopo = CancellataSotto(caso.indice, caso.prima);
        EXPECT_EQ(dopo.indice, caso.nuovo);
        EXPECT_EQ(dopo.primaNota, caso.nuovaPrima);
        EXPECT_EQ(dopo.primaCambiata, caso.cambiata) << caso.indice << ' ' << caso.prima;
        EXPECT_EQ(dopo.carica, caso.carica);
    }
}

}  // namespace corvana::prova
