// The end of the program, asked for whatever runs: all ends at that instant, the state is stored,
// and nothing sounds.
#include <gtest/gtest.h>

#include "tests/program/program_rig.h"

namespace corvana::prova {

namespace {

struct BancoUscita : BancoProgramma {
    /// Runs the program until its end, which is asked for at the instant `t`.
    void EsciA(double t) {
        Quando(t, [this] { coda.ChiediFine(); });
        EXPECT_FALSE(Vai(t + 1000));
        EXPECT_DOUBLE_EQ(orologio.Adesso(), t);
        EXPECT_EQ(finestre.Davanti(), nullptr);
        EXPECT_EQ(uscita.NoteAccese(), (std::vector<std::pair<int, int>>{}));
        EXPECT_EQ(uscita.aperto, 0) << "the device is open";
        EXPECT_TRUE(riquadri.messaggi.empty());
    }
    std::string Stato() { return impostazioni.LeggiValore("CorvanaLastS"); }
};

/// Stored by a program that was left as it started.
std::string StatoIniziale() {
    BancoUscita b;
    b.Chiudi(3);
    EXPECT_FALSE(b.Vai(4));
    return b.Stato();
}

}  // namespace

TEST(Uscita, AnIdleProgramStoresItsState) {
    BancoUscita b;
    b.EsciA(3);
    EXPECT_FALSE(b.Stato().empty());
    EXPECT_EQ(b.Stato(), StatoIniziale());
}

TEST(Uscita, ItEndsInTheMiddleOfTheOpeningSignal) {
    for (const double t : {0.2, 0.6, 1.1}) {
        BancoUscita b;
        b.EsciA(t);
        EXPECT_EQ(b.Stato(), StatoIniziale());
        EXPECT_EQ(b.uscita.chiusure, 1);
    }
}

TEST(Uscita, ATickingMetronomeStopsWithinItsPulse) {
    for (const double t : {4.0, 4.5, 5.0, 5.95, 17.3}) {
        BancoUscita b;
        b.Clicca(3, "mnuMetro");
        b.Clicca(4, "cmdSSmetro");
        b.EsciA(t);
        EXPECT_EQ(b.Stato(), StatoIniziale());
        EXPECT_FALSE(b.stato.MetroAttivo);
    }
}

TEST(Uscita, AMetronomeWithoutADeviceStopsToo) {
    BancoUscita b;
    b.uscita.esitoOpen = 6;
    b.Clicca(3, "mnuMetro");
    b.Clicca(4, "cmdSSmetro");
    b.Quando(5, [&] {
        EXPECT_TRUE(b.stato.MetroAttivo);
        b.riquadri.messaggi.clear();
    });
    b.EsciA(6);
    EXPECT_EQ(b.Stato(), StatoIniziale());
}

TEST(Uscita, AnAutomaticRunStops) {
    BancoUscita b;
    b.Clicca(3, "mnuAutomatico");
    b.Clicca(4, "Start");
    b.Quando(6, [&] { EXPECT_TRUE(b.finestra.esercizio.InCorso); });
    b.EsciA(7.5);
    EXPECT_TRUE(b.Stato().ends_with("a")) << b.Stato();
    EXPECT_FALSE(b.finestra.esercizio.InCorso);
}

TEST(Uscita, ARunOfAnswersStops) {
    BancoUscita b;
    b.Clicca(3, "Start");
    b.EsciA(7);
    EXPECT_EQ(b.Stato(), StatoIniziale());
    EXPECT_FALSE(b.finestra.esercizio.InCorso);
}

TEST(Uscita, AMetronomeBesideARunStopsWithIt) {
    BancoUscita b;
    b.Clicca(3, "mnuAutomatico");
    b.Clicca(3.1, "mnuMetro");
    b.Clicca(4, "Start");
    b.Clicca(5, "cmdSSmetro");
    b.Quando(8, [&] { EXPECT_TRUE(b.finestra.esercizio.InCorso && b.stato.MetroAttivo); });
    b.EsciA(9.4);
    EXPECT_FALSE(b.finestra.esercizio.InCorso || b.stato.MetroAttivo);
    EXPECT_FALSE(b.Stato().empty());
}

TEST(Uscita, EveryModalWindowIsUnloaded) {
    for (const char* voce : {"mnuMidiTest", "mnuSs", "mnuVersione"}) {
        BancoUscita b;
        b.Clicca(3, voce);
        b.EsciA(4);
        EXPECT_EQ(b.specchio.chiuse.size(), 2U) << voce;
        EXPECT_EQ(b.specchio.chiuse.back(), "CorvanaMainF");
        EXPECT_FALSE(b.globali.PickerAperto);
        EXPECT_EQ(b.Stato(), StatoIniziale());
    }
}

TEST(Uscita, APatternThatIsBeingTriedEndsAtOnceAndIsKept) {
    BancoUscita b;
    b.Clicca(3, "mnuMetro");
    b.Clicca(3.5, "cmdSetup");
    b.Quando(3.8, [&] {
        dynamic_cast<Casella&>(*b.finestre.Davanti()->Trova("txtPattern")).Text = "ccc";
    });
    b.Clicca(4, "cmdTest");
    b.EsciA(5);
    EXPECT_EQ(b.stato.MetroSequenza, "ccc");
    EXPECT_EQ(b.specchio.chiuse, (std::vector<std::string>{"frmConfMetro", "CorvanaMainF"}));
}

TEST(Uscita, ATestPhraseEndsWithItsNoteReleased) {
    BancoUscita b;
    b.Clicca(3, "mnuSs");
    b.Clicca(4, "cmdTest");
    b.Quando(4.5, [&] { EXPECT_FALSE(b.uscita.NoteAccese().empty()); });
    b.EsciA(4.6);
    EXPECT_EQ(b.Stato(), StatoIniziale());
}

TEST(Uscita, AskedForWhileABoxIsUpItEndsWhenTheBoxIsAnswered) {
    BancoUscita b;
    b.uscita.udibile = false;
    b.riquadri.durante = [&](const std::string&) { b.coda.ChiediFine(); };
    b.Clicca(3, "mnuMetro");
    EXPECT_FALSE(b.Vai(1000));
    EXPECT_EQ(b.riquadri.messaggi.size(), 1U);
    EXPECT_FALSE(b.finestra.frmMetro.Visible());
    EXPECT_EQ(b.Stato(), StatoIniziale());
}

TEST(Uscita, AskedForBeforeTheFirstWindowNothingOpens) {
    BancoUscita b;
    b.coda.ChiediFine();
    EXPECT_FALSE(b.Vai(1000));
    EXPECT_TRUE(b.specchio.mostrate.empty());
}

TEST(Uscita, ACloseBoxThatATickingMetronomeRefusesLeavesAllAsItWas) {
    BancoUscita b;
    b.Clicca(3, "mnuMetro");
    b.Clicca(4, "cmdSSmetro");
    b.Chiudi(6.5);
    b.Quando(9.5, [&] {
        EXPECT_EQ(b.Pulsi().size(), 5U);
        EXPECT_EQ(b.finestre.Davanti(), &b.finestra);
        EXPECT_TRUE(b.Stato().empty());
    });
    b.Clicca(10.5, "cmdSSmetro");
    b.Clicca(12, "mnuVersione");
    b.Quando(13, [&] { EXPECT_EQ(b.finestre.Davanti()->Name, "frmAbout"); });
    b.Chiudi(14);
    b.Chiudi(15);
    EXPECT_FALSE(b.Vai(16));
    EXPECT_EQ(b.Stato(), StatoIniziale());
}

}  // namespace corvana::prova
