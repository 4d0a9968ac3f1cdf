#include <gtest/gtest.h>

#include "sound/outputs/limiter.h"

namespace corvana {
namespace {

TEST(Limitatore, WhatIsNotLoudPassesUnchanged) {
    for (const float c : {0.0F, 1e-6F, -0.25F, 0.5F, 0.8F, -0.8F})
        EXPECT_EQ(Limita(c), c);
}

TEST(Limitatore, NothingEverReachesBeyondFullScale) {
    for (const float c : {1.0F, 1.5F, 3.0F, 100.0F, 1e9F}) {
        EXPECT_LE(Limita(c), 1.0F);
        EXPECT_GE(Limita(-c), -1.0F);
    }
}

TEST(Limitatore, RisesWithoutAStepOrACorner) {
    constexpr float passo = 0.001F;
    float pendenza = 1;
    for (float c = 0; c < 1.5F; c += passo) {
        const float nuova = (Limita(c + passo) - Limita(c)) / passo;
        EXPECT_GT(nuova, 0);
        EXPECT_LT(nuova, 1.001F);
        EXPECT_NEAR(nuova, pendenza, 0.02F);
        pendenza = nuova;
    }
}

TEST(Limitatore, TreatsBothSignsAlike) {
    for (float c = 0; c < 3; c += 0.01F)
        EXPECT_EQ(Limita(-c), -Limita(c));
}

}  // namespace
}  // namespace corvana
