// How the main window comes up, is activated, and closes.
#include <gtest/gtest.h>

#include "tests/trainer/main_window_rig.h"

namespace corvana::prova {

namespace {

using Avvisi = std::vector<std::string>;

/// A window that stands for one of the others: it does its work on activation and is closed.
struct FinestraFinta final : Form {
    FinestraFinta() : Form("frmFinta") {}
    std::function<void()> lavoro;
    void Form_Activate() override {
        if (lavoro) lavoro();
    }
};

/// The event waits in the queue when the window appears, before the program does anything more.
void AllaComparsa(BancoPrincipale& b, Fatto fatto, const std::string& controllo) {
    Evento e;
    e.fatto = fatto;
    e.finestra = 1;  // the first showing of all
    e.controllo = b.finestra.Trova(controllo)->Numero();
    b.coda.Aggiungi(e);
}

std::vector<std::string> Disabilitati(const CorvanaMainF& f) {
    std::vector<std::string> nomi;
    for (const Controllo* c : {static_cast<const Controllo*>(&f.esercizio.Start),
                               static_cast<const Controllo*>(&f.menu.mnuRint),
                               static_cast<const Controllo*>(&f.menu.Intonazione),
                               static_cast<const Controllo*>(&f.cmdEsci)})
        if (!c->Enabled()) nomi.push_back(c->Name);
    return nomi;
}

}  // namespace

TEST(Caricamento, LeavesTheWindowIdleWithTheNoteSoundOnAndTheRestHidden) {
    BancoPrincipale b;
    b.Fine(3);
    EXPECT_TRUE(b.Avvia());
    const CorvanaMainF& f = b.finestra;
    EXPECT_TRUE(f.stato.SuonoNota);
    EXPECT_DOUBLE_EQ(f.stato.SecondiNota, 2);
    for (const Controllo* c : {static_cast<const Controllo*>(&f.frmMetro),
                               static_cast<const Controllo*>(&f.esercizio.punteggio.frmRisultati),
                               static_cast<const Controllo*>(&f.automatico.Velocità),
                               static_cast<const Controllo*>(&f.automatico.Slider1),
                               static_cast<const Controllo*>(&f.automatico.lblAuto1),
                               static_cast<const Controllo*>(&f.automatico.lblAuto2)})
        EXPECT_FALSE(c->Visible()) << c->Name;
    for (const Controllo* c : {&f.risposte.pdo, &f.risposte.pre, &f.risposte.pmi, &f.risposte.pfa,
                               &f.risposte.psol, &f.risposte.pla, &f.risposte.psi})
        EXPECT_FALSE(c->Enabled()) << c->Name;
    EXPECT_EQ(f.esercizio.Start.Caption(), "Start");
    EXPECT_FALSE(f.esercizio.InCorso);
}

TEST(PrimaAttivazione, OpensTheDefaultOutputSetsTheInstrumentAndPlaysTheSignal) {
    BancoPrincipale b;
    b.PonStato("43;53;7;30;n");
    b.Fine(3);
    b.Avvia();
    EXPECT_EQ(b.uscita.aperture, std::vector<std::int32_t>{-1});
    ASSERT_EQ(b.uscita.messaggi.size(), 14U);
    for (std::uint32_t canale = 0; canale < 4; ++canale)
        EXPECT_EQ(b.uscita.messaggi[canale], (Registratore::Voce{0, 0x07C0 + canale}));
    EXPECT_EQ(b.uscita.messaggi[4], (Registratore::Voce{0.5, 0x7F4790}));
    EXPECT_NEAR(b.uscita.messaggi[13].istante, 2.25, 1e-9);
    EXPECT_TRUE(b.uscita.NoteAccese().empty());
}

TEST(PrimaAttivazione, HasItsFourControlsOffUntilTheSignalIsOverAndStartGetsTheFocus) {
    BancoPrincipale b;
    Avvisi durante;
    b.Quando(1, [&] { durante = Disabilitati(b.finestra); });
    b.Fine(3);
    b.Avvia();
    EXPECT_EQ(durante, (Avvisi{"Start", "mnuRint", "Intonazione", "cmdEsci"}));
    EXPECT_TRUE(Disabilitati(b.finestra).empty());
    EXPECT_EQ(b.specchio.fuochi.back(), "Start");
}

TEST(PrimaAttivazione, WhatIsClickedDuringTheSignalIsJudgedWhenItIsOver) {
    BancoPrincipale b;
    b.Clicca(1, "psi");
    b.Clicca(1.2, "difficolt", 1);
    b.Clicca(1.4, "Start");
    b.Quando(2.2, [&] { EXPECT_EQ(b.finestra.stato.LimiteBasso, 43); });
    b.Fine(3);
    b.Avvia();
    EXPECT_EQ(b.punteggio.Errate, 0);
    EXPECT_TRUE(b.Onde().empty());
    EXPECT_EQ(b.finestra.stato.LimiteBasso, 41);
    EXPECT_TRUE(b.finestra.esercizio.InCorso);
}

TEST(PrimaAttivazione, ARequestToCloseDuringTheSignalClosesAfterIt) {
    BancoPrincipale b;
    b.Chiudi(1);
    EXPECT_FALSE(b.Avvia());
    EXPECT_NEAR(b.orologio.Adesso(), BancoPrincipale::pronta, 1e-9);
    EXPECT_EQ(b.suono.HandleMidi, 0);
}

TEST(PrimaAttivazione, TheSignalPlaysOncePerProcess) {
    BancoPrincipale b;
    b.Quando(3, [&] { b.finestra.Form_Activate(); });
    b.Fine(10);
    b.Avvia();
    EXPECT_EQ(b.uscita.ConStato(0x90).size(), 10U);
    EXPECT_EQ(b.uscita.aperture.size(), 1U);
}

TEST(PrimaAttivazione, ASignalThatHadNoDeviceIsntMadeUpForLater) {
    BancoPrincipale b;
    b.uscita.esitoOpen = 4;
    b.Quando(3, [&] {
        b.uscita.esitoOpen = 0;
        b.finestra.Form_Activate();
    });
    b.Fine(10);
    b.Avvia();
    EXPECT_TRUE(b.uscita.aperture.empty());
    EXPECT_TRUE(b.uscita.messaggi.empty());
    EXPECT_EQ(b.riquadri.messaggi.size(), 1U);
}

TEST(PrimaAttivazione, WithADeviceOpenAlreadyNothingIsPlayed) {
    BancoPrincipale b;
    b.suono.ApriMidi(3);
    b.Fine(3);
    b.Avvia();
    EXPECT_EQ(b.uscita.aperture, std::vector<std::int32_t>{3});
    EXPECT_TRUE(b.uscita.messaggi.empty());
    EXPECT_TRUE(b.finestra.esercizio.Start.Enabled());
}

TEST(SenzaDispositivo, TheWindowOpensWithABoxAndTheFirstNoteFailsWithAnother) {
    BancoPrincipale b;
    b.uscita.esitoOpen = 4;
    b.Clicca(3, "Start");
    b.Fine(4);
    b.Avvia();
    EXPECT_EQ(b.riquadri.messaggi,
              (Avvisi{"Operation:Open\r\nerror text 4", "Operation:ShortMsg\r\nerror text 5",
                      "Operation:ShortMsg\r\nerror text 5"}));
    EXPECT_TRUE(b.finestra.esercizio.InCorso);
    EXPECT_EQ(b.NoteInVista(), std::vector<int>{43});
    EXPECT_EQ(b.uscita.messaggi.size(), 0U);
}

TEST(SenzaDispositivo, ItClosesWithoutABox) {
    BancoPrincipale b;
    b.uscita.esitoOpen = 4;
    b.Chiudi(3);
    EXPECT_FALSE(b.Avvia());
    EXPECT_EQ(b.riquadri.messaggi.size(), 1U);
    EXPECT_EQ(b.uscita.chiusure, 0);
}

TEST(SenzaDispositivo, AnOutputThatNobodyHearsIsToldOnceInTheWordsOfTheLanguageFile) {
    BancoPrincipale b;
    b.file.contenuti["/programma/langit.csv"] = "57;CorvanaMainF;nessun suono\n";
    b.uscita.udibile = false;
    b.Fine(10);
    b.Avvia();
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{"nessun suono"});
}

