// The drill of pitch: questions, answers, repeats, what is shown of them.
#include <gtest/gtest.h>

#include "tests/eartrainer/into_rig.h"

namespace corvana::prova {

namespace {

struct BancoIntonazione : BancoInto {
    BancoIntonazione() : BancoInto({PaginaInto::Intonazione}) {}
    /// The next question asks for that key of the range that is stored at first.
    void Chiedi(int tasto) { Estrai(tasto - 24, 13); }
    /// The reference is off, and any key is asked.
    void SenzaRiferimento() { PonStato("24;36;69;1;True;0"); }
};

}  // namespace

TEST(Intonazione, AtTheFirstRunTheRangeIs24To36TheReference69AndOnlyWhiteKeysAreAsked) {
    BancoIntonazione b;
    b.Vai(1);
    EXPECT_EQ(b.into.IntoBasso, 24);
    EXPECT_EQ(b.into.IntoAlto, 36);
    EXPECT_EQ(b.finestra.telaio.NotaRif, 69);
    EXPECT_EQ(b.into.ConRiferimento, 1);
    EXPECT_TRUE(b.into.SoloBianchi);
    EXPECT_EQ(b.Segnati(), (std::vector{24, 33, 36}));
    EXPECT_EQ(b.Passo(), "premi start");
    EXPECT_TRUE(b.Visibile("IntoStart"));
    EXPECT_FALSE(b.Visibile("frInto"));
    EXPECT_FALSE(b.Visibile("cmdReimposta"));
    EXPECT_EQ(b.specchio.fuochi.back(), "IntoStart");
    EXPECT_EQ(b.Programmi(), std::vector{0});
}

TEST(Intonazione, WithTheReferenceItSounds12TenthsThenOneOfSilenceThenTheQuestion9) {
    BancoIntonazione b;
    b.Chiedi(28);
    b.Clicca(1, "IntoStart");
    b.Vai(5);
    EXPECT_EQ(b.Note(1), (Suonati{"0.0 69 90", "1.2 69 0", "1.3 36 0", "1.3 64 100", "2.2 64 0"}));
    EXPECT_EQ(b.Passo(), "ascolta");
    EXPECT_TRUE(b.Accesi().empty());
}

TEST(Intonazione, WithoutItTheQuestionIsOneHeldNote) {
    BancoIntonazione b;
    b.SenzaRiferimento();
    b.Chiedi(25);
    b.Chiedi(26);
    b.Clicca(1, "IntoStart");
    b.Tasto(2, 25);
    b.Clicca(3, "IntoStart");
    b.Vai(4);
    EXPECT_EQ(b.Note(1), (Suonati{"0.0 36 0", "0.0 61 100", "1.0 61 0", "1.0 62 100", "2.0 62 0"}));
}

TEST(Intonazione, BlackKeysAreDrawnAgainWhileOnlyWhiteOnesAreAsked) {
    BancoIntonazione b;
    for (const int nero : {25, 27, 30, 32, 34})
        b.Chiedi(nero);
    b.Chiedi(36);
    b.Clicca(1, "IntoStart");
    b.Vai(5);
    EXPECT_EQ(b.into.IntoNota, 36);
    EXPECT_EQ(b.casuale.estratti, 6);
}

TEST(Intonazione, AWrongKeyThreeTimesThenTheRightOneGives25Percent) {
    BancoIntonazione b;
    b.SenzaRiferimento();
    b.Chiedi(30);
    b.Clicca(1, "IntoStart");
    std::vector<Colore> ko;
    for (int i = 0; i < 3; ++i) {
        b.Tasto(2 + i, 29);
        b.Quando(2.5 + i, [&] { ko.push_back(b.Fondo("lblKo")); });
    }
    b.Quando(4.6, [&] {
        EXPECT_EQ(b.Punti(), "0 3 0.00%");
        EXPECT_TRUE(b.Note(1.5).empty()) << "nothing sounds and the question stands";
    });
    b.Tasto(5, 30);
    b.Vai(6);
    EXPECT_EQ(b.Punti(), "1 3 25.00%");
    EXPECT_EQ(ko, (std::vector{Rgb(241, 107, 201), Rgb(247, 202, 233), Rgb(241, 107, 201)}));
    EXPECT_EQ(b.Fondo("lblOk"), Rgb(192, 247, 0));
}

TEST(Intonazione, TwoRightAnswersInARowCanBeToldApart) {
    BancoIntonazione b;
    b.SenzaRiferimento();
    b.Clicca(1, "IntoStart");
    b.Tasto(2, 24);
    b.Tasto(3, 24);
    b.Vai(4);
    EXPECT_EQ(b.Fondo("lblOk"), Rgb(0, 191, 11));
}

TEST(Intonazione, InTheReadyStateWithNoNoteEverAskedAClickDoesNothing) {
    BancoIntonazione b;
    b.Tasto(1, 0);
    b.Tasto(2, 30);
    b.Vai(3);
    EXPECT_EQ(b.Punti(), "0 0 0");
}

TEST(Intonazione, InTheReadyStateAClickIsJudgedIfAnyNoteWasEverAskedAlsoByTheMainWindow) {
    BancoIntonazione b;
    b.Quando(0.5, [&] { b.suono.SuonaNota(20); });
    b.Tasto(1, 30);
    b.Quando(1.5, [&] { EXPECT_EQ(b.Punti(), "0 1 0.00%"); });
    b.Tasto(2, 0);
    b.Quando(5, [&] { EXPECT_EQ(b.Punti(), "1 1 50.00%"); });
    b.Clicca(6, "IntoStart");
    b.Vai(7);
    EXPECT_EQ(b.Punti(), "0 0 0");
    EXPECT_EQ(b.Note(2).front(), "0.0 69 90") << "a right one asks the next question";
}

TEST(Intonazione, RepeatWithTheReferenceSoundsItTooAndCountsNothing) {
    BancoIntonazione b;
    b.Chiedi(28);
    b.Clicca(1, "IntoStart");
    b.Clicca(5, "lblRipInto");
    b.Vai(9);
    EXPECT_EQ(b.Note(5), (Suonati{"0.0 69 90", "1.2 69 0", "1.3 64 0", "1.3 64 100", "2.2 64 0"}));
    EXPECT_EQ(b.Punti(), "0 0 0");
    EXPECT_FALSE(b.into.RipetiNota);
}

TEST(Intonazione, RepeatWithoutTheReferenceOnlyStrikesTheNoteAgain) {
    BancoIntonazione b;
    b.SenzaRiferimento();
    b.Chiedi(28);
    b.Clicca(1, "IntoStart");
    b.Clicca(5, "lblRipInto");
    b.Vai(9);
    EXPECT_EQ(b.Note(5), (Suonati{"0.0 64 0", "0.0 64 100"}));
}

TEST(Intonazione, RepeatAtRestDoesNothing) {
    BancoIntonazione b;
    b.Clicca(1, "IntoStart");
    b.Clicca(5, "IntoStart");
    b.Clicca(6, "lblRipInto");
    b.Vai(9);
    EXPECT_TRUE(b.Note(5.5).empty());
    EXPECT_FALSE(b.into.RipetiNota);
}

TEST(Intonazione, StopSilencesClearsTheKeysAndIgnoresClicksUntilTheNextStart) {
    BancoIntonazione b;
    b.SenzaRiferimento();
    b.Clicca(1, "IntoStart");
    b.Clicca(1.2, "lblIntoSh");
    b.Clicca(1.4, "lblRipInto");
    b.Quando(1.5, [&] {
        EXPECT_EQ(b.Accesi(), std::vector{24});
        EXPECT_EQ(b.Testo("IntoStart"), "Stop");
        EXPECT_EQ(b.Fondo("IntoStart"), b.Fondo("lblStep"));
        EXPECT_FALSE(b.finestra.menu.Esercizio.Enabled());
        EXPECT_TRUE(b.Visibile("frInto"));
        EXPECT_FALSE(b.Visibile("cmdReimposta"));
    });
    b.Clicca(2, "IntoStart");
    b.Tasto(3, 24);
    b.Vai(4);
    EXPECT_EQ(b.Testo("IntoStart"), "Start");
    EXPECT_EQ(b.Fondo("IntoStart"), b.Fondo("Label6"));
    EXPECT_TRUE(b.finestra.menu.Esercizio.Enabled());
    EXPECT_TRUE(b.Visibile("cmdReimposta"));
    EXPECT_EQ(b.Passo(), "fermato");
    EXPECT_EQ(b.Punti(), "0 0 0");
    EXPECT_TRUE(b.Accesi().empty());
    EXPECT_TRUE(b.uscita.NoteAccese().empty());
}

TEST(Intonazione, StopBringsTheResetUpAndStartTakesItAway) {
    BancoInto b{PaginaInto::Intonazione};
    std::vector<bool> visto;
    for (const double t : {1.0, 5.0, 9.0}) {
        b.Clicca(t, "IntoStart");
        b.Quando(t + 3, [&] { visto.push_back(b.Visibile("cmdReimposta")); });
    }
    b.Vai(13);
    EXPECT_EQ(visto, (std::vector{false, true, false}));
}

TEST(Intonazione, WithTheNamesShownTheKeysLightAndTheNamesFollow) {
    BancoIntonazione b;
    b.Chiedi(28);
    b.Clicca(1, "IntoStart");
    b.Clicca(5, "lblIntoSh");
    b.Quando(5.5, [&] {
        EXPECT_EQ(b.Testo("lblIntoSh"), "");
        EXPECT_TRUE(b.Visibile("lblIntoNN"));
        EXPECT_EQ(b.Testo("lblIntoNN"), "Mi");
    });
    b.Chiedi(24);
    b.Tasto(6, 28);
    b.Quando(6.5, [&] {
        EXPECT_EQ(b.Accesi(), std::vector{33});
        EXPECT_EQ(b.Testo("lblIntoNN"), "La");
    });
    b.Quando(7.25, [&] { EXPECT_TRUE(b.Accesi().empty()); });
    b.Quando(7.5, [&] {
        EXPECT_EQ(b.Accesi(), std::vector{24});
        EXPECT_EQ(b.Testo("lblIntoNN"), "Do");
    });
    b.Quando(8.5, [&] { EXPECT_TRUE(b.Accesi().empty()); });
    b.Clicca(9, "lblIntoSh");
    b.Vai(10);
    EXPECT_EQ(b.Testo("lblIntoSh"), "?");
    EXPECT_FALSE(b.Visibile("lblIntoNN"));
}

TEST(Intonazione, WithoutTheReferenceAndWithTheNamesShownEachQuestionLightsAFurtherKeyUntilStop) {
    BancoIntonazione b;
    b.SenzaRiferimento();
    for (const int tasto : {24, 30, 36})
        b.Chiedi(tasto);
    b.Clicca(1, "IntoStart");
    b.Clicca(1.5, "lblIntoSh");
    b.Tasto(2, 24);
    b.Tasto(3, 30);
    b.Quando(4, [&] { EXPECT_EQ(b.Accesi(), (std::vector{30, 36})); });
    b.Clicca(5, "IntoStart");
    b.Vai(6);
    EXPECT_TRUE(b.Accesi().empty());
}

TEST(Intonazione, TheReferenceIsSwitchedByItsLabelAndByTheWordBesideIt) {
    BancoIntonazione b;
    b.Quando(0.5, [&] {
        EXPECT_EQ(b.Testo("lblMod"), "/");
        EXPECT_EQ(b.Consiglio("lblMod"), "rif si");
    });
    b.Clicca(1, "lblMod");
    b.Quando(1.5, [&] {
        EXPECT_EQ(b.Testo("lblMod"), "o");
        EXPECT_EQ(b.Consiglio("lblMod"), "rif no");
        EXPECT_EQ(b.into.ConRiferimento, 0);
    });
    b.Clicca(2, "Label6");
    b.Vai(3);
    EXPECT_EQ(b.Testo("lblMod"), "/");
    EXPECT_EQ(b.into.ConRiferimento, 1);
}

TEST(Intonazione, TheLittleKeyboardPalesItsBlackKeysWhenOnlyWhiteOnesAreAsked) {
    BancoIntonazione b;
    b.Quando(0.5, [&] {
        EXPECT_EQ(b.Fondo("lblT1"), Rgb(213, 241, 237));
        EXPECT_EQ(b.Consiglio("lblSolotb"), " solo bianchi ");
    });
    double t = 1;
    for (const char* nome : {"lblSolotb", "lblT1", "lblT2"})
        b.Clicca(t++, nome);
    b.Vai(t);
    EXPECT_FALSE(b.into.SoloBianchi);
    EXPECT_EQ(b.Fondo("lblT1"), 0);
    EXPECT_EQ(b.Fondo("lblT2"), 0);
    for (const char* nome : {"lblSolotb", "lblT1", "lblT2"})
        EXPECT_EQ(b.Consiglio(nome), " tutti ");
}

TEST(Intonazione, AStopThatWaitsBehindTheRightAnswerDoesNotKeepTheNextFigureFromSounding) {
    BancoIntonazione b;
    b.Clicca(1, "IntoStart");
    b.Insieme(5, {{Fatto::Click, "lb24"}, {Fatto::Click, "IntoStart"}});
    b.Vai(9);
    EXPECT_EQ(b.Punti(), "1 0 100.00%");
    EXPECT_EQ(b.Testo("IntoStart"), "Start");
    EXPECT_EQ(b.Note(5),
              (Suonati{"0.0 60 0", "0.0 69 90", "1.2 69 0", "1.3 60 0", "1.3 60 100", "2.2 60 0"}));
}

TEST(Intonazione, AClosingThatWaitsBehindTheStopKeepsTheNextFigureFromSounding) {
    BancoIntonazione b;
    b.Clicca(1, "IntoStart");
    b.Clicca(5, "lblRipInto");
    b.Insieme(10, {{Fatto::Click, "lblRipInto"}, {Fatto::Click, "IntoStart"}, {Fatto::Chiudi, ""}});
    EXPECT_FALSE(b.Vai(14));
    EXPECT_EQ(b.Note(10), Suonati{"0.0 60 0"});
    EXPECT_FALSE(b.into.RipetiNota) << "whoever asks next isn't to repeat";
}

}  // namespace corvana::prova
