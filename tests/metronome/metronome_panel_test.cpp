// The panel at rest: what it shows, and what its controls change.
#include "metronome/metronome_panel.h"

#include <gtest/gtest.h>

#include "tests/program/program_rig.h"

namespace corvana::prova {

namespace {

int LuciVisibili(const PannelloMetronomo& m) {
    int visibili = 0;
    for (const Etichetta& luce : m.lblPuls)
        visibili += luce.Visible() ? 1 : 0;
    return visibili;
}

}  // namespace

TEST(Pannello, AtLoadItHasTheDefaultsAndTwoGreyLights) {
    BancoProgramma b;
    b.Vai(2.5);
    EXPECT_FALSE(b.finestra.frmMetro.Visible());
    EXPECT_EQ(b.stato.MetroSequenza, "ab");
    EXPECT_EQ(b.stato.MetroTempo, "2/4");
    EXPECT_EQ(b.stato.MetroVolume, 127);
    EXPECT_DOUBLE_EQ(b.stato.MetroBattito, 1);
    EXPECT_EQ(b.metronomo.lblTempo.Caption(), "60");
    EXPECT_EQ(LuciVisibili(b.metronomo), 2);
    for (const Etichetta& luce : b.metronomo.lblPuls)
        EXPECT_EQ(luce.BackColor(), 0xAAAAAA);
}

TEST(Pannello, AtLoadWhatWasInForceBeforeGivesWayToTheDefaults) {
    BancoProgramma b;
    b.stato.MetroSequenza = "abcabc";
    b.stato.MetroTempo = "9/8";
    b.stato.MetroMolt = 2;
    b.stato.MetroNotaC = 51;
    b.Vai(2.5);
    EXPECT_EQ(b.stato.MetroSequenza, "ab");
    EXPECT_EQ(b.metronomo.lblTs.Caption(), "2/4");
    EXPECT_DOUBLE_EQ(b.stato.MetroBattito, 1);
    EXPECT_EQ(b.stato.MetroNotaC, 33);
    EXPECT_EQ(LuciVisibili(b.metronomo), 2);
}

TEST(Pannello, IsPaintedFromBrownToSandAcross) {
    BancoProgramma b;
    b.Vai(2.5);
    EXPECT_EQ(b.metronomo.BgMetro.Sfondo(),
              (Sfumatura{Rgb(202, 143, 85), Rgb(234, 213, 165), true, false}));
}

TEST(Pannello, TheTempoSliderGoesFrom20To200AndStandsAt60) {
    BancoProgramma b;
    EXPECT_EQ(b.metronomo.MetroTempoS.Min(), 20);
    EXPECT_EQ(b.metronomo.MetroTempoS.Max(), 200);
    EXPECT_EQ(b.metronomo.MetroTempoS.Value(), 60);
}

TEST(Pannello, TheTempoSliderOnItsWayChangesTheTempoToo) {
    BancoProgramma b;
    b.Clicca(3, "mnuMetro");
    b.Fa(4, Fatto::Scroll, "MetroTempoS", 150);
    b.Vai(5);
    EXPECT_EQ(b.metronomo.lblTempo.Caption(), "150");
    EXPECT_DOUBLE_EQ(b.stato.MetroBattito, 0.4);
}

TEST(Pannello, TheTwentyLightsStandInARow) {
    BancoProgramma b;
    ASSERT_EQ(b.metronomo.lblPuls.size(), 20U);
    for (int i = 0; i < 20; ++i) {
        const Etichetta& luce = b.metronomo.lblPuls[static_cast<std::size_t>(i)];
        EXPECT_EQ(luce.Left(), 285 + 120 * i);
        EXPECT_EQ(luce.Top(), 690);
        EXPECT_EQ(luce.Width(), 120);
        EXPECT_EQ(luce.Height(), 165);
    }
}

TEST(Pannello, TheMenuOpensItAndItsCrossClosesIt) {
    BancoProgramma b;
    b.Clicca(3, "mnuMetro");
    b.Quando(4, [&] {
        EXPECT_TRUE(b.finestra.frmMetro.Visible());
        EXPECT_EQ(b.finestra.HelpContextID(), 8);
    });
    b.Clicca(5, "lblCloseMetro");
    b.Vai(6);
    EXPECT_FALSE(b.finestra.frmMetro.Visible());
    EXPECT_EQ(b.finestra.HelpContextID(), 2);
}

TEST(Pannello, TheToolButtonOpensItAndClosesIt) {
    BancoProgramma b;
    b.Clicca(3, "ToolButton3");
    b.Quando(4, [&] { EXPECT_TRUE(b.finestra.frmMetro.Visible()); });
    b.Clicca(5, "ToolButton3");
    b.Vai(6);
    EXPECT_FALSE(b.finestra.frmMetro.Visible());
}

TEST(Pannello, TheTimeSignatureMovesThroughTheMetersWithTheirLights) {
    BancoProgramma b;
    b.Clicca(3, "mnuMetro");
    for (int i = 0; i < 3; ++i)
        b.Clicca(4 + i, "lblTs");
    b.Quando(8, [&] {
        EXPECT_EQ(b.metronomo.lblTs.Caption(), "6/8");
        EXPECT_EQ(b.stato.MetroSequenza, "abbcbb");
        EXPECT_EQ(LuciVisibili(b.metronomo), 6);
    });
    b.Clicca(9, "lblTs");
    b.Vai(10);
    EXPECT_EQ(b.metronomo.lblTs.Caption(), "2/4");
    EXPECT_EQ(LuciVisibili(b.metronomo), 2);
}

TEST(Pannello, X2WithSlider60Shows120AndBeatsEveryHalfSecond) {
    BancoProgramma b;
    b.globali.testi.TipX1 = "raddoppia";
    b.globali.testi.TipX2 = "dimezza";
    b.Clicca(3, "mnuMetro");
    b.Quando(4, [&] { EXPECT_EQ(b.metronomo.lblX12.ToolTipText(), "raddoppia"); });
    b.Clicca(5, "lblX12");
    b.Clicca(6, "cmdSSmetro");
    b.Clicca(8.2, "cmdSSmetro");
    b.Vai(10);
    EXPECT_EQ(b.metronomo.lblTempo.Caption(), "120");
    EXPECT_EQ(b.metronomo.lblX12.ToolTipText(), "dimezza");
    EXPECT_EQ(b.metronomo.MetroTempoS.Value(), 60);
    const auto pulsi = b.Pulsi();
    ASSERT_GE(pulsi.size(), 4U);
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_NEAR(pulsi[i].first, 6 + 0.5 * static_cast<double>(i + 1), 1e-9);
}

TEST(Pannello, ASecondClickOnTheMultiplierGoesBackToOne) {
    BancoProgramma b;
    b.globali.testi.TipX1 = "raddoppia";
    b.Clicca(3, "mnuMetro");
    b.Clicca(4, "lblX12");
    b.Clicca(5, "lblX12");
    b.Vai(6);
    EXPECT_EQ(b.metronomo.lblX12.Caption(), "x1");
    EXPECT_EQ(b.metronomo.lblX12.ToolTipText(), "raddoppia");
    EXPECT_EQ(b.stato.MetroMolt, 1);
    EXPECT_DOUBLE_EQ(b.stato.MetroBattito, 1);
    EXPECT_EQ(b.metronomo.lblTempo.Caption(), "60");
}

TEST(Pannello, OpenedItGivesItsButtonTheFocus) {
    BancoProgramma b;
    b.Quando(2.9, [&] { b.specchio.fuochi.clear(); });
    b.Clicca(3, "mnuMetro");
    b.Vai(4);
    EXPECT_EQ(b.specchio.fuochi, std::vector<std::string>{"cmdSSmetro"});
}

TEST(Pannello, TheVolumeBarOnItsWaySetsTheVelocityToo) {
    BancoProgramma b;
    b.Clicca(3, "mnuMetro");
    b.Fa(4, Fatto::Scroll, "MetroVol", 70);
    b.Vai(5);
    EXPECT_EQ(b.stato.MetroVolume, 70);
}

TEST(Pannello, TheVolumeBarIsLoudAtItsTopAndSetsTheVelocity) {
    BancoProgramma b;
    EXPECT_EQ(b.metronomo.MetroVol.Min(), 127);
    EXPECT_EQ(b.metronomo.MetroVol.Max(), 0);
    EXPECT_EQ(b.metronomo.MetroVol.Value(), 127);
    EXPECT_EQ(b.metronomo.MetroVol.LargeChange, 10);
    b.Clicca(3, "mnuMetro");
    b.Slitta(4, "MetroVol", 40);
    b.Clicca(5, "cmdSSmetro");
    b.Vai(6.5);
    EXPECT_EQ(b.stato.MetroVolume, 40);
    EXPECT_EQ(b.uscita.messaggi.back().messaggio, 40U << 16 | 76U << 8 | 0x99U);
}

TEST(Pannello, ALanguageChangeRenewsTheTipOfTheMultiplier) {
    BancoProgramma b;
    b.file.contenuti["/programma/langen.csv"] = "54;CorvanaMainF;double\n";
    b.Clicca(3, "mnuEn");
    b.Vai(4);
    EXPECT_EQ(b.metronomo.lblX12.ToolTipText(), "double");
}

}  // namespace corvana::prova