TEST(SenzaDispositivo, WithoutALanguageFileItIsToldAllTheSame) {
    BancoPrincipale b;
    b.uscita.udibile = false;
    b.Clicca(3, "Start");
    b.Fine(10);
    b.Avvia();
    ASSERT_EQ(b.riquadri.messaggi.size(), 1U);
    EXPECT_FALSE(b.riquadri.messaggi[0].empty());
    EXPECT_TRUE(b.finestra.esercizio.InCorso);
}

TEST(Attivazione, AfterAnotherWindowChangedTheNamesTheChecksFollowAndTheCaptionsStay) {
    BancoPrincipale b;
    FinestraFinta composer;
    composer.lavoro = [&] { b.globali.NomiAnglo = true; };
    Secondarie secondarie = b.TutteLeSecondarie();
    secondarie.frmComposer = [&] { b.finestre.MostraModale(composer); };
    CorvanaMainF finestra(b.Tutto(), secondarie);
    b.Clicca(3, "mnuComposer");
    b.Chiudi(4);
    b.Quando(4.5, [&] {
        EXPECT_FALSE(finestra.menu.Nominote1.Checked());
        EXPECT_TRUE(finestra.menu.Nominote2.Checked());
        EXPECT_EQ(finestra.risposte.pdo.Caption(), "DO");
    });
    b.Clicca(5, "Nominote2");
    b.Fine(6);
    b.SvolgiCopione([&] {
        b.finestre.Mostra(finestra);
        b.finestre.FinoAllUltima();
    });
    EXPECT_EQ(finestra.risposte.pdo.Caption(), "C");
}

