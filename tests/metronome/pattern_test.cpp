#include "metronome/pattern.h"

#include <gtest/gtest.h>

namespace corvana {

TEST(Metri, AClickMovesThroughTheFourMetersAndBackToTheFirst) {
    EXPECT_EQ(MetroDopo("2/4").tempo, "3/4");
    EXPECT_EQ(MetroDopo("3/4").tempo, "4/4");
    EXPECT_EQ(MetroDopo("4/4").tempo, "6/8");
    EXPECT_EQ(MetroDopo("6/8").tempo, "2/4");
}

TEST(Metri, ALabelThatIsNoMeterLeadsToTheFirst) {
    for (const char* tempo : {"5/8", "", "P.", "2/4 "})
        EXPECT_EQ(MetroDopo(tempo).tempo, "2/4");
}

TEST(Metri, EachMeterHasItsPattern) {
    EXPECT_EQ(MetroDopo("6/8").sequenza, "ab");
    EXPECT_EQ(MetroDopo("2/4").sequenza, "abb");
    EXPECT_EQ(MetroDopo("3/4").sequenza, "abbb");
    EXPECT_EQ(MetroDopo("4/4").sequenza, "abbcbb");
}

TEST(Metri, OnlyThePatternsOfTheFourMetersAreFixed) {
    for (const char* fissa : {"ab", "abb", "abbb", "abbcbb"})
        EXPECT_TRUE(SequenzaFissa(fissa));
    for (const char* propria : {"", "a", "ba", "abc", "abbcb", "abcb"})
        EXPECT_FALSE(SequenzaFissa(propria));
}

TEST(Lettere, EachTakesItsNoteAndColour) {
    StatoMetronomo stato;
    PrendiLettera(stato, 'a');
    EXPECT_EQ(stato.MetroNota, 76);
    EXPECT_EQ(stato.MetroColore, Rgb(255, 0, 0));
    PrendiLettera(stato, 'b');
    EXPECT_EQ(stato.MetroNota, 85);
    EXPECT_EQ(stato.MetroColore, Rgb(0, 255, 0));
    PrendiLettera(stato, 'c');
    EXPECT_EQ(stato.MetroNota, 33);
    EXPECT_EQ(stato.MetroColore, Rgb(0, 0, 255));
}

TEST(Lettere, AnyOtherLetterKeepsWhatWasThere) {
    StatoMetronomo stato;
    PrendiLettera(stato, 'b');
    for (const char altra : {'d', 'A', ' ', '?'})
        PrendiLettera(stato, altra);
    EXPECT_EQ(stato.MetroNota, 85);
    EXPECT_EQ(stato.MetroColore, Rgb(0, 255, 0));
}

TEST(Battiti, ThePulseLastsAMinuteOverTheTempoAndTheMultiplier) {
    EXPECT_DOUBLE_EQ(Battito(60, 1), 1);
    EXPECT_DOUBLE_EQ(Battito(60, 2), 0.5);
    EXPECT_DOUBLE_EQ(Battito(20, 1), 3);
    EXPECT_DOUBLE_EQ(Battito(200, 2), 0.15);
}

}  // namespace corvana
