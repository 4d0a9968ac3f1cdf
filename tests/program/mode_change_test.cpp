// What the menus can do to a run once the metronome, started and stopped in it, has enabled them
// again: the modes change under the run.
#include <gtest/gtest.h>

#include "tests/program/program_rig.h"

namespace corvana::prova {

namespace {

/// An automatic run, two seconds a note, begun at 4: the draw is always n43, SI, key H.
struct BancoModi : BancoProgramma {
    BancoModi() {
        Clicca(3, "mnuAutomatico");
        Clicca(3.1, "mnuMetro");
        Clicca(4, "Start");
    }
    /// The metronome ticks over the run from `da`, and its stop is served at the pulse of `a`.
    void Batti(double da, double a) {
        Clicca(da, "cmdSSmetro");
        Clicca(a - 0.5, "cmdSSmetro");
    }
};

void EFermo(const BancoModi& b) {
    EXPECT_EQ(b.finestra.esercizio.Start.Caption(), "Start");
    EXPECT_FALSE(b.finestra.esercizio.InCorso);
    EXPECT_TRUE(b.finestra.menu.Opzioni.Enabled());
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

}  // namespace

TEST(CambioModo, ALoopWhoseRunIsOverLeavesTheCountersOfALaterOneAlone) {
    BancoModi b;
    b.Clicca(5, "cmdSSmetro");
    b.Clicca(7.5, "Start");  // stop, at 8
    b.Clicca(8.5, "mnuNormale");
    b.Clicca(9.5, "Start");
    b.Clicca(10.5, "psi");
    b.Clicca(11.5, "Start");
    b.Clicca(12.5, "mnuAutomatico");
    b.Clicca(13.5, "cmdSSmetro");
    b.Vai(30);
    EFermo(b);
    EXPECT_EQ(b.punteggio.Mostrate, 0);
    EXPECT_EQ(b.punteggio.Esatte, 1);
    EXPECT_EQ(b.punteggio.Errate, 0);
    EXPECT_EQ(b.punteggio.PercEs.Text(), "100.00%");
    EXPECT_EQ(b.punteggio.Tempoimp.Caption(), "0:2 mm:ss");
}

TEST(CambioModo, ALoopWhoseRunIsOverDoesntPlayALaterRunByTheClock) {
    BancoModi b;
    b.Clicca(5, "cmdSSmetro");
    b.Clicca(7.5, "Start");
    b.Clicca(8.5, "mnuNormale");
    b.Clicca(9.5, "Start");
    b.Clicca(10.5, "cmdSSmetro");  // the old loop wakes within the normal run
    b.Clicca(20, "psi");
    b.Vai(40);
    EXPECT_TRUE(b.finestra.esercizio.InCorso);
    EXPECT_EQ(b.punteggio.Mostrate, 0);
    EXPECT_EQ(b.punteggio.conta.Text(), "1");
    EXPECT_EQ(b.punteggio.PercEs.Text(), "100.00%");
    EXPECT_TRUE(b.finestra.risposte.psi.Enabled());
    EXPECT_FALSE(b.punteggio.frmRisultati.Visible());
}

TEST(CambioModo, AStoppedRunsLoopTakesNothingFromTheWrongAnswersOfALaterOne) {
    BancoModi b;
    b.Clicca(5, "cmdSSmetro");
    b.Clicca(7.5, "Start");
    b.Clicca(8.5, "mnuNormale");
    b.Clicca(9.5, "Start");
    b.Clicca(10.5, "pdo");  // wrong
    b.Clicca(11.5, "cmdSSmetro");
    b.Vai(14);
    EXPECT_EQ(b.punteggio.Errate, 1);
    EXPECT_EQ(b.punteggio.er.Text(), "1");
}

TEST(CambioModo, RightAnswersByHandInAnAutomaticRunCountAndBringTheNextNote) {
    BancoModi b;
    b.Batti(4.5, 5.5);
    b.Clicca(5.8, "mnuNormale");
    int prima = 0;
    b.Quando(6.9, [&] { prima = b.casuale.estratti; });
    b.Clicca(7, "psi");  // the second note, since the first one's time ended under the metronome
    b.Clicca(7.1, "psi");
    b.Clicca(7.2, "pdo");
    b.Quando(7.3, [&] {
        EXPECT_EQ(b.casuale.estratti, prima + 2);
        EXPECT_EQ(b.punteggio.Mostrate, 2);
        EXPECT_EQ(b.punteggio.Esatte, 2);
        EXPECT_EQ(b.punteggio.Errate, 1);
        EXPECT_EQ(b.punteggio.conta.Text(), "4");
    });
    b.Vai(8.5);
    EXPECT_TRUE(b.riquadri.messaggi.empty());
    EXPECT_EQ(b.punteggio.Mostrate, 3);
    EXPECT_EQ(b.punteggio.conta.Text(), "3");
}

TEST(CambioModo, TheBarIsFullAtMostThoughAnswersOutnumberTheNotes) {
    BancoModi b;
    b.Batti(4.5, 5.5);
    b.Clicca(5.6, "mnuNormale");
    for (int i = 0; i < 9; ++i)
        b.Clicca(6.1 + 0.1 * i, "psi");
    b.Quando(6.95, [&] { EXPECT_EQ(b.punteggio.Mostrate, 2); });
    b.Vai(7.1);
    EXPECT_EQ(b.punteggio.PercEs.Text(), "450.00%");
    EXPECT_EQ(b.punteggio.Rapporto, 1);
    EXPECT_EQ(b.punteggio.PercMet.Height(), b.punteggio.PercBg.Height());
}

TEST(CambioModo, TheClockGoesOnThroughAChangeOfModeAndBack) {
    for (const bool ancheIndietro : {false, true}) {
        BancoModi b;
        b.Batti(4.5, 5.5);
        b.Clicca(5.8, "mnuNormale");
        if (ancheIndietro) b.Clicca(5.9, "mnuAutomatico");
        b.Quando(6.1, [&] { EXPECT_EQ(b.punteggio.Mostrate, 2); });
        b.Quando(12.1, [&] { EXPECT_EQ(b.punteggio.Mostrate, 5); });
        b.Clicca(13, "Start");
        b.Vai(30);
        EFermo(b);
        EXPECT_EQ(b.punteggio.Mostrate, 5);
    }
}

TEST(CambioModo, AModeChosenBetweenStopAndTheLoopsEndIsntItsOwn) {
    BancoModi b;
    b.Clicca(5, "cmdSSmetro");
    b.Tasto(7.2, 'D');
    b.Clicca(7.5, "Start");
    b.Clicca(8.5, "mnuNormale");
    b.Clicca(9.5, "cmdSSmetro");
    b.Vai(20);
    EFermo(b);
    EXPECT_EQ(b.punteggio.Mostrate, 1);
    EXPECT_EQ(b.finestra.stato.Modo, "normale");
}

TEST(CambioModo, ANormalRunChangedToAutomaticWaitsAndGoesOnInItsOwnMode) {
    BancoModi b;
    b.Clicca(3.5, "mnuNormale");
    b.Batti(4.5, 5.5);
    b.Clicca(6, "mnuAutomatico");
    b.Clicca(7, "psi");
    b.Tasto(8, 'H');
    b.Quando(9, [&] { EXPECT_EQ(b.punteggio.Esatte, 0); });
    b.Clicca(10, "mnuNormale");
    b.Clicca(11, "psi");
    b.Clicca(12, "Start");
    b.Vai(30);
    EFermo(b);
    EXPECT_EQ(b.punteggio.Esatte, 1);
    EXPECT_TRUE(b.punteggio.frmRisultati.Visible());
}

}  // namespace corvana::prova