TEST(Chiusura, BothExitsAndTheCloseBoxCloseTheDeviceAndStoreTheState) {
    for (const char* uscita : {"Esci", "cmdEsci", "cmdEscibg", ""}) {
        BancoPrincipale b;
        b.PonStato("20;44;5;60;n");
        b.Fa(3, *uscita ? Fatto::Click : Fatto::Chiudi, uscita);
        EXPECT_FALSE(b.Avvia()) << uscita;
        EXPECT_EQ(b.suono.HandleMidi, 0);
        EXPECT_EQ(b.uscita.chiusure, 1);
        EXPECT_EQ(b.Stato(), "20;44;5;60;n");
        EXPECT_TRUE(b.riquadri.messaggi.empty());
    }
}

TEST(Chiusura, IsRefusedWithoutAMessageWhileTheMetronomeRuns) {
    BancoPrincipale b;
    b.Clicca(3, "Start");
    b.Quando(4, [&] { b.globali.metronomo.MetroAttivo = true; });
    b.Chiudi(5);
    b.Fine(6);
    EXPECT_TRUE(b.Avvia());
    EXPECT_TRUE(b.finestra.esercizio.InCorso);
    EXPECT_NE(b.suono.HandleMidi, 0);
    EXPECT_TRUE(b.riquadri.messaggi.empty());
    EXPECT_EQ(b.Stato(), "");
}

TEST(Chiusura, DuringANormalRunStopsItFirst) {
    BancoPrincipale b;
    b.Clicca(3, "Start");
    b.Chiudi(4);
    EXPECT_FALSE(b.Avvia());
    EXPECT_FALSE(b.finestra.esercizio.InCorso);
    EXPECT_TRUE(b.uscita.NoteAccese().empty());
    EXPECT_EQ(b.Stato(), "43;53;16;30;n");
}

TEST(Chiusura, AFailedCloseOfTheDeviceShowsItsBoxAndTheWindowGoes) {
    BancoPrincipale b;
    b.Quando(2.5, [&] { b.uscita.esitoClose = 5; });
    b.Chiudi(3);
    EXPECT_FALSE(b.Avvia());
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{"Operation:Close midi error: \r\nerror text 5"});
    EXPECT_EQ(b.Stato(), "43;53;16;30;n");
}

TEST(Chiusura, WhereNothingCanBeStoredItCloses) {
    BancoPrincipale b;
    b.Quando(2.5, [&] { b.file.erroreScrivi = ENOSPC; });
    b.Chiudi(3);
    EXPECT_FALSE(b.Avvia());
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(PrimaAttivazione, WhatWasDoneToTheWindowBeforeItIsServedWhileTheControlsAreStillOn) {
    BancoPrincipale b;
    AllaComparsa(b, Fatto::Click, "Start");
    b.Quando(1, [&] {
        EXPECT_TRUE(b.finestra.esercizio.InCorso);
        EXPECT_EQ(b.finestra.esercizio.Start.Caption(), "Stop");
    });
    b.Fine(3);
    EXPECT_TRUE(b.Avvia());
    EXPECT_TRUE(b.finestra.esercizio.InCorso);
}

TEST(PrimaAttivazione, AModeChosenBeforeItIsServedGivesStartTheFocusAsLaterOnesDo) {
    for (const char* modo : {"mnuNormale", "mnuAutomatico"}) {
        BancoPrincipale b;
        AllaComparsa(b, Fatto::Click, modo);
        b.Quando(1, [&] { EXPECT_EQ(b.specchio.fuochi, Avvisi{"Start"}) << modo; });
        b.Fine(3);
        b.Avvia();
        EXPECT_EQ(b.specchio.fuochi, (Avvisi{"Start", "Start"})) << modo;
    }
}

TEST(PrimaAttivazione, WithNothingDoneBeforeItStartHasTheFocusWhenTheSignalIsOver) {
    BancoPrincipale b;
    b.PonStato("43;53;16;60;a");
    b.Quando(2, [&] { EXPECT_TRUE(b.specchio.fuochi.empty()); });
    b.Fine(3);
    b.Avvia();
    EXPECT_EQ(b.specchio.fuochi, Avvisi{"Start"});
}

TEST(PrimaAttivazione, TheModesAndTheSliderGiveNoFocusBeforeIt) {
    BancoPrincipale b;
    b.finestre.Mostra(b.finestra);  // from here on the focus is seen
    b.specchio.fuochi.clear();
    b.finestra.Form_Load();
    b.finestra.mnuAutomatico_Click();
    b.finestra.mnuNormale_Click();
    b.finestra.automatico.Slider1_Change();
    EXPECT_TRUE(b.specchio.fuochi.empty());
    b.finestra.Form_Activate();
    b.specchio.fuochi.clear();
    b.finestra.automatico.Slider1_Change();
    b.finestra.automatico.Slider1_Scroll();
    b.finestra.mnuNormale_Click();
    b.finestra.mnuAutomatico_Click();
    EXPECT_EQ(b.specchio.fuochi, (Avvisi{"Start", "Start", "Start"}));
}

TEST(Chiusura, BeforeTheFirstActivationIsOverOpensNoDevice) {
    BancoPrincipale b;
    AllaComparsa(b, Fatto::Chiudi, "CorvanaMainF");
    EXPECT_FALSE(b.Avvia());
    EXPECT_TRUE(b.uscita.aperture.empty());
}

}  // namespace corvana::prova
