#include "utilities/midi_test.h"

#include <gtest/gtest.h>

#include "tests/program/program_rig.h"

namespace corvana::prova {

namespace {

struct BancoMidi : BancoProgramma {
    BancoMidi() {
        uscita.nomi = {"Porta uno", "Porta due"};
        Clicca(3, "mnuMidiTest");
    }
    frmMidiTest& Prova() { return dynamic_cast<frmMidiTest&>(*finestre.Davanti()); }
    std::uint32_t Ultimo() const { return uscita.messaggi.back().messaggio; }
};

}  // namespace

TEST(ProvaMidi, TheEmbeddedSynthesiserComesFirstAndThePortsAfterIt) {
    BancoMidi b;
    b.Quando(4, [&] {
        EXPECT_EQ(b.Prova().LstMidiDev.List(), (Righe{"Corvana", "Porta uno", "Porta due"}));
        EXPECT_EQ(b.Prova().dispositivi, (std::vector<std::int32_t>{-1, 0, 1}));
        EXPECT_EQ(b.Prova().lblDevID.Caption(), "Dev. ID: -1");
        EXPECT_EQ(b.Prova().lblInstr.Caption(), "16");
        EXPECT_EQ(b.Prova().InstrS.Value(), 16);
    });
    b.Vai(5);
}

TEST(ProvaMidi, AtActivationItOpensTheFirstDeviceAndPassesItsIdAsTheChannelIndex) {
    BancoMidi b;
    b.Vai(4);
    EXPECT_EQ(b.uscita.aperture, (std::vector<std::int32_t>{-1, -1}));
    EXPECT_EQ(b.Ultimo(), 16U << 8 | 191U) << "which is no program change at all";
}

TEST(ProvaMidi, ItShowsAndSendsTheInstrumentInForce) {
    BancoMidi b;
    b.Quando(2.5, [&] { b.globali.StrumentoGlobale = 40; });
    b.Quando(4, [&] {
        EXPECT_EQ(b.Prova().lblInstr.Caption(), "40");
        EXPECT_EQ(b.Prova().InstrS.Value(), 40);
    });
    b.Vai(5);
    EXPECT_EQ(b.Ultimo(), 40U << 8 | 191U);
}

TEST(ProvaMidi, ItShowsTheFirstInstrumentThoughTheSliderDoesntMoveForIt) {
    BancoMidi b;
    b.Quando(2.5, [&] { b.globali.StrumentoGlobale = 0; });
    b.Quando(4, [&] { EXPECT_EQ(b.Prova().lblInstr.Caption(), "0"); });
    b.Vai(5);
    EXPECT_EQ(b.Ultimo(), 191U);
}

TEST(ProvaMidi, WithoutADefaultOutputTheFirstPortIsTheOneThatItOpens) {
    BancoMidi b;
    b.uscita.senzaPredefinito = true;
    b.Quando(4, [&] { EXPECT_EQ(b.Prova().lblDevID.Caption(), "Dev. ID: 0"); });
    b.Vai(5);
    EXPECT_EQ(b.uscita.aperture.back(), 0);
    EXPECT_EQ(b.Ultimo(), 16U << 8 | 192U);
}

TEST(ProvaMidi, TheProgramGoesToTheDeviceThatWasOpenedAndNeverToTheOneBefore) {
    BancoMidi b;
    b.Quando(2.9, [&] { b.uscita.esitoOpen = 4; });
    b.Quando(3.5, [&] {
        EXPECT_TRUE(b.uscita.ConStato(191).empty());
        b.uscita.esitoOpen = 0;
        b.suono.ApriMidi(-1);
        b.uscita.esitoOpen = 4;
    });
    b.Clicca(4, "LstMidiDev", 2);
    b.Vai(5);
    EXPECT_EQ(b.uscita.ConStato(193).size(), 1U) << "the one of the program's start";
    EXPECT_EQ(b.suono.HandleMidi, 0);
}

TEST(ProvaMidi, APickedDeviceGetsTheProgramThatTheSliderShows) {
    BancoMidi b;
    b.Slitta(4, "InstrS", 73);
    b.Clicca(5, "LstMidiDev", 2);
    b.Vai(6);
    EXPECT_EQ(b.Ultimo(), 73U << 8 | 193U);
}

TEST(ProvaMidi, APickedDeviceIsOpenedAfterTheOldOneIsClosedAndGetsTheProgram) {
    BancoMidi b;
    b.Clicca(4, "LstMidiDev", 2);
    b.Quando(5, [&] {
        EXPECT_EQ(b.Prova().lblDevID.Caption(), "Dev. ID: 1");
        EXPECT_EQ(b.uscita.aperture.back(), 1);
        EXPECT_EQ(b.uscita.chiusure, 2);
        EXPECT_EQ(b.Ultimo(), 16U << 8 | 193U);
    });
    b.Clicca(6, "cmdChiudi");
    b.Vai(7);
    EXPECT_EQ(b.finestre.Davanti(), &b.finestra);
    EXPECT_NE(b.suono.HandleMidi, 0) << "it stays in use";
    EXPECT_EQ(b.uscita.aperture.back(), 1);
}

TEST(ProvaMidi, ActivatingTwiceAddsTheRowsAgain) {
    BancoMidi b;
    b.Quando(4, [&] {
        b.Prova().Form_Activate();
        EXPECT_EQ(b.Prova().LstMidiDev.List->size(), 6U);
    });
    b.Vai(5);
}

TEST(ProvaMidi, ADeviceThatFailsToOpenLeavesNoneOpenAndSaysSo) {
    BancoMidi b;
    b.Quando(4, [&] { b.uscita.esitoOpen = 4; });
    b.Clicca(5, "LstMidiDev", 1);
    b.Vai(6);
    EXPECT_EQ(b.suono.HandleMidi, 0);
    ASSERT_EQ(b.riquadri.messaggi.size(), 1U);
    EXPECT_EQ(b.riquadri.messaggi[0], "Operation:Open\r\nerror text 4");
}

TEST(ProvaMidi, TheTestNoteSoundsUntilOff) {
    BancoMidi b;
    b.Clicca(4, "cmdTest");
    b.Quando(5, [&] {
        EXPECT_EQ(b.uscita.NoteAccese(), (std::vector<std::pair<int, int>>{{1, 69}}));
        EXPECT_EQ(b.Ultimo(), 100U << 16 | 69U << 8 | 0x90U);
    });
    b.Clicca(6, "cmdOff");
    b.Vai(7);
    EXPECT_TRUE(b.uscita.NoteAccese().empty());
}

TEST(ProvaMidi, ClosingTheWindowWhileTheNoteSoundsStopsIt) {
    BancoMidi b;
    b.Clicca(4, "cmdTest");
    b.Chiudi(5);
    b.Vai(6);
    EXPECT_TRUE(b.uscita.NoteAccese().empty());
    EXPECT_EQ(b.finestre.Davanti(), &b.finestra);
}

TEST(ProvaMidi, TheSliderChoosesTheInstrumentOfTheProgram) {
    BancoMidi b;
    b.Slitta(4, "InstrS", 73);
    b.Quando(5, [&] { EXPECT_EQ(b.Prova().lblInstr.Caption(), "73"); });
    b.Vai(6);
    EXPECT_EQ(b.globali.StrumentoGlobale, 73);
    EXPECT_EQ(b.Ultimo(), 73U << 8 | 192U);
}

TEST(ProvaMidi, TheSliderHoldsAll128InstrumentsAndSendsThemOnItsWayToo) {
    BancoMidi b;
    b.Quando(4, [&] {
        EXPECT_EQ(b.Prova().InstrS.Min(), 0);
        EXPECT_EQ(b.Prova().InstrS.Max(), 127);
    });
    b.Fa(5, Fatto::Scroll, "InstrS", 127);
    b.Vai(6);
    EXPECT_EQ(b.globali.StrumentoGlobale, 127);
    EXPECT_EQ(b.Ultimo(), 127U << 8 | 192U);
}

TEST(ProvaMidi, WithNoDeviceAtAllTheListIsOffAndTheTestRaisesTheBox) {
    BancoMidi b;
    b.uscita.nomi.clear();
    b.uscita.senzaPredefinito = true;
    b.uscita.esitoOpen = 2;
    b.Quando(4, [&] { EXPECT_FALSE(b.Prova().LstMidiDev.Enabled()); });
    b.Clicca(5, "cmdTest");
    b.Vai(6);
    ASSERT_EQ(b.riquadri.messaggi.size(), 2U);
    EXPECT_EQ(b.riquadri.messaggi[1], "Operation:ShortMsg\r\nerror text 5");
}

}  // namespace corvana::prova
