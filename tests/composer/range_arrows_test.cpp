// What each arrow of the ranges does, and when it may.
#include "composer/range_arrows.h"

#include <gtest/gtest.h>

#include <vector>

namespace corvana::prova {

namespace {

constexpr Freccia primaGiu{0, false, -1}, primaSu{0, false, 1}, ultimaGiu{0, true, -1},
    ultimaSu{0, true, 1};

}  // namespace

TEST(FrecciaDi, FourForEachVoiceInTheOrderOfTheVoices) {
    const std::vector<Freccia> attese = {
        {0, false, -1}, {0, false, 1}, {0, true, -1},  {0, true, 1},  {1, false, -1}, {1, false, 1},
        {1, true, -1},  {1, true, 1},  {2, false, -1}, {2, false, 1}, {2, true, -1},  {2, true, 1},
        {3, false, -1}, {3, false, 1}, {3, true, -1},  {3, true, 1}};
    for (int i = 0; i < 16; ++i)
        EXPECT_EQ(FrecciaDi(i), attese.at(static_cast<std::size_t>(i))) << i;
}

TEST(FrecciaDi, NoneOutsideOf0To15) {
    for (const int Index : {-1, 16, 100, -16})
        EXPECT_EQ(FrecciaDi(Index), std::nullopt) << Index;
}

TEST(PuoMuovere, TheFirstNoteGoesDownToTheVoicesFirstOne) {
    for (long prima = 0; prima <= 6; ++prima)
        EXPECT_EQ(PuoMuovere(primaGiu, {prima, 8, 10}), prima >= 2) << prima;
}

TEST(PuoMuovere, TheFirstNoteGoesUpWhileTwoNotesRemain) {
    for (long prima = 1; prima <= 10; ++prima)
        EXPECT_EQ(PuoMuovere(primaSu, {prima, 8, 10}), prima < 7) << prima;
}

TEST(PuoMuovere, TheLastNoteGoesDownWhileTwoNotesRemain) {
    for (long ultima = 1; ultima <= 10; ++ultima)
        EXPECT_EQ(PuoMuovere(ultimaGiu, {3, ultima, 10}), ultima > 4) << ultima;
}

TEST(PuoMuovere, TheLastNoteGoesUpToTheVoicesLastOne) {
    for (long ultima = 4; ultima <= 12; ++ultima)
        EXPECT_EQ(PuoMuovere(ultimaSu, {3, ultima, 10}), ultima < 10) << ultima;
}

TEST(PuoMuovere, OnTwoNotesNoArrowMoves) {
    for (const Freccia& freccia : {primaGiu, primaSu, ultimaGiu, ultimaSu})
        EXPECT_FALSE(PuoMuovere(freccia, {1, 2, 2}));
}

TEST(PuoMuovere, OnOneNoteOrNoneNoArrowMoves) {
    for (const Freccia& freccia : {primaGiu, primaSu, ultimaGiu, ultimaSu}) {
        EXPECT_FALSE(PuoMuovere(freccia, {1, 1, 1}));
        EXPECT_FALSE(PuoMuovere(freccia, {0, 0, 0}));
    }
}

}  // namespace corvana::prova
