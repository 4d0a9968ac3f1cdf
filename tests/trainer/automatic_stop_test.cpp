// The ways in which an automatic run ends, and what happens in the middle of one.
#include <gtest/gtest.h>

#include "tests/trainer/main_window_rig.h"
#include "trainer/state.h"

namespace corvana::prova {

namespace {

/// An automatic run on the first row (n43, SI, key H) started at 3: notes come at 3, 5, 7 ...
struct BancoFermata : BancoPrincipale {
    BancoFermata() {
        PonStato("43;53;16;30;a");
        Clicca(3, "Start");
    }
    void Tieni(double da, double a, int codice) {
        Premi(da, codice);
        Lascia(a, codice);
    }
    void Vai(double fine) {
        Fine(fine);
        EXPECT_TRUE(Avvia());
    }
    /// Note offs of the note that stands, n43, sent from the instant `da` on.
    int Spegnimenti(double da) const {
        int quanti = 0;
        for (const auto& [istante, messaggio] : uscita.messaggi)
            quanti += istante >= da && messaggio == 0x003B90;
        return quanti;
    }
};

void EFerma(const BancoFermata& b) {
    EXPECT_EQ(b.finestra.esercizio.Start.Caption(), "Start");
    EXPECT_FALSE(b.finestra.esercizio.InCorso);
    EXPECT_TRUE(b.finestra.menu.es.Enabled());
    EXPECT_TRUE(b.NoteInVista().empty());
}

}  // namespace

TEST(FermataAutomatica, AStopInTheMiddleOfANoteEndsTheRun) {
    BancoFermata b;
    b.Tieni(3.5, 4, 'D');
    b.Clicca(6, "Start");
    b.Vai(20);
    EFerma(b);
    EXPECT_EQ(b.punteggio.Errate, 1);
    EXPECT_EQ(b.punteggio.Mostrate, 2);
    EXPECT_TRUE(b.punteggio.frmRisultati.Visible());
    EXPECT_EQ(b.punteggio.Lrerrate.Caption(), "1");
    EXPECT_TRUE(b.uscita.NoteAccese().empty());
}

TEST(FermataAutomatica, AStopInTheMiddleOfANoteBuildsThePanelTwice) {
    BancoFermata b;
    b.Tieni(3.5, 4, 'D');
    b.Clicca(6, "Start");
    b.Vai(20);
    EXPECT_EQ(b.Spegnimenti(6), 4);  // each end with results sends two
}

TEST(FermataAutomatica, AStopJustAsTheTimeRunsOutTakesOneFromTheWrongAnswersAndBuildsItOnce) {
    BancoFermata b;
    b.Tieni(3.5, 4, 'D');
    b.Clicca(5, "Start");
    b.Vai(20);
    EFerma(b);
    EXPECT_EQ(b.punteggio.Errate, 0);
    EXPECT_EQ(b.punteggio.Mostrate, 1);
    EXPECT_TRUE(b.punteggio.frmRisultati.Visible());
    EXPECT_EQ(b.punteggio.Lrerrate.Caption(), "1");
    EXPECT_EQ(b.Spegnimenti(5), 2);
}

TEST(FermataAutomatica, AStopJustAsTheTimeRunsOutWithoutAnAnswerLeavesMinusOneAndNoPanel) {
    BancoFermata b;
    b.Clicca(5, "Start");
    b.Clicca(6, "Start");
    b.Quando(5.5, [&] { EXPECT_EQ(b.punteggio.Errate, -1); });
    b.Vai(6.5);
    EXPECT_FALSE(b.punteggio.frmRisultati.Visible());
    EXPECT_EQ(b.punteggio.Errate, 0);
    EXPECT_EQ(b.punteggio.er.Text(), "0");
}

TEST(FermataAutomatica, StoppedBeforeAnyAnswerItShowsNoPanel) {
    BancoFermata b;
    b.Clicca(4, "Start");
    b.Vai(20);
    EFerma(b);
    EXPECT_FALSE(b.punteggio.frmRisultati.Visible());
    EXPECT_EQ(b.finestra.pentagramma.lblnn.Caption(), "");
}

TEST(FermataAutomatica, EscEndsTheRun) {
    BancoFermata b;
    b.Tieni(3.5, 4, 'H');
    b.Premi(6, 27);
    b.Vai(20);
    EFerma(b);
    EXPECT_TRUE(b.punteggio.frmRisultati.Visible());
    EXPECT_EQ(b.punteggio.Errate, 0);
}

TEST(FermataAutomatica, WithEscHeldANewRunEndsAtOnce) {
    BancoFermata b;
    b.Premi(4, 27);
    b.Clicca(5, "Start");
    b.Vai(20);
    EFerma(b);
    EXPECT_EQ(b.punteggio.Mostrate, 1);
}

TEST(FermataAutomatica, AKeyHeldAtTheStopMayStillAnswer) {
    BancoFermata b;
    b.Premi(4, 'H');
    b.Clicca(4, "Start");
    b.Vai(20);
    EFerma(b);
    EXPECT_EQ(b.punteggio.Esatte, 1);
}

TEST(FermataAutomatica, TheNextRunStartsAfresh) {
    BancoFermata b;
    b.Tieni(3.5, 4, 'D');
    b.Clicca(6, "Start");
    b.Clicca(8, "Start");
    b.Vai(9);
    EXPECT_EQ(b.punteggio.Mostrate, 1);
    EXPECT_EQ(b.punteggio.Errate, 0);
    EXPECT_TRUE(b.finestra.esercizio.InCorso);
    EXPECT_FALSE(b.punteggio.frmRisultati.Visible());
}

TEST(FermataAutomatica, AStopAndAStartDeliveredTogetherLeaveOneRun) {
    BancoFermata b;
    b.Insieme(4, {{Fatto::Click, "Start"}, {Fatto::Click, "Start"}});
    b.Quando(7, [&] {
        EXPECT_TRUE(b.finestra.esercizio.InCorso);
        EXPECT_EQ(b.punteggio.Mostrate, 2);
    });
    b.Clicca(7, "Start");
    b.Vai(30);
    EFerma(b);
    EXPECT_EQ(b.punteggio.Mostrate, 2);
}

TEST(FermataAutomatica, AStopANewModeAndAStartDeliveredTogetherLeaveANormalRun) {
    BancoFermata b;
    b.Insieme(4, {{Fatto::Click, "Start"}, {Fatto::Click, "mnuNormale"}, {Fatto::Click, "Start"}});
    b.Tasto(10, 'H');
    b.Vai(30);
    EXPECT_TRUE(b.finestra.esercizio.InCorso);
    EXPECT_EQ(b.punteggio.Mostrate, 0);
    EXPECT_EQ(b.punteggio.Esatte, 1);
    EXPECT_EQ(b.punteggio.conta.Text(), "1");
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(FermataAutomatica, ClosingTheWindowStopsTheRunFirstAndStoresTheState) {
    BancoFermata b;
    b.Tieni(3.5, 4, 'H');
    b.Chiudi(6);
    EXPECT_FALSE(b.Avvia());
    EXPECT_EQ(b.finestra.esercizio.Start.Caption(), "Start");
    EXPECT_EQ(b.suono.HandleMidi, 0);
    EXPECT_EQ(b.uscita.chiusure, 1);
    EXPECT_TRUE(b.uscita.NoteAccese().empty());
    EXPECT_EQ(b.Stato(), "43;53;16;30;a");
    EXPECT_TRUE(b.riquadri.messaggi.empty());
    EXPECT_DOUBLE_EQ(b.orologio.Adesso(), 6);
}

TEST(FermataAutomatica, ClosingJustAsTheTimeRunsOutIsTheSame) {
    BancoFermata b;
    b.Chiudi(5);
    EXPECT_FALSE(b.Avvia());
    EXPECT_EQ(b.punteggio.Mostrate, 1);
    EXPECT_TRUE(b.riquadri.messaggi.empty());
    EXPECT_EQ(b.suono.HandleMidi, 0);
}

TEST(Inceppo, AFailedMessagesBoxBlocksTheDrillAndThenItGoesOn) {
    BancoFermata b;
    b.Quando(4, [&] { b.uscita.esitoShortMsg = 67; });
    b.riquadri.durante = [&](const std::string&) {
        b.uscita.esitoShortMsg = 0;
        b.orologio.AspettaFino(b.orologio.Adesso() + 3.5);
    };
    b.Premi(6, 'H');  // while the box is up
    b.Quando(8.4, [&] {
        EXPECT_EQ(b.punteggio.Mostrate, 1);
        EXPECT_EQ(b.punteggio.Esatte, 0);
    });
    b.Vai(9);
    EXPECT_EQ(b.riquadri.messaggi, std::vector<std::string>{"Operation:ShortMsg\r\nerror text 67"});
    EXPECT_EQ(b.punteggio.Mostrate, 3);  // the time of the second ran out behind the box
    EXPECT_EQ(b.punteggio.Esatte, 2);
    EXPECT_TRUE(b.finestra.esercizio.InCorso);
}

TEST(Inceppo, AStopClickedBehindTheBoxCountsWhenTheBoxIsGone) {
    BancoFermata b;
    b.Quando(4, [&] { b.uscita.esitoShortMsg = 67; });
    b.riquadri.durante = [&](const std::string&) {
        b.uscita.esitoShortMsg = 0;
        b.orologio.AspettaFino(b.orologio.Adesso() + 1);
    };
    b.Clicca(5.5, "Start");
    b.Vai(20);
    EFerma(b);
    EXPECT_EQ(b.punteggio.Mostrate, 2);
}

TEST(Inceppo, WithoutADeviceEachNoteShowsItsBoxesAndTheDrillGoesOn) {
    BancoFermata b;
    b.uscita.esitoOpen = 4;
    b.Vai(8);
    EXPECT_EQ(b.punteggio.Mostrate, 3);
    // The open, then a note off and a note on for each of the three notes.
    ASSERT_EQ(b.riquadri.messaggi.size(), 7U);
    EXPECT_EQ(b.riquadri.messaggi.front(), "Operation:Open\r\nerror text 4");
    EXPECT_EQ(b.riquadri.messaggi.back(), "Operation:ShortMsg\r\nerror text 5");
}

}  // namespace corvana::prova
