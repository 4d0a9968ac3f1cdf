// The drill of chords: questions, answers, what may be asked.
#include <gtest/gtest.h>

#include "tests/eartrainer/into_rig.h"

namespace corvana::prova {

namespace {

/// With the roots 10 to 20 chosen by 3.
struct BancoAccordi : BancoInto {
    BancoAccordi() : BancoInto({PaginaInto::Accordi}) {
        Tasto(1, 10);
        Tasto(2, 20);
    }
    void Chiedi(int tipo, int radice) {
        Estrai(tipo, 4);
        Estrai(radice - 10, 11);
    }
};

using Tasti = std::vector<int>;

}  // namespace

TEST(TipiAccordo, AreTheFourTriadsOnTheirRoot) {
    EXPECT_EQ(NoteAccordo(60, 0), (std::array<std::int16_t, 3>{60, 63, 67}));
    EXPECT_EQ(NoteAccordo(60, 1), (std::array<std::int16_t, 3>{60, 64, 67}));
    EXPECT_EQ(NoteAccordo(60, 2), (std::array<std::int16_t, 3>{60, 63, 66}));
    EXPECT_EQ(NoteAccordo(87, 3), (std::array<std::int16_t, 3>{87, 91, 95}));
    const BancoInto b;
    EXPECT_EQ(b.Testo("TipoAcc0"), "Min");
    EXPECT_EQ(b.Testo("TipoAcc1"), "Mag");
    EXPECT_EQ(b.Testo("TipoAcc2"), "Dim");
    EXPECT_EQ(b.Testo("TipoAcc3"), "Ecc");
}

TEST(Accordi, AChordSoundsAtOnceAndIsHeldUntilTheNextQuestion) {
    BancoAccordi b;
    b.Chiedi(1, 12);
    b.Chiedi(3, 20);
    b.Clicca(3, "ComdRacStart");
    b.Clicca(5, "TipoAcc1");
    b.Clicca(7, "ComdRacStart");
    b.Vai(8);
    EXPECT_EQ(b.Note(3),
              (Suonati{"0.0 48 90", "0.0 52 90", "0.0 55 90", "2.0 48 0", "2.0 52 0", "2.0 55 0",
                       "2.3 56 90", "2.3 60 90", "2.3 64 90", "4.0 56 0", "4.0 60 0", "4.0 64 0"}));
    EXPECT_EQ(b.Punti(), "1 0 100.00%");
}

TEST(Accordi, StartHidesTheExitAndTheResetAndStopBringsThemBackAfterItsSilence) {
    BancoAccordi b;
    b.Clicca(3, "ComdRacStart");
    b.Quando(4, [&] {
        EXPECT_EQ(b.Passo(), "accordo?");
        EXPECT_EQ(b.Testo("ComdRacStart"), "Stop");
        EXPECT_EQ(b.Fondo("ComdRacStart"), b.Fondo("lblStep"));
        EXPECT_FALSE(b.Visibile("cmdEsci"));
        EXPECT_FALSE(b.Visibile("cmdRes"));
        EXPECT_FALSE(b.finestra.menu.Esercizio.Enabled());
    });
    b.Clicca(5, "ComdRacStart");
    b.Quando(5.2, [&] { EXPECT_FALSE(b.Visibile("cmdRes")); });
    b.Vai(6);
    EXPECT_EQ(b.Passo(), "");
    EXPECT_EQ(b.Testo("ComdRacStart"), "Start");
    EXPECT_EQ(b.Fondo("ComdRacStart"), b.Fondo("Label6"));
    EXPECT_TRUE(b.Visibile("cmdEsci"));
    EXPECT_TRUE(b.Visibile("cmdRes"));
    EXPECT_TRUE(b.finestra.menu.Esercizio.Enabled());
    EXPECT_TRUE(b.uscita.NoteAccese().empty());
}

TEST(Accordi, AWrongTypeCountsAndTheChordSoundsOn) {
    BancoAccordi b;
    b.Chiedi(1, 12);
    b.Clicca(3, "ComdRacStart");
    b.Clicca(4, "TipoAcc0");
    b.Vai(5);
    EXPECT_EQ(b.Punti(), "0 1 0.00%");
    EXPECT_TRUE(b.Note(3.5).empty());
}

TEST(Accordi, ARepeatStrikesTheHeldNotesAgainWithoutLettingThemGo) {
    BancoAccordi b;
    b.Chiedi(1, 12);
    b.Clicca(3, "ComdRacStart");
    b.Clicca(4, "lblRipta");
    b.Vai(5);
    EXPECT_EQ(b.Note(4), (Suonati{"0.0 48 90", "0.0 52 90", "0.0 55 90"}));
}

TEST(Accordi, ShownTheyLightTheirKeysAndTheirTypeHiddenTheyDoNot) {
    BancoAccordi b;
    b.Chiedi(1, 12);
    b.Chiedi(0, 14);
    b.Clicca(3, "ComdRacStart");
    b.Quando(4, [&] {
        EXPECT_EQ(b.Accesi(), (Tasti{12, 16, 19}));
        EXPECT_EQ(b.Fondo("TipoAcc1"), Rgb(255, 255, 255));
    });
    b.Clicca(5, "lblVt");
    b.Quando(5.5, [&] {
        EXPECT_EQ(b.Testo("lblVt"), "nascondi");
        EXPECT_EQ(b.Consiglio("lblVt"), "tt nascondi");
        EXPECT_EQ(b.Accesi().size(), 3U) << "it takes effect at the next chord";
    });
    b.Clicca(6, "TipoAcc1");
    b.Quando(7, [&] {
        EXPECT_TRUE(b.Accesi().empty());
        EXPECT_EQ(b.Fondo("TipoAcc1"), Rgb(192, 255, 255));
        EXPECT_EQ(b.Fondo("TipoAcc0"), Rgb(192, 255, 255));
    });
    b.Clicca(8, "lblModoVt");
    b.Vai(9);
    EXPECT_EQ(b.Testo("lblVt"), "mostra");
    EXPECT_EQ(b.Consiglio("lblVt"), "tt mostra");
}

TEST(Accordi, HiddenTheStopStillClearsTheKeysOfTheChord) {
    BancoAccordi b;
    b.Chiedi(1, 12);
    b.Clicca(2.5, "lblVt");
    b.Clicca(3, "ComdRacStart");
    b.Fa(4, Fatto::MouseDown, "lb12");
    b.Clicca(5, "ComdRacStart");
    b.Vai(6);
    EXPECT_TRUE(b.Accesi().empty());
}

TEST(Accordi, TheNeutralBackgroundIsThatOfTheOctavesLabel) {
    BancoAccordi b;
    b.Chiedi(1, 12);
    b.Clicca(3, "ComdRacStart");
    b.Quando(4, [&] { b.finestra.intervalli.Label4[7].BackColor = Rgb(1, 2, 3); });
    b.Clicca(5, "ComdRacStart");
    b.Vai(6);
    EXPECT_EQ(b.Fondo("TipoAcc1"), Rgb(1, 2, 3));
}

TEST(Accordi, TypesThatAreExcludedAreDrawnAgainAtAnyTime) {
    BancoAccordi b;
    for (const char* nome : {"EsclTa0", "EsclTa2"})
        b.Clicca(2.5, nome);
    for (const int tipo : {0, 2, 3})
        b.Estrai(tipo, 4);
    b.Clicca(3, "ComdRacStart");
    b.Vai(4);
    EXPECT_EQ(b.into.AccTipo, 3);
    EXPECT_EQ(b.Fondo("EsclTa0"), Rgb(255, 0, 0));
    EXPECT_EQ(b.Consiglio("EsclTa0"), "acc escluso");
    EXPECT_EQ(b.Fondo("EsclTa1"), Rgb(128, 255, 128));
    EXPECT_EQ(b.Consiglio("EsclTa1"), "acc ammesso");
}

TEST(Accordi, ExcludingEveryTypeDuringARunLeavesTheChordAndNothingAnswersUntilStop) {
    BancoAccordi b;
    b.Chiedi(1, 12);
    b.Clicca(3, "ComdRacStart");
    for (int tipo = 0; tipo < 4; ++tipo)
        b.Clicca(4, "EsclTa" + std::to_string(tipo));
    for (const char* nome : {"TipoAcc1", "TipoAcc0", "lblRipta"})
        b.Clicca(5, nome);
    b.Quando(6, [&] {
        EXPECT_EQ(b.uscita.NoteAccese().size(), 3U);
        EXPECT_EQ(b.Punti(), "0 0 0");
        EXPECT_TRUE(b.Note(3.5).empty());
    });
    b.Clicca(7, "ComdRacStart");
    b.Vai(8);
    EXPECT_TRUE(b.uscita.NoteAccese().empty());
}

TEST(Accordi, StartWithNothingAdmittedClearsTheScoreAndHidesTheButtonsUntilTheSecondClick) {
    BancoAccordi b;
    b.Chiedi(1, 12);
    b.Clicca(3, "ComdRacStart");
    b.Clicca(4, "TipoAcc0");
    b.Clicca(5, "ComdRacStart");
    b.Quando(6, [&] {
        EXPECT_TRUE(b.Visibile("cmdEsci") && b.Visibile("cmdRes"));
        EXPECT_EQ(b.Punti(), "0 1 0.00%");
    });
    for (int tipo = 0; tipo < 4; ++tipo)
        b.Clicca(6.5, "EsclTa" + std::to_string(tipo));
    b.Clicca(7, "ComdRacStart");
    b.Quando(8, [&] {
        EXPECT_EQ(b.Testo("ComdRacStart"), "Stop");
        EXPECT_FALSE(b.Visibile("cmdEsci"));
        EXPECT_FALSE(b.Visibile("cmdRes"));
        EXPECT_EQ(b.Punti(), "0 0 0");
    });
    b.Clicca(9, "ComdRacStart");
    b.Quando(8.9, [&] { EXPECT_TRUE(b.Note(6).empty()); });
    b.Vai(10);
    EXPECT_EQ(b.Testo("ComdRacStart"), "Start");
    EXPECT_TRUE(b.Visibile("cmdEsci") && b.Visibile("cmdRes"));
}

TEST(Accordi, AnInstrumentChosenInARunTakesTheRangeAndNoChordOutsideOfTheKeysIsStruck) {
    BancoAccordi b;
    b.Chiedi(1, 12);
    b.Clicca(3, "ComdRacStart");
    b.Clicca(4, "mnuSs");
    b.Clicca(5, "TipoAcc1");
    b.Quando(6, [&] {
        EXPECT_TRUE(b.uscita.NoteAccese().empty());
        EXPECT_TRUE(b.Visibile("cmdEsci"));
    });
    b.Tasto(7, 3);
    b.Tasto(8, 3);
    b.Clicca(9, "ComdRacStart");
    b.Vai(10);
    EXPECT_EQ(b.Testo("ComdRacStart"), "Start");
    EXPECT_TRUE(b.finestra.menu.Esercizio.Enabled());
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

}  // namespace corvana::prova
