// The pulses that tick along with a melody.
#include <gtest/gtest.h>

#include "tests/composer/composer_rig.h"

namespace corvana::prova {

namespace {

/// The metronome is on, its pulses of 8 ticks; the melody is of plain notes of so many ticks.
struct BancoPulsi : BancoComposer {
    explicit BancoPulsi(const std::string& pulsazioni, std::vector<int> tick = {32}) {
        std::string note, durate, attributi;
        for (const int t : tick) {
            note += "60;";
            durate += std::to_string(t * 0.03125) + ";";
            attributi += "n;";
        }
        Voce(soprano, note, durate, attributi);
        finestra.pulsi.lblTs_Click();
        finestra.pulsi.Pulsazioni.PonTesto(pulsazioni);
        finestra.pulsi.DurataPulsazioni.PonTesto("16");
    }

    Mandati Pulsi() {
        Suona();
        return Messaggi(10);
    }
};

}  // namespace

TEST(PulsiRiproduzione, APulseOf8TicksIsHeldFor7AndReleasedOnThe8thAndTheNextStartsOnTheNext) {
    BancoPulsi b("2");
    EXPECT_EQ(b.Pulsi(), (Mandati{{1, 10, 81, 120},
                                  {8, 10, 81, 0},
                                  {9, 10, 36, 120},
                                  {16, 10, 36, 0},
                                  {17, 10, 81, 120},
                                  {24, 10, 81, 0},
                                  {25, 10, 36, 120},
                                  {32, 10, 36, 0}}));
}

TEST(PulsiRiproduzione, InATickThePulseGoesBeforeTheVoices) {
    BancoPulsi b("1", {8});
    b.Suona();
    EXPECT_EQ(b.Messaggi(),
              (Mandati{{1, 10, 81, 120}, {1, 1, 60, 96}, {8, 10, 81, 0}, {8, 1, 60, 0}}));
}

TEST(PulsiRiproduzione, BehindTheLastLetterThePulsesWrapToIndex0NotToTheStartPulse) {
    BancoPulsi b("3");
    b.finestra.pulsi.InizioPuls.PonValore(2);
    EXPECT_EQ(b.Pulsi(), (Mandati{{1, 10, 36, 120},
                                  {8, 10, 36, 0},
                                  {9, 10, 36, 120},
                                  {16, 10, 36, 0},
                                  {17, 10, 81, 120},
                                  {24, 10, 81, 0},
                                  {25, 10, 36, 120},
                                  {32, 10, 36, 0}}));
}

TEST(PulsiRiproduzione, ALetterThatIsNoneKeepsTheKeyBeforeAlsoThatOfThePlayBefore) {
    BancoPulsi b("2", {24});
    b.finestra.pulsi.battuta.pattern = "xcx";
    b.finestra.pulsi.battuta.ultimoPulso = 2;
    const auto pulsi = [](int primo) {
        return Mandati{{1, 10, primo, 120}, {8, 10, primo, 0}, {9, 10, 46, 120},
                       {16, 10, 46, 0},     {17, 10, 46, 120}, {24, 10, 46, 0}};
    };
    EXPECT_EQ(b.Pulsi(), pulsi(0));
    EXPECT_EQ(b.Pulsi(), pulsi(46));
}

TEST(PulsiRiproduzione, TheVolumeIsReadAtEachPulse) {
    BancoPulsi b("1", {24});
    b.finestra.pulsi.VolumeMetro.Value = 20;
    b.Fa(0.031 * 5, Fatto::Change, "VolumeMetro", 120);
    b.Fa(0.031 * 10, Fatto::Change, "VolumeMetro", 0);
    EXPECT_EQ(b.Pulsi(), (Mandati{{1, 10, 81, 100},
                                  {8, 10, 81, 0},
                                  {9, 10, 81, 0},
                                  {16, 10, 81, 0},
                                  {17, 10, 81, 120},
                                  {24, 10, 81, 0}}));
}

TEST(PulsiRiproduzione, ARangeFromTheFirstNoteBeginsAtIndex0WhateverTheStartPulse) {
    BancoPulsi b("3", {16, 16});
    b.finestra.pulsi.InizioPuls.PonValore(2);
    b.Tratto(1, 1);
    EXPECT_EQ(b.Pulsi(),
              (Mandati{{1, 10, 81, 120}, {8, 10, 81, 0}, {9, 10, 36, 120}, {16, 10, 36, 0}}));
    EXPECT_EQ(b.TickPassati(), 15);
}

TEST(PulsiRiproduzione, ALaterRangeBeginsWhereThePulsesFromTheStartPulseOnHaveCome) {
    BancoPulsi b("4", {19, 16, 8});
    b.finestra.pulsi.InizioPuls.PonValore(3);
    b.Tratto(2, 2);
    // Two pulses and 3 ticks lie before the range: the third and the fourth, and of the first 3.
    EXPECT_EQ(b.Pulsi(), (Mandati{{1, 10, 81, 120},
                                  {5, 10, 81, 0},
                                  {6, 10, 36, 120},
                                  {13, 10, 36, 0},
                                  {14, 10, 36, 120},
                                  {16, 10, 36, 0}}));
}

TEST(PulsiRiproduzione, ARangeThatBeginsWithAPulsesLastTickHasTheNextPulseATickLonger) {
    BancoPulsi b("2", {7, 16, 8});
    b.Tratto(2, 2);
    EXPECT_EQ(b.Pulsi(),
              (Mandati{{1, 10, 36, 120}, {9, 10, 36, 0}, {10, 10, 81, 120}, {16, 10, 81, 0}}));
}

TEST(PulsiRiproduzione, TurnedOnDuringAPlayItTicksFromTheNextPlayOn) {
    BancoPulsi b("2", {16});
    b.finestra.pulsi.lblTs_Click();
    b.CliccaNelTick(2, "lblTs");
    EXPECT_EQ(b.Pulsi(), Mandati{});
    EXPECT_TRUE(b.finestra.pulsi.battuta.metroAttivo);
    EXPECT_EQ(b.Pulsi(),
              (Mandati{{1, 10, 81, 120}, {8, 10, 81, 0}, {9, 10, 36, 120}, {16, 10, 36, 0}}));
}

TEST(PulsiRiproduzione, TurnedOffAndOnDuringAPlayItGoesOnWhereItStood) {
    BancoPulsi b("2", {32});
    b.CliccaNelTick(3, "lblTs");
    b.CliccaNelTick(10, "lblTs");
    EXPECT_EQ(b.Pulsi(), (Mandati{{1, 10, 81, 120},
                                  {15, 10, 81, 0},
                                  {16, 10, 36, 120},
                                  {23, 10, 36, 0},
                                  {24, 10, 81, 120},
                                  {31, 10, 81, 0},
                                  {32, 10, 36, 120},
                                  {33, 10, 36, 0}}));
}

TEST(PulsiRiproduzione, APulseThatSoundsAtTheEndOfThePlayIsReleasedThere) {
    BancoPulsi b("2", {12});
    EXPECT_EQ(b.Pulsi(),
              (Mandati{{1, 10, 81, 120}, {8, 10, 81, 0}, {9, 10, 36, 120}, {13, 10, 36, 0}}));
    EXPECT_EQ(b.stato.pulso.pulsoCorrente, 0);
    EXPECT_FALSE(b.stato.pulso.pulsoDeveSuonare);
}

TEST(PulsiRiproduzione, APulseIsReleasedByTheKeyThatItWasStruckWith) {
    BancoPulsi b("4", {32});
    b.NelTick(26, [&] { b.finestra.pulsi.Pulsazioni.PonTesto("5"); });
    EXPECT_EQ(b.Pulsi(), (Mandati{{1, 10, 81, 120},
                                  {8, 10, 81, 0},
                                  {9, 10, 36, 120},
                                  {16, 10, 36, 0},
                                  {17, 10, 36, 120},
                                  {24, 10, 36, 0},
                                  {25, 10, 36, 120},
                                  {32, 10, 36, 0}}));
}

TEST(PulsiRiproduzione, WithFewerPulsesThanTheOneThatStandsNoneFollowsInThisPlay) {
    BancoPulsi b("3", {32});
    b.NelTick(20, [&] { b.finestra.pulsi.Pulsazioni.PonTesto("1"); });
    EXPECT_EQ(b.Pulsi(), (Mandati{{1, 10, 81, 120},
                                  {8, 10, 81, 0},
                                  {9, 10, 36, 120},
                                  {16, 10, 36, 0},
                                  {17, 10, 36, 120},
                                  {33, 10, 36, 0}}));
}

TEST(PulsiRiproduzione, TheLengthOfAPulseIsReadOnceAndTheStartPulseAtTheBeginning) {
    BancoPulsi b("2", {16});
    b.NelTick(2, [&] {
        b.finestra.pulsi.DurataPulsazioni.PonTesto("4");
        b.finestra.pulsi.InizioPuls.PonValore(2);
    });
    EXPECT_EQ(b.Pulsi(),
              (Mandati{{1, 10, 81, 120}, {8, 10, 81, 0}, {9, 10, 36, 120}, {16, 10, 36, 0}}));
    EXPECT_EQ(b.Pulsi(), (Mandati{{1, 10, 36, 120}, {17, 10, 36, 0}}));
}

TEST(PulsiRiproduzione, TheCounterCountsPulsesOnlyWhileItIsShown) {
    BancoPulsi b("2", {32});
    b.NelTick(10, [&] { b.finestra.pulsi.lblDebug.Visible = true; });
    b.Suona();
    EXPECT_EQ(b.finestra.pulsi.lblDebug.Caption(), "2");
    b.Suona();
    EXPECT_EQ(b.finestra.pulsi.lblDebug.Caption(), "6");
    b.finestra.pulsi.lblDebug.Visible = false;
    b.Suona();
    EXPECT_EQ(b.finestra.pulsi.lblDebug.Caption(), "6");
}

TEST(PulsiRiproduzione, WithTheMetronomeOffThereAreNone) {
    BancoPulsi b("2", {32});
    b.finestra.pulsi.lblTs_Click();
    EXPECT_EQ(b.Pulsi(), Mandati{});
}

}  // namespace corvana::prova
