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
    EXPECT_EQ(b.f.pulsi.lblTs.Caption(), "On");
    EXPECT_TRUE(b.f.pulsi.battuta.metroAttivo);
    EXPECT_TRUE(b.f.pulsi.frMetro.Visible());
    EXPECT_EQ(b.f.pulsi.lblTs.BackColor(), Rgb(0, 255, 0));
    EXPECT_EQ(b.f.pulsi.lblTs.ForeColor(), Rgb(0, 0, 255));
    EXPECT_FALSE(b.f.pulsi.lblDebug.Visible());
}

TEST(MetronomoMelodia, AClickOnOnTurnsItOffAndHidesThePanelAndTheCounter) {
    BancoMetronomo b;
    b.f.pulsi.lblTs_Click();
    b.f.pulsi.lblDebug.Visible = true;
    b.Subito(Fatto::Click, "lblTs");
    EXPECT_EQ(b.f.pulsi.lblTs.Caption(), "Off");
    EXPECT_FALSE(b.f.pulsi.battuta.metroAttivo);
    EXPECT_FALSE(b.f.pulsi.frMetro.Visible());
    EXPECT_FALSE(b.f.pulsi.lblDebug.Visible());
    EXPECT_EQ(b.f.pulsi.lblTs.BackColor(), Rgb(255, 0, 0));
    EXPECT_EQ(b.f.pulsi.lblTs.ForeColor(), Rgb(255, 255, 255));
}

TEST(MetronomoMelodia, AnyOtherCaptionDoesNothing) {
    BancoMetronomo b;
    b.f.pulsi.lblTs.Caption = "on";
    b.Subito(Fatto::Click, "lblTs");
    EXPECT_EQ(b.f.pulsi.lblTs.Caption(), "on");
    EXPECT_FALSE(b.f.pulsi.battuta.metroAttivo);
    EXPECT_FALSE(b.f.pulsi.frMetro.Visible());
}

TEST(MetronomoMelodia, AChoiceOfPulsesSetsLettersLastPulseAndTheWayOfTheBar) {
    const std::array<std::string, 9> lettere = {
        "a", "ab", "abb", "abbb", "abbcb", "abbcbb", "abbbcbb", "abbbcbbb", "abbcbbcbb"};
    BancoMetronomo b;
    b.f.pulsi.lblTs_Click();
    for (int pulsi = 1; pulsi <= 9; ++pulsi) {
        b.ScegliPulsi(pulsi);
        EXPECT_EQ(b.f.pulsi.Pulsazioni.Text(), std::to_string(pulsi));
        EXPECT_EQ(b.f.pulsi.battuta.pattern, lettere.at(static_cast<std::size_t>(pulsi) - 1));
        EXPECT_EQ(b.f.pulsi.battuta.ultimoPulso, pulsi - 1);
        EXPECT_EQ(b.f.pulsi.InizioPuls.Min(), pulsi);
        EXPECT_EQ(b.f.pulsi.InizioPuls.Max(), 1);
    }
}

TEST(MetronomoMelodia, AChoiceOfPulsesGoesBackToTheFirstOne) {
    BancoMetronomo b;
    b.f.pulsi.lblTs_Click();
    b.ScegliPulsi(9);
    b.Subito(Fatto::Change, "InizioPuls", 9);
    ASSERT_EQ(b.f.pulsi.battuta.pulsoIniziale, 8);
    b.ScegliPulsi(4);
    EXPECT_EQ(b.f.pulsi.InizioPuls.Value(), 1);
    EXPECT_EQ(b.f.pulsi.LblInizioPuls.Caption(), "1");
    EXPECT_EQ(b.f.pulsi.battuta.pulsoIniziale, 0);
    b.f.pulsi.LblInizioPuls.Caption = "4";
    b.ScegliPulsi(4);
    EXPECT_EQ(b.f.pulsi.LblInizioPuls.Caption(), "1");
}

TEST(MetronomoMelodia, AChoiceOfTheLengthSetsThePulsesQuarters) {
    constexpr std::array quarti = {4.0, 2.0, 1.0, 0.5, 0.25};
    BancoMetronomo b;
    b.f.pulsi.lblTs_Click();
    for (std::size_t riga = 0; riga < quarti.size(); ++riga) {
        b.Subito(Fatto::Click, "DurataPulsazioni", static_cast<int>(riga));
        EXPECT_EQ(b.f.pulsi.battuta.durataPulso, quarti.at(riga));
    }
    EXPECT_EQ(b.f.pulsi.battuta.pattern, "ab");
}

TEST(MetronomoMelodia, TheBarShowsThePulseToBeginWithAndSetsItsIndex) {
    BancoMetronomo b;
    b.f.pulsi.lblTs_Click();
    b.ScegliPulsi(5);
    for (int valore = 5; valore >= 1; --valore) {
        b.Subito(Fatto::Change, "InizioPuls", valore);
        EXPECT_EQ(b.f.pulsi.LblInizioPuls.Caption(), std::to_string(valore));
        EXPECT_EQ(b.f.pulsi.battuta.pulsoIniziale, valore - 1);
    }
}

TEST(MetronomoMelodia, ItsSettingsDontMarkTheMelody) {
    BancoMetronomo b;
    b.Voce(soprano, "60;", "1");
    b.f.pulsi.lblTs_Click();
    b.ScegliPulsi(5);
    b.Subito(Fatto::Click, "DurataPulsazioni", 3);
    b.Subito(Fatto::Change, "InizioPuls", 2);
    EXPECT_FALSE(b.f.stato.lblModificato.Visible());
}

TEST(MetronomoMelodia, ADoubleClickOnItsHeadingShowsAndHidesTheCounterWhileThePanelIsThere) {
    BancoMetronomo b;
    b.Subito(Fatto::DblClick, "Label6");
    EXPECT_FALSE(b.f.pulsi.lblDebug.Visible());
    b.f.pulsi.lblTs_Click();
    b.Subito(Fatto::DblClick, "Label6");
    EXPECT_TRUE(b.f.pulsi.lblDebug.Visible());
    b.Subito(Fatto::DblClick, "Label6");
    EXPECT_FALSE(b.f.pulsi.lblDebug.Visible());
}

TEST(MetronomoMelodia, NinePulsesFromTheBarsTopEndBeginOnTheNinthLetter) {
    BancoMetronomo b;
    b.Voce(soprano, "60;", "4");
    b.f.pulsi.lblTs_Click();
    b.ScegliPulsi(9);
    b.Subito(Fatto::Change, "InizioPuls", b.f.pulsi.InizioPuls.Min());
    EXPECT_EQ(b.f.pulsi.battuta.pulsoIniziale, 8);
    b.Suona();
    // The ninth letter is a weak pulse, the first a strong one.
    std::vector<int> pulsi;
    for (const Mandato& m : b.Messaggi(10))
        if (m.velocita) pulsi.push_back(m.nota);
    EXPECT_EQ(pulsi, (std::vector<int>{36, 81, 36, 36}));
}

}  // namespace corvana::prova
