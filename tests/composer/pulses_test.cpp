#include "composer/pulses.h"

#include <gtest/gtest.h>

#include <string>

namespace corvana::prova {

TEST(LetterePulsi, EachNumberOfPulsesHasItsLetters) {
    EXPECT_EQ(LetterePulsi("1"), "a");
    EXPECT_EQ(LetterePulsi("2"), "ab");
    EXPECT_EQ(LetterePulsi("3"), "abb");
    EXPECT_EQ(LetterePulsi("4"), "abbb");
    EXPECT_EQ(LetterePulsi("5"), "abbcb");
    EXPECT_EQ(LetterePulsi("6"), "abbcbb");
    EXPECT_EQ(LetterePulsi("7"), "abbbcbb");
    EXPECT_EQ(LetterePulsi("8"), "abbbcbbb");
    EXPECT_EQ(LetterePulsi("9"), "abbcbbcbb");
}

TEST(LetterePulsi, ThereAreAsManyAsPulses) {
    for (std::size_t pulsi = 1; pulsi <= 9; ++pulsi)
        EXPECT_EQ(LetterePulsi(std::to_string(pulsi)).size(), pulsi);
}

TEST(LetterePulsi, AnyOtherTextCountsAsTwoPulses) {
    for (const char* testo : {"", "0", "10", "12", "a", " 3", "-1", ":"})
        EXPECT_EQ(LetterePulsi(testo), "ab") << testo;
}

TEST(DurataPulsi, IsTheLengthOfTheNoteOfThatDenominatorInQuarters) {
    EXPECT_EQ(DurataPulsi("1"), 4);
    EXPECT_EQ(DurataPulsi("2"), 2);
    EXPECT_EQ(DurataPulsi("4"), 1);
    EXPECT_EQ(DurataPulsi("8"), 0.5);
    EXPECT_EQ(DurataPulsi("16"), 0.25);
}

TEST(DurataPulsi, AnyOtherTextCountsAsAQuarter) {
    for (const char* testo : {"", "3", "32", "16 ", "x", "0"})
        EXPECT_EQ(DurataPulsi(testo), 1) << testo;
}

}  // namespace corvana::prova
