// The commands around a play.
#include <gtest/gtest.h>

#include "tests/composer/composer_rig.h"

namespace corvana::prova {

namespace {

/// One note of 8 ticks, 0.248 seconds.
struct BancoRitardo : BancoComposer {
    BancoRitardo() { Voce(soprano, "60;", "0.25"); }

    std::string Luci() const {
        std::string luci;
        for (const Figura& luce : finestra.play.Secondo)
            luci += luce.Visible() ? 'x' : '.';
        return luci;
    }
    std::vector<double> Attacchi() const {
        std::vector<double> istanti;
        for (const auto& [istante, messaggio] : uscita.messaggi)
            if (messaggio >> 16 != 0) istanti.push_back(istante);
        return istanti;
    }
};

}  // namespace

TEST(CmdPlay, WithAnEmptySopranoNothingHappensWhateverTheOtherVoicesHold) {
    BancoComposer b;
    b.Voce(contralto, "48;", "1");
    b.passo.modoPasso = true;
    b.finestra.modifica.frmModifica.Visible = true;
    b.Suona();
    EXPECT_TRUE(b.uscita.messaggi.empty());
    EXPECT_EQ(b.TickPassati(), 0);
    EXPECT_TRUE(b.passo.modoPasso);
    EXPECT_TRUE(b.finestra.modifica.frmModifica.Visible());
}

TEST(CmdPlay, EndsTheStepModeHidesItsPanelAndPlaysTheRange) {
    BancoComposer b;
    b.Voce(soprano, "60;62;64;", "0.25");
    b.Tratto(2, 2);
    b.passo.modoPasso = true;
    b.finestra.modifica.frmModifica.Visible = true;
    b.Suona();
    EXPECT_FALSE(b.passo.modoPasso);
    EXPECT_FALSE(b.finestra.modifica.frmModifica.Visible());
    EXPECT_EQ(b.Messaggi(), (Mandati{{1, 1, 62, 96}}));
}

TEST(CmdPlay, IsReachedByAClick) {
    BancoComposer b;
    b.Voce(soprano, "60;", "0.25");
    b.Suona([&] {
        b.Clicca(0, "cmdPlay");
        b.pompa.AttendiEvento(1);
    });
    EXPECT_EQ(b.Messaggi(), (Mandati{{1, 1, 60, 96}, {8, 1, 60, 0}}));
}

TEST(PlayRitardo, FiveLightsGrowByOneASecondThenGoOutAndThePlayBegins) {
    BancoRitardo b;
    std::vector<std::string> luci;
    for (const double istante : {0.5, 1.5, 2.5, 3.5, 4.5, 5.1})
        b.Quando(istante, [&] { luci.push_back(b.Luci()); });
    b.finestra.play.mnuPlayRitardo_Click();
    EXPECT_EQ(luci,
              (std::vector<std::string>{"x....", "xx...", "xxx..", "xxxx.", "xxxxx", "....."}));
    ASSERT_EQ(b.Attacchi().size(), 1U);
    EXPECT_NEAR(b.Attacchi()[0], 5 * 1.002, 1e-9);
    EXPECT_NEAR(b.pompa.Adesso(), 5 * 1.002 + 8 * 0.031, 1e-9);
}

TEST(PlayRitardo, WithAnEmptySopranoThereIsNeitherLightNorWait) {
    BancoComposer b;
    b.Voce(contralto, "48;", "1");
    b.specchio.registra = true;
    b.finestra.play.mnuPlayRitardo_Click();
    EXPECT_EQ(b.pompa.Adesso(), 0);
    EXPECT_TRUE(b.specchio.cambi.empty());
}

TEST(PlayRitardo, TheMenuEntryStartsItAndClicksWaitForTheNextLight) {
    BancoRitardo b;
    b.Clicca(0, "mnuPlayRitardo");
    b.Clicca(0.5, "VoceAttiva1");
    std::string prima, dopo;
    b.Quando(0.9, [&] { prima = b.melodia.voceAttiva; });
    b.Quando(1.1, [&] { dopo = b.melodia.voceAttiva; });
    b.pompa.AttendiEvento(1);
    EXPECT_EQ(prima, "soprano");
    EXPECT_EQ(dopo, "contralto");
}

TEST(PlayRitardo, WhatIsSetInItsLastSecondCountsForTheFirstNote) {
    BancoRitardo b;
    b.Fa(4.5, Fatto::Change, "VolS", 50);
    b.Suona([&] { b.finestra.play.mnuPlayRitardo_Click(); });
    EXPECT_EQ(b.Messaggi().front().velocita, 48);
}

TEST(PlayRitardo, APlayAskedForMeanwhileBeginsWithTheNextLightAndTheWaitGoesOnBehindIt) {
    BancoRitardo b;
    b.Clicca(1.5, "cmdPlay");
    b.finestra.play.mnuPlayRitardo_Click();
    ASSERT_EQ(b.Attacchi().size(), 2U);
    EXPECT_NEAR(b.Attacchi()[0], 2 * 1.002, 1e-9);
    EXPECT_NEAR(b.Attacchi()[1], 5 * 1.002 + 8 * 0.031, 1e-9);
}

TEST(PlayRitardo, DuringAPlayItHoldsThePlayForFiveSecondsAndStopsIt) {
    BancoRitardo b;
    b.CliccaNelTick(3, "mnuPlayRitardo");
    b.Suona();
    EXPECT_EQ(b.Messaggi().front(), (Mandato{1, 1, 60, 96}));
    EXPECT_EQ(b.Messaggi().size(), 1U);
    EXPECT_NEAR(b.pompa.Adesso(), 3 * 0.031 + 5 * 1.002, 1e-9);
    EXPECT_EQ(b.Luci(), ".....");
    EXPECT_EQ(b.uscita.NoteAccese().size(), 0U);
}

TEST(PlayRitardo, AMelodyEmptiedMeanwhileIsntPlayed) {
    BancoRitardo b;
    b.Quando(2.5, [&] { b.finestra.cmdReset_Click(); });
    b.finestra.play.mnuPlayRitardo_Click();
    EXPECT_TRUE(b.Attacchi().empty());
    EXPECT_EQ(b.Luci(), ".....");
}

TEST(PlayRitardo, AWindowClosedMeanwhileIsntPlayedAndItsLightsGoOut) {
    BancoRitardo b;
    b.finestra.play.chekLoop.Value = true;
    b.Fa(2.5, Fatto::Chiudi, "");
    b.Fine(60);
    EXPECT_FALSE(b.SvolgiCopione([&] { b.finestra.play.mnuPlayRitardo_Click(); }));
    EXPECT_EQ(b.specchio.chiuse, std::vector<std::string>{"frmComposer"});
    EXPECT_TRUE(b.Attacchi().empty());
    EXPECT_EQ(b.Luci(), ".....");
    EXPECT_NEAR(b.pompa.Adesso(), 3 * 1.002, 1e-9);
}

TEST(TickFinoANota, IsTheSumOfTheSopranosNotesUpToTheIndexAndNoughtBelowTheFirst) {
    BancoComposer b;
    const std::string terzo = "0.333333333333333;";
    b.Voce(soprano, "60;62;64;65;", "1;" + terzo + terzo + terzo, "n;n;p;n;");
    b.Voce(contralto, "48;", "4");
    const std::vector<Tick> somme = {32, 43, 54, 64};
    for (std::size_t i = 0; i < somme.size(); ++i)
        EXPECT_EQ(b.finestra.play.TickFinoANota(static_cast<std::int16_t>(i)), somme[i]) << i;
    EXPECT_EQ(b.finestra.play.TickFinoANota(-1), 0);
    EXPECT_EQ(b.finestra.play.TickFinoANota(-300), 0);
}

TEST(CalcolaTickTotali, IsTheLongestVoiceAndMinus1WithoutAny) {
    BancoComposer b;
    const auto totali = [&] {
        b.finestra.play.CalcolaTickTotali();
        return b.stato.tickTotali;
    };
    EXPECT_EQ(totali(), -1);
    b.Voce(soprano, "60;62;", "1");
    EXPECT_EQ(totali(), 64);
    b.Voce(basso, "36;", "2.5");
    EXPECT_EQ(totali(), 80);
    b.Voce(contralto, "48;", "0.5");
    EXPECT_EQ(totali(), 80);
    b.Voce(soprano, "", "", "");
    b.Voce(basso, "", "", "");
    EXPECT_EQ(totali(), 16);
}

TEST(CalcolaTickTotali, EachVoiceHasItsOwnTally) {
    BancoComposer b;
    b.Voce(soprano, "60;62;", "0.333333333333333");
    b.Voce(contralto, "48;50;", "0.333333333333333");
    b.finestra.play.CalcolaTickTotali();
    // A tally that went on would make the contralto's first note the third of a group.
    EXPECT_EQ(b.stato.tickTotali, 22);
    b.Voce(contralto, "48;50;52;53;", "0.333333333333333");
    b.finestra.play.CalcolaTickTotali();
    EXPECT_EQ(b.stato.tickTotali, 43);
}

TEST(CalcolaTickTotali, SumsBeyond16BitsAreRight) {
    BancoComposer b;
    std::string note;
    for (int i = 0; i < 32767; ++i)
        note += "60;";
    b.Voce(basso, note, "48");
    b.finestra.play.CalcolaTickTotali();
    EXPECT_EQ(b.stato.tickTotali, 32767 * 1536);
}

}  // namespace corvana::prova
