// What a whole play sends, and when.
#include "composer/playback.h"

#include <gtest/gtest.h>

#include "tests/composer/composer_rig.h"

namespace corvana::prova {

TEST(Riproduzione, AtTempo60AQuarterIs32TicksWithItsNoteOnInTheFirstAndItsNoteOffInTheLast) {
    BancoComposer b;
    b.Voce(soprano, "60;62;", "1");
    b.Suona();
    EXPECT_EQ(b.Messaggi(),
              (Mandati{{1, 1, 60, 96}, {32, 1, 60, 0}, {33, 1, 62, 96}, {64, 1, 62, 0}}));
    EXPECT_EQ(b.TickPassati(), 64);
    // A tick sleeps for 29 milliseconds, and a sleep lasts 2 longer than asked.
    EXPECT_NEAR(b.pompa.Adesso(), 64 * 0.031, 1e-9);
}

TEST(Riproduzione, ADottedEighthIs24TicksStaccatoItIsReleasedInTick4AndAppoggiatoInTick12) {
    BancoComposer b;
    b.Voce(soprano, "60;60;60;60;", "0.75;0.75;0.75;0,75;", "n;s;t;a;");
    b.Suona();
    EXPECT_EQ(b.Messaggi(), (Mandati{{1, 1, 60, 96},
                                     {24, 1, 60, 0},
                                     {25, 1, 60, 118},
                                     {28, 1, 60, 0},
                                     {49, 1, 60, 98},
                                     {60, 1, 60, 0},
                                     {73, 1, 60, 125},
                                     {96, 1, 60, 0}}));
    EXPECT_EQ(b.TickPassati(), 96);
}

TEST(Riproduzione, ThreeTripletEighthsAre11And11And10Ticks) {
    BancoComposer b;
    b.Voce(soprano, "60;62;64;65;", "0.333333333333333;0.333333333333333;0.333333333333333;1;",
           "n;n;n;n;");
    b.Suona();
    EXPECT_EQ(b.Messaggi(), (Mandati{{1, 1, 60, 96},
                                     {11, 1, 60, 0},
                                     {12, 1, 62, 96},
                                     {22, 1, 62, 0},
                                     {23, 1, 64, 96},
                                     {32, 1, 64, 0},
                                     {33, 1, 65, 96},
                                     {64, 1, 65, 0}}));
}

TEST(Riproduzione, AVoiceOfOnlyTwoTripletNotesLeavesTheTallyOpenAndNothingIsCorrected) {
    BancoComposer b;
    b.Voce(soprano, "60;62;64;", "0.333333333333333;0.333333333333333;1;", "n;n;n;");
    b.Voce(contralto, "48;50;", "0.666666666666667;0.666666666666667;", "n;n;");
    b.Suona();
    EXPECT_EQ(b.Messaggi(1), (Mandati{{1, 1, 60, 96},
                                      {11, 1, 60, 0},
                                      {12, 1, 62, 96},
                                      {22, 1, 62, 0},
                                      {23, 1, 64, 96},
                                      {54, 1, 64, 0}}));
    EXPECT_EQ(b.Messaggi(2),
              (Mandati{{1, 2, 48, 96}, {21, 2, 48, 0}, {22, 2, 50, 96}, {42, 2, 50, 0}}));
    EXPECT_EQ(b.TickPassati(), 54);
}

TEST(Riproduzione, EachVoiceKeepsATallyOfItsOwn) {
    BancoComposer b;
    const std::string terzina = "0.333333333333333;0.333333333333333;0.333333333333333;";
    b.Voce(soprano, "60;00;62;", "0.333333333333333;0.333333333333333;0.333333333333333;",
           "n;p;n;");
    b.Voce(contralto, "48;50;52;", terzina, "n;n;n;");
    b.Suona();
    // A rest counts in the tally like a note.
    EXPECT_EQ(b.Messaggi(1),
              (Mandati{{1, 1, 60, 96}, {11, 1, 60, 0}, {23, 1, 62, 96}, {32, 1, 62, 0}}));
    EXPECT_EQ(b.Messaggi(2), (Mandati{{1, 2, 48, 96},
                                      {11, 2, 48, 0},
                                      {12, 2, 50, 96},
                                      {22, 2, 50, 0},
                                      {23, 2, 52, 96},
                                      {32, 2, 52, 0}}));
}

TEST(Riproduzione, WithAContraltoLongerThanTheSopranoThePlayGoesOnToTheEndOfTheLongestVoice) {
    BancoComposer b;
    b.Voce(soprano, "60;", "1");
    b.Voce(contralto, "48;50;", "1");
    b.Voce(basso, "36;", "4");
    b.Suona();
    EXPECT_EQ(b.Messaggi(), (Mandati{{1, 1, 60, 96},
                                     {1, 2, 48, 96},
                                     {1, 4, 36, 96},
                                     {32, 1, 60, 0},
                                     {32, 2, 48, 0},
                                     {33, 2, 50, 96},
                                     {64, 2, 50, 0},
                                     {128, 4, 36, 0}}));
    EXPECT_EQ(b.TickPassati(), 128);
}

TEST(Riproduzione, OneNoteOf1TickMakesTheTickLoopRunOnceAndNothingSounds) {
    BancoComposer b;
    b.Voce(soprano, "60;", "0.03125");
    b.Suona();
    EXPECT_EQ(b.stato.tickTotali, 1);
    EXPECT_EQ(b.TickPassati(), 1);
    EXPECT_EQ(b.Messaggi(), Mandati{});
}

TEST(Riproduzione, NotesTooShortForTheirAttributeNeverSoundButTheirTimePasses) {
    BancoComposer b;
    // 1 tick; staccato of 8 and of 10; appoggiato of 2 and of 4; then a plain one of 2.
    b.Voce(soprano, "60;61;62;63;64;65;", "0.03125;0.25;0.3125;0.0625;0.125;0.0625;",
           "n;s;s;t;t;n;");
    b.Suona();
    EXPECT_EQ(b.Messaggi(), (Mandati{{10, 1, 62, 118},
                                     {11, 1, 62, 0},
                                     {22, 1, 64, 98},
                                     {23, 1, 64, 0},
                                     {26, 1, 65, 96},
                                     {27, 1, 65, 0}}));
    EXPECT_EQ(b.TickPassati(), 27);
}

TEST(Riproduzione, ARestSendsNothingAndItsTicksPass) {
    BancoComposer b;
    b.Voce(soprano, "60;00;62;00;", "0.25;0.5;0.25;0.25;", "n;p;n;p;");
    b.Suona();
    EXPECT_EQ(b.Messaggi(),
              (Mandati{{1, 1, 60, 96}, {8, 1, 60, 0}, {25, 1, 62, 96}, {32, 1, 62, 0}}));
    EXPECT_EQ(b.TickPassati(), 40);
}

TEST(Riproduzione, ATiedNoteIsOneTokenOfTheSummedDurationAndIsStruckOnce) {
    BancoComposer b;
    b.Voce(soprano, "60;", "5.5");
    b.Suona();
    EXPECT_EQ(b.Messaggi(), (Mandati{{1, 1, 60, 96}, {176, 1, 60, 0}}));
}

TEST(Riproduzione, AnUnknownAttributeKeepsTheVelocityAndTheGateOfTheNoteBefore) {
    BancoComposer b;
    b.Voce(soprano, "60;62;64;", "0.75;1;1;", "s;x;;");
    b.Suona();
    EXPECT_EQ(b.Messaggi(), (Mandati{{1, 1, 60, 118},
                                     {4, 1, 60, 0},
                                     {25, 1, 62, 118},
                                     {28, 1, 62, 0},
                                     {57, 1, 64, 118},
                                     {60, 1, 64, 0}}));
}

TEST(Riproduzione, AGateThatOutlastsItsNoteJoinsItToTheNext) {
    BancoComposer b;
    b.Voce(soprano, "60;62;62;", "1;0.5;2;", "n;x;n;");
    b.Suona();
    EXPECT_EQ(b.Messaggi(),
              (Mandati{{1, 1, 60, 96}, {32, 1, 60, 0}, {33, 1, 62, 96}, {112, 1, 62, 0}}));
}

TEST(Riproduzione, AFailingMessageIsToldAndThePlayCarriesOn) {
    BancoComposer b;
    b.Voce(soprano, "60;62;", "1");
    b.uscita.esitoShortMsg = 67;
    b.NelTick(32, [&] { b.uscita.esitoShortMsg = 0; });
    b.Suona();
    EXPECT_EQ(b.riquadri.messaggi,
              (std::vector<std::string>(2, "Operation:ShortMsg\r\nerror text 67")));
    EXPECT_EQ(b.Messaggi(), (Mandati{{33, 1, 62, 96}, {64, 1, 62, 0}}));
    EXPECT_EQ(b.TickPassati(), 64);
}

TEST(Riproduzione, AVoiceOfTwoThousandWholeNotesPlaysToItsEnd) {
    BancoComposer b;
    std::string note;
    for (int i = 0; i < 2000; ++i)
        note += i % 2 ? "62;" : "60;";
    b.Voce(soprano, note, "4");
    b.melodia.tempo = 250;
    b.Suona();
    EXPECT_EQ(b.stato.tickTotali, 256000);
    EXPECT_EQ(b.TickPassati(), 256000);
    Mandati attesi;
    for (int i = 0; i < 2000; ++i) {
        attesi.push_back({i * 128 + 1, 1, i % 2 ? 62 : 60, 96});
        attesi.push_back({i * 128 + 128, 1, i % 2 ? 62 : 60, 0});
    }
    EXPECT_EQ(b.Messaggi(), attesi);
    EXPECT_EQ(b.finestra.play.Cursore.Left(), 2190);
}

}  // namespace corvana::prova
