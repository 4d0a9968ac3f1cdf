// The panel of the metronome that ticks along with a melody.
#include <gtest/gtest.h>

#include "tests/composer/composer_rig.h"

namespace corvana::prova {

namespace {

struct BancoMetronomo : BancoComposer {
    frmComposer& f = finestra;
    void ScegliPulsi(int pulsi) { Subito(Fatto::Click, "Pulsazioni", pulsi - 1); }
};

}  // namespace

TEST(MetronomoMelodia, AClickOnOffTurnsItOnAndShowsItsPanel) {
    BancoMetronomo b;
    b.Subito(Fatto::Click, "lblTs");
    EXPECT_EQ(b.f.lblTs.Caption(), "On");
    EXPECT_TRUE(b.f.metroAttivo);
    EXPECT_TRUE(b.f.frMetro.Visible());
    EXPECT_EQ(b.f.lblTs.BackColor(), Rgb(0, 255, 0));
    EXPECT_EQ(b.f.lblTs.ForeColor(), Rgb(0, 0, 255));
    EXPECT_FALSE(b.f.lblDebug.Visible());
}

TEST(MetronomoMelodia, AClickOnOnTurnsItOffAndHidesThePanelAndTheCounter) {
    BancoMetronomo b;
    b.f.lblTs_Click();
    b.f.lblDebug.Visible = true;
    b.Subito(Fatto::Click, "lblTs");
    EXPECT_EQ(b.f.lblTs.Caption(), "Off");
    EXPECT_FALSE(b.f.metroAttivo);
    EXPECT_FALSE(b.f.frMetro.Visible());
    EXPECT_FALSE(b.f.lblDebug.Visible());
    EXPECT_EQ(b.f.lblTs.BackColor(), Rgb(255, 0, 0));
    EXPECT_EQ(b.f.lblTs.ForeColor(), Rgb(255, 255, 255));
}

TEST(MetronomoMelodia, AnyOtherCaptionDoesNothing) {
    BancoMetronomo b;
    b.f.lblTs.Caption = "on";
    b.Subito(Fatto::Click, "lblTs");
    EXPECT_EQ(b.f.lblTs.Caption(), "on");
    EXPECT_FALSE(b.f.metroAttivo);
    EXPECT_FALSE(b.f.frMetro.Visible());
}

TEST(MetronomoMelodia, AChoiceOfPulsesSetsLettersLastPulseAndTheWayOfTheBar) {
    const std::array<std::string, 9> lettere = {
        "a", "ab", "abb", "abbb", "abbcb", "abbcbb", "abbbcbb", "abbbcbbb", "abbcbbcbb"};
    BancoMetronomo b;
    b.f.lblTs_Click();
    for (int pulsi = 1; pulsi <= 9; ++pulsi) {
        b.ScegliPulsi(pulsi);
        EXPECT_EQ(b.f.Pulsazioni.Text(), std::to_string(pulsi));
        EXPECT_EQ(b.f.pattern, lettere.at(static_cast<std::size_t>(pulsi) - 1));
        EXPECT_EQ(b.f.ultimoPulso, pulsi - 1);
        EXPECT_EQ(b.f.InizioPuls.Min(), pulsi);
        EXPECT_EQ(b.f.InizioPuls.Max(), 1);
    }
}

TEST(MetronomoMelodia, AChoiceOfPulsesGoesBackToTheFirstOne) {
    BancoMetronomo b;
    b.f.lblTs_Click();
    b.ScegliPulsi(9);
    b.Subito(Fatto::Change, "InizioPuls", 9);
    ASSERT_EQ(b.f.pulsoIniziale, 8);
    b.ScegliPulsi(4);
    EXPECT_EQ(b.f.InizioPuls.Value(), 1);
    EXPECT_EQ(b.f.LblInizioPuls.Caption(), "1");
    EXPECT_EQ(b.f.pulsoIniziale, 0);
    b.f.LblInizioPuls.Caption = "4";
    b.ScegliPulsi(4);
    EXPECT_EQ(b.f.LblInizioPuls.Caption(), "1");
}

TEST(MetronomoMelodia, AChoiceOfTheLengthSetsThePulsesQuarters) {
    constexpr std::array quarti = {4.0, 2.0, 1.0, 0.5, 0.25};
    BancoMetronomo b;
    b.f.lblTs_Click();
    for (std::size_t riga = 0; riga < quarti.size(); ++riga) {
        b.Subito(Fatto::Click, "DurataPulsazioni", static_cast<int>(riga));
        EXPECT_EQ(b.f.durataPulso, quarti.at(riga));
    }
    EXPECT_EQ(b.f.pattern, "ab");
}

TEST(MetronomoMelodia, TheBarShowsThePulseToBeginWithAndSetsItsIndex) {
    BancoMetronomo b;
    b.f.lblTs_Click();
    b.ScegliPulsi(5);
    for (int valore = 5; valore >= 1; --valore) {
        b.Subito(Fatto::Change, "InizioPuls", valore);
        EXPECT_EQ(b.f.LblInizioPuls.Caption(), std::to_string(valore));
        EXPECT_EQ(b.f.pulsoIniziale, valore - 1);
    }
}

TEST(MetronomoMelodia, ItsSettingsDontMarkTheMelody) {
    BancoMetronomo b;
    b.Voce(soprano, "60;", "1");
    b.f.lblTs_Click();
    b.ScegliPulsi(5);
    b.Subito(Fatto::Click, "DurataPulsazioni", 3);
    b.Subito(Fatto::Change, "InizioPuls", 2);
    EXPECT_FALSE(b.f.lblModificato.Visible());
}

}  // namespace corvana::prova
