#include "core/octaves.h"

#include <gtest/gtest.h>

#include <set>

namespace corvana::prova {

TEST(TastoNero, HoldsForTheTwentyFiveBlackKeysOfTheFiveOctavesAndNoOtherIndex) {
    const std::set<int> neri = {1,  3,  6,  8,  10, 13, 15, 18, 20, 22, 25, 27, 30,
                                32, 34, 37, 39, 42, 44, 46, 49, 51, 54, 56, 58};
    for (int indice = -200; indice <= 600; ++indice)
        EXPECT_EQ(TastoNero(indice), neri.contains(indice)) << indice;
}

TEST(TastoNero, EndsWithTheKeyboardThoughTheOctavePatternWouldGoOn) {
    EXPECT_TRUE(TastoNero(58));
    EXPECT_FALSE(TastoNero(59));
    EXPECT_FALSE(TastoNero(61));
    EXPECT_FALSE(TastoNero(-2));
}

TEST(SullaTastiera, TheKeysAreTheNotes36To95) {
    EXPECT_FALSE(SullaTastiera(35));
    EXPECT_TRUE(SullaTastiera(36));
    EXPECT_TRUE(SullaTastiera(95));
    EXPECT_FALSE(SullaTastiera(96));
}

}  // namespace corvana::prova
