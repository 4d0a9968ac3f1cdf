// The metronome as it ticks: the order within a pulse, and what shares its time.
#include <gtest/gtest.h>

#include "tests/program/program_rig.h"

namespace corvana::prova {

namespace {

struct BancoPulsi : BancoProgramma {
    BancoPulsi() { Clicca(3, "mnuMetro"); }
    Colore Luce(std::size_t posto) const { return metronomo.lblPuls[posto].BackColor(); }
};

}  // namespace

TEST(Pulsi, TheFirstSoundComesOneFullBeatAfterTheClick) {
    BancoPulsi b;
    b.Clicca(4, "cmdSSmetro");
    b.Vai(7.5);
    const std::vector<std::pair<double, int>> attesi = {{5, 76}, {6, 85}, {7, 76}};
    EXPECT_EQ(b.Pulsi(), attesi);
}

TEST(Pulsi, EachIsCutAndDarkForTheLastTenthOfASecond) {
    BancoPulsi b;
    b.Clicca(4, "cmdSSmetro");
    b.Quando(5.89, [&] { EXPECT_EQ(b.Luce(0), Rgb(255, 0, 0)); });
    b.Quando(5.95, [&] {
        EXPECT_EQ(b.Luce(0), coloreLuceSpenta);
        ASSERT_EQ(b.uscita.reset.size(), 2U);
        EXPECT_NEAR(b.uscita.reset.back(), 5.9, 1e-9);
    });
    b.Vai(6.5);
    EXPECT_EQ(b.Luce(1), Rgb(0, 255, 0));
}

TEST(Pulsi, SixEightLightsSixLampsWithGreenOnTheThirdAndSixthAndBlueOnTheFourth) {
    BancoPulsi b;
    for (int i = 0; i < 3; ++i)
        b.Clicca(3.1 + 0.1 * i, "lblTs");
    b.Clicca(4, "cmdSSmetro");
    const Colore rosso = Rgb(255, 0, 0), verde = Rgb(0, 255, 0), blu = Rgb(0, 0, 255);
    const std::array attesi = {rosso, verde, verde, blu, verde, verde};
    for (std::size_t i = 0; i < attesi.size(); ++i)
        b.Quando(5.5 + static_cast<double>(i), [&, i] { EXPECT_EQ(b.Luce(i), attesi[i]); });
    b.Vai(10.9);
    EXPECT_TRUE(b.metronomo.lblPuls[5].Visible());
    EXPECT_FALSE(b.metronomo.lblPuls[6].Visible());
}

TEST(Pulsi, ASecondClickIsServedAtTheNextPulse) {
    BancoPulsi b;
    b.Clicca(4, "cmdSSmetro");
    b.Clicca(4.1, "cmdSSmetro");
    b.Quando(4.9, [&] { EXPECT_TRUE(b.stato.MetroAttivo); });
    b.Vai(8);
    EXPECT_FALSE(b.stato.MetroAttivo);
    EXPECT_EQ(b.Pulsi().size(), 1U);
}

TEST(Pulsi, AfterTheEndAllThreeNotesAreReleasedInOrderAndTheLightsAreGrey) {
    BancoPulsi b;
    b.Clicca(4, "cmdSSmetro");
    b.Clicca(5.5, "cmdSSmetro");
    b.Vai(8);
    const auto& m = b.uscita.messaggi;
    ASSERT_GE(m.size(), 3U);
    EXPECT_EQ(m[m.size() - 3].messaggio, 76U << 8 | 0x99U);
    EXPECT_EQ(m[m.size() - 2].messaggio, 85U << 8 | 0x99U);
    EXPECT_EQ(m[m.size() - 1].messaggio, 33U << 8 | 0x99U);
    for (std::size_t i = 0; i < 20; ++i)
        EXPECT_EQ(b.Luce(i), coloreLuceSpenta);
}

TEST(Pulsi, ATempoChangedDuringARunChangesTheNextBeatWithoutRestartingThePattern) {
    BancoPulsi b;
    b.Clicca(4, "cmdSSmetro");
    b.Slitta(4.5, "MetroTempoS", 120);
    b.Vai(6.7);
    const std::vector<std::pair<double, int>> attesi = {{5, 76}, {5.5, 85}, {6, 76}, {6.5, 85}};
    const auto pulsi = b.Pulsi();
    ASSERT_EQ(pulsi.size(), attesi.size());
    for (std::size_t i = 0; i < attesi.size(); ++i) {
        EXPECT_NEAR(pulsi[i].first, attesi[i].first, 1e-9);
        EXPECT_EQ(pulsi[i].second, attesi[i].second);
    }
}

TEST(Pulsi, ACustomPatternOfTwentyLettersLightsAllTwentyLamps) {
    BancoPulsi b;
    b.Quando(3.5, [&] { b.stato.MetroSequenza = "abcabcabcabcabcabcab"; });
    b.Clicca(4, "cmdSSmetro");
    const std::array colori = {Rgb(255, 0, 0), Rgb(0, 255, 0), Rgb(0, 0, 255)};
    for (std::size_t i = 0; i < 20; ++i)
        b.Quando(5.5 + static_cast<double>(i), [&, i] {
            EXPECT_TRUE(b.metronomo.lblPuls[i].Visible()) << i;
            EXPECT_EQ(b.Luce(i), colori.at(i % 3)) << i;
        });
    b.Vai(24.9);
    EXPECT_EQ(b.Pulsi().size(), 20U);
}

TEST(Pulsi, TheLampsOfALongerPatternGoOutWhenAShorterOneStarts) {
    BancoPulsi b;
    b.Quando(3.5, [&] { b.stato.MetroSequenza = "abcabcabcabcabcabcab"; });
    b.Clicca(4, "cmdSSmetro");
    b.Clicca(4.5, "cmdSSmetro");
    b.Quando(6, [&] { b.stato.MetroSequenza = "abc"; });
    b.Clicca(7, "cmdSSmetro");
    b.Vai(7.5);
    for (std::size_t i = 0; i < 20; ++i) {
        EXPECT_EQ(b.metronomo.lblPuls[i].Visible(), i < 3) << i;
        EXPECT_EQ(b.Luce(i), 0xAAAAAA) << i;
    }
}

TEST(Pulsi, TheTimeSignatureDoesNothingDuringARun) {
    BancoPulsi b;
    b.Clicca(4, "cmdSSmetro");
    b.Clicca(4.5, "lblTs");
    b.Quando(5.5, [&] { EXPECT_EQ(b.Luce(0), Rgb(255, 0, 0)); });
    b.Vai(6.5);
    EXPECT_EQ(b.metronomo.lblTs.Caption(), "2/4");
    EXPECT_EQ(b.stato.MetroTempo, "2/4");
    EXPECT_EQ(b.stato.MetroSequenza, "ab");
    EXPECT_EQ(b.Luce(1), Rgb(0, 255, 0));
    for (std::size_t i = 0; i < 20; ++i)
        EXPECT_EQ(b.metronomo.lblPuls[i].Visible(), i < 2) << i;
}

TEST(Pulsi, ClosingTheWindowWhileItTicksHasNoEffect) {
    BancoPulsi b;
    b.Clicca(4, "cmdSSmetro");
    b.Chiudi(5.5);
    EXPECT_TRUE(b.Vai(9.5));
    EXPECT_TRUE(b.stato.MetroAttivo);
    EXPECT_EQ(b.Pulsi().size(), 5U);
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(Pulsi, WhileItRunsTheMenusTheSetUpAndTheExitAreOff) {
    BancoPulsi b;
    b.Clicca(4, "cmdSSmetro");
    const auto tutti = [&](bool accesi) {
        for (const char* nome :
             {"Risorse", "es", "Opzioni", "f1", "cmdSetup", "lblCloseMetro", "cmdEsci"})
            EXPECT_EQ(b.finestra.Trova(nome)->Enabled(), accesi) << nome;
    };
    b.Quando(4.5, [&] { tutti(false); });
    b.Clicca(5.5, "cmdSSmetro");
    b.Vai(7);
    tutti(true);
}

TEST(Pulsi, ItsButtonHasTheColourOfAnAnswerWhileItRunsAndOfTheExitAtRest) {
    BancoPulsi b;
    const auto colore = [&] { return b.metronomo.cmdSSmetro.BackColor(); };
    b.Quando(3.5, [&] { EXPECT_EQ(colore(), b.finestra.cmdEsci.BackColor()); });
    b.Clicca(4, "cmdSSmetro");
    b.Quando(4.5, [&] { EXPECT_EQ(colore(), b.finestra.risposte.pdo.BackColor()); });
    b.Clicca(5.5, "cmdSSmetro");
    b.Vai(7);
    EXPECT_EQ(colore(), b.finestra.cmdEsci.BackColor());
    EXPECT_NE(b.finestra.risposte.pdo.BackColor(), b.finestra.cmdEsci.BackColor());
}

TEST(Pulsi, WithNoDeviceItIsSilentAndDarkWithoutAWord) {
    BancoPulsi b;
    b.uscita.esitoOpen = 2;
    b.Clicca(4, "cmdSSmetro");
    b.Clicca(9, "cmdSSmetro");
    b.Vai(10);
    EXPECT_EQ(b.riquadri.messaggi.size(), 1U) << "only the box of the device that didn't open";
    EXPECT_TRUE(b.uscita.messaggi.empty());
    EXPECT_FALSE(b.stato.MetroAttivo);
}

TEST(Pulsi, AFailedMessagesBoxTakesTimeThatIsNotMadeUp) {
    BancoPulsi b;
    b.Clicca(4, "cmdSSmetro");
    b.Quando(4.5, [&] { b.uscita.esitoShortMsg = 6; });
    b.riquadri.durante = [&](const std::string&) {
        b.uscita.esitoShortMsg = 0;
        b.orologio.AspettaFino(5.7);
    };
    b.Vai(8);
    const std::vector<std::pair<double, int>> attesi = {{6.7, 85}, {7.7, 76}};
    const auto pulsi = b.Pulsi();
    ASSERT_EQ(pulsi.size(), 2U);
    for (std::size_t i = 0; i < 2; ++i)
        EXPECT_NEAR(pulsi[i].first, attesi[i].first, 1e-9);
}

}  // namespace corvana::prova
