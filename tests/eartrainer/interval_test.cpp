// The drill of intervals: how a pair sounds, answers, what may be asked.
#include <gtest/gtest.h>

#include "tests/eartrainer/into_rig.h"

namespace corvana::prova {

namespace {

struct BancoIntervalli : BancoInto {
    BancoIntervalli() : BancoInto({PaginaInto::Intervalli}) {}
    void Chiedi(int semitoni) { Estrai(semitoni, 14); }
    /// From the "/" at the entry on: once is " / : ", twice " \ ", three times " : ".
    void Modo(double t, int volte) {
        for (int i = 0; i < volte; ++i)
            Clicca(t, "lblModo");
    }
    void Premuta(double da, double a, const std::string& nome) {
        Fa(da, Fatto::MouseDown, nome);
        Fa(a, Fatto::MouseUp, nome);
    }
    std::vector<int> Ammesse() const {
        std::vector<int> ammesse;
        for (int n = 0; n < 14; ++n)
            if (Fondo("Il" + std::to_string(n)) == Rgb(128, 255, 128)) ammesse.push_back(n);
        return ammesse;
    }
};

}  // namespace

TEST(Intervalli, OnEntryThirdsAndFifthAreAdmittedAndTheModeReadsASlashWithoutBlanks) {
    BancoIntervalli b;
    b.Vai(1);
    EXPECT_EQ(b.Ammesse(), (std::vector{3, 4, 7}));
    EXPECT_EQ(b.Consiglio("Il3"), "int ammesso");
    EXPECT_EQ(b.Consiglio("Il0"), "int escluso");
    EXPECT_EQ(b.Fondo("Il0"), Rgb(255, 0, 0));
    EXPECT_EQ(b.Testo("lblModo"), "/");
    EXPECT_EQ(b.Consiglio("lblModo"), "melodico");
    EXPECT_EQ(b.Passo(), "");
    EXPECT_EQ(b.Testo("lblFv"), "fisso");
    EXPECT_EQ(b.Testo("IntRoot"), "Do");
    EXPECT_EQ(b.Note(), Suonati{"0.0 36 0"});
}

TEST(Intervalli, TheModesGoRoundAndAfterARoundTheSlashHasItsBlanks) {
    BancoIntervalli b;
    Suonati modi;
    double t = 1;
    for (const char* nome : {"lblModo", "Label7", "lblModo", "lblModo"}) {
        b.Clicca(t, nome);
        b.Quando(t + 0.5, [&] { modi.push_back(b.Testo("lblModo") + b.Consiglio("lblModo")); });
        t += 1;
    }
    b.Vai(t);
    EXPECT_EQ(modi, (Suonati{" / : misto", " \\ melodico", " : armonico", " / melodico"}));
}

TEST(Intervalli, UpwardsEachNoteSounds7TenthsWithOneBetweenAnd3Behind) {
    BancoIntervalli b;
    b.Chiedi(7);
    b.Clicca(1, "CmdIntStart");
    b.Quando(2.75, [&] { EXPECT_EQ(b.Passo(), ""); });
    b.Vai(4);
    EXPECT_EQ(b.Note(1),
              (Suonati{"0.0 0 0", "0.0 0 0", "0.0 60 90", "0.7 60 0", "0.8 67 90", "1.5 67 0"}));
    EXPECT_EQ(b.Passo(), "intervallo?");
}

TEST(Intervalli, AfterTheFigureTheNextOneBeginsOnlyWhenItsSilenceIsOver) {
    BancoIntervalli b;
    for (const int semitoni : {3, 4})
        b.Chiedi(semitoni);
    b.Clicca(1, "CmdIntStart");
    b.Clicca(2, "LblSemi3");
    b.Vai(6);
    EXPECT_EQ(b.Note(2.6),
              (Suonati{"0.2 60 0", "0.2 63 0", "0.2 60 90", "0.9 60 0", "1.0 64 90", "1.7 64 0"}));
}

TEST(Intervalli, DownwardsTheUpperNoteComesFirst) {
    BancoIntervalli b;
    b.Chiedi(4);
    b.Modo(1, 2);
    b.Clicca(2, "CmdIntStart");
    b.Vai(5);
    EXPECT_EQ(b.Note(2),
              (Suonati{"0.0 0 0", "0.0 0 0", "0.0 64 90", "0.7 64 0", "0.8 60 90", "1.5 60 0"}));
}

TEST(Intervalli, MixedTheyFollowEachOtherAndThenSoundTogetherAndGoOn) {
    BancoIntervalli b;
    b.Chiedi(4);
    b.Modo(1, 1);
    b.Clicca(2, "CmdIntStart");
    b.Quando(4.85, [&] { EXPECT_EQ(b.Passo(), ""); });
    b.Quando(5, [&] { EXPECT_EQ(b.uscita.NoteAccese().size(), 2U); });
    b.Clicca(6, "CmdIntStart");
    b.Vai(7);
    EXPECT_EQ(b.Note(2), (Suonati{"0.0 0 0", "0.0 0 0", "0.0 60 90", "0.7 60 0", "0.8 64 90",
                                  "1.5 64 0", "2.2 60 90", "2.2 64 90", "4.0 60 0", "4.0 64 0"}));
}

TEST(Intervalli, HarmonicBothSoundAtOnceAndGoOnUntilTheNextPairOrStop) {
    BancoIntervalli b;
    for (const int semitoni : {4, 7})
        b.Chiedi(semitoni);
    b.Modo(1, 3);
    b.Clicca(2, "CmdIntStart");
    b.Clicca(3, "LblSemi4");
    b.Clicca(4, "CmdIntStart");
    b.Vai(5);
    EXPECT_EQ(b.Note(2), (Suonati{"0.0 0 0", "0.0 0 0", "0.0 60 90", "0.0 64 90", "1.0 60 0",
                                  "1.0 64 0", "1.0 60 90", "1.0 67 90", "2.0 60 0", "2.0 67 0"}));
}

TEST(Intervalli, AWrongAnswerStandsAndWithTheRightOneItIsHalf) {
    BancoIntervalli b;
    for (const int semitoni : {4, 3})
        b.Chiedi(semitoni);
    b.Clicca(1, "CmdIntStart");
    b.Clicca(3, "LblSemi5");
    b.Quando(3.5, [&] {
        EXPECT_EQ(b.Punti(), "0 1 0.00%");
        EXPECT_TRUE(b.Note(3).empty());
    });
    b.Clicca(4, "LblSemi4");
    b.Vai(7);
    EXPECT_EQ(b.Punti(), "1 1 50.00%");
    EXPECT_EQ(b.finestra.intervalli.IntSemitoni, 3);
}

TEST(Intervalli, WhatIsNotAdmittedIsDrawnAgain) {
    BancoIntervalli b;
    for (const int semitoni : {0, 1, 2, 5, 6, 8, 13, 7})
        b.Chiedi(semitoni);
    b.Clicca(1, "CmdIntStart");
    b.Vai(4);
    EXPECT_EQ(b.finestra.intervalli.IntSemitoni, 7);
    EXPECT_EQ(b.casuale.estratti, 8);
}

TEST(Intervalli, StartWithNothingAdmittedShowsStopAndRunsNothing) {
    BancoIntervalli b;
    for (const char* nome : {"Il3", "Il4", "Il7"})
        b.Clicca(1, nome);
    b.Clicca(2, "CmdIntStart");
    b.Quando(2.5, [&] {
        EXPECT_EQ(b.Testo("CmdIntStart"), "Stop");
        EXPECT_TRUE(b.finestra.menu.Esercizio.Enabled());
        EXPECT_FALSE(b.finestra.telaio.IntInCorso);
        EXPECT_TRUE(b.Note(1).empty());
    });
    b.Clicca(3, "LblSemi4");
    b.Clicca(3, "lblRipInt");
    b.Premuta(4, 6, "LblSemi4");
    b.Quando(7, [&] {
        EXPECT_EQ(b.Punti(), "0 0 0");
        EXPECT_EQ(b.Note(3.5).size(), 8U) << "the row still plays";
    });
    b.Clicca(8, "CmdIntStart");
    b.Vai(9);
    EXPECT_EQ(b.Testo("CmdIntStart"), "Start");
}

TEST(Intervalli, StartDisablesMenuAndExitAndStopGivesThemBack) {
    BancoIntervalli b;
    b.Chiedi(4);
    b.Clicca(1, "CmdIntStart");
    b.Quando(4, [&] {
        EXPECT_FALSE(b.finestra.menu.Esercizio.Enabled());
        EXPECT_FALSE(b.finestra.telaio.cmdEsci.Enabled());
        EXPECT_EQ(b.Fondo("CmdIntStart"), b.Fondo("lblStep"));
    });
    b.Clicca(5, "CmdIntStart");
    b.Vai(6);
    EXPECT_TRUE(b.finestra.menu.Esercizio.Enabled());
    EXPECT_TRUE(b.finestra.telaio.cmdEsci.Enabled());
    EXPECT_EQ(b.Fondo("CmdIntStart"), b.Fondo("Label6"));
}

TEST(Intervalli, OnlyADoubleClickOnTheFirstStripSwitchesThemAllAndReachesSize0) {
    BancoIntervalli b;
    b.Clicca(1, "Il0");
    b.Quando(1.5, [&] { EXPECT_EQ(b.Ammesse(), (std::vector{3, 4, 7})); });
    b.Fa(2, Fatto::DblClick, "Il0");
    b.Quando(2.5, [&] { EXPECT_EQ(b.Ammesse().size(), 14U); });
    b.Fa(3, Fatto::DblClick, "Il0");
    b.Quando(3.5, [&] { EXPECT_TRUE(b.Ammesse().empty()); });
    b.Fa(4, Fatto::DblClick, "Il5");
    b.Clicca(5, "Il13");
    b.Vai(6);
    EXPECT_EQ(b.Ammesse(), std::vector{13});
    EXPECT_EQ(b.Consiglio("Il13"), "int ammesso");
    EXPECT_EQ(b.Consiglio("Il12"), "int escluso");
}

TEST(Intervalli, WithSize0AdmittedBothNotesAreOneAnd0IsARightAnswer) {
    BancoIntervalli b;
    b.Fa(1, Fatto::DblClick, "Il0");
    for (const int semitoni : {0, 0, 5})
        b.Chiedi(semitoni);
    b.Modo(1, 3);
    b.Clicca(2, "CmdIntStart");
    b.Clicca(2.5, "lblIntSh");
    b.Quando(2.7, [&] { EXPECT_EQ(b.Fondo("LblSemi0"), Rgb(255, 255, 255)); });
    b.Clicca(3, "LblSemi0");
    b.Quando(3.5, [&] {
        EXPECT_EQ(b.Punti(), "1 0 100.00%");
        EXPECT_EQ(b.Note(3), (Suonati{"0.0 60 0", "0.0 60 0", "0.0 60 90", "0.0 60 90"}));
        EXPECT_EQ(b.Accesi(), std::vector{24});
    });
    b.Clicca(4, "LblSemi0");
    b.Vai(5);
    EXPECT_EQ(b.Fondo("LblSemi0"), b.Fondo("lblIntSh")) << "restored by the distance of the last";
    EXPECT_EQ(b.Note(4), (Suonati{"0.0 60 0", "0.0 60 0", "0.0 60 90", "0.0 65 90"}));
}

TEST(Intervalli, ANewEntryBringsTheThreeSizesBack) {
    BancoIntervalli b;
    b.Fa(1, Fatto::DblClick, "Il0");
    b.Clicca(2, "mnuNotA");
    b.Clicca(3, "mnuRint");
    b.Vai(4);
    EXPECT_EQ(b.Ammesse(), (std::vector{3, 4, 7}));
}

TEST(Intervalli, AStopThatWaitsBehindTheRightAnswerDoesNotKeepTheNextPairFromSounding) {
    BancoIntervalli b;
    for (const int semitoni : {4, 7})
        b.Chiedi(semitoni);
    b.Modo(0.5, 1);
    b.Clicca(1, "CmdIntStart");
    b.Insieme(6, {{Fatto::Click, "LblSemi4"}, {Fatto::Click, "CmdIntStart"}});
    b.Quando(10, [&] { EXPECT_EQ(b.uscita.NoteAccese().size(), 2U) << "they stay on"; });
    b.Clicca(11, "mnuNotA");
    b.Vai(12);
    EXPECT_EQ(b.Testo("CmdIntStart"), "Start");
    EXPECT_EQ(b.Punti(), "0 0 0");
    EXPECT_EQ(b.Note(6),
              (Suonati{"0.0 60 0", "0.0 64 0", "0.0 60 0", "0.0 64 0", "0.0 60 90", "0.7 60 0",
                       "0.8 67 90", "1.5 67 0", "2.2 60 90", "2.2 67 90", "5.0 60 0", "5.0 67 0"}))
        << "until another page ends them";
}

TEST(Intervalli, AClosingThatWaitsBehindTheStopKeepsTheNextPairFromSounding) {
    BancoIntervalli b;
    for (const int semitoni : {4, 7})
        b.Chiedi(semitoni);
    b.Modo(0.5, 1);
    b.Clicca(1, "CmdIntStart");
    b.Insieme(6, {{Fatto::Click, "LblSemi4"}, {Fatto::Click, "CmdIntStart"}, {Fatto::Chiudi, ""}});
    EXPECT_FALSE(b.Vai(12));
    EXPECT_EQ(b.Note(6), (Suonati{"0.0 60 0", "0.0 64 0", "0.0 60 0", "0.0 64 0"}));
    EXPECT_TRUE(b.uscita.NoteAccese().empty());
}

}  // namespace corvana::prova
