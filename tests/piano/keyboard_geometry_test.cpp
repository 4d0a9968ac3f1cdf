#include "piano/keyboard_geometry.h"

#include <gtest/gtest.h>

namespace corvana::prova {

namespace {

/// As the places are known: from the corner of what the picture lies in.
constexpr Rettangolo NelPadre(const Rettangolo& r) {
    return {postoTastiera.left + r.left, postoTastiera.top + r.top, r.width, r.height};
}

}  // namespace

TEST(PostoTasto, TheLowestKeysLieWhereTheKeyboardWasDesigned) {
    EXPECT_EQ(NelPadre(PostoTasto(0)), (Rettangolo{330, 2370, 195, 300}));
    EXPECT_EQ(NelPadre(PostoTasto(1)), (Rettangolo{450, 2025, 135, 300}));
}

TEST(PostoTasto, EachKeyLiesAnOctaveFromItsNeighbourInTheNext) {
    for (int tasto = 0; tasto + 12 < 60; ++tasto) {
        EXPECT_EQ(PostoTasto(tasto + 12).left - PostoTasto(tasto).left, 1545) << tasto;
        EXPECT_EQ(PostoTasto(tasto + 12).top, PostoTasto(tasto).top) << tasto;
    }
}

TEST(PostoTasto, WhiteKeysAreEvenlySpacedToATwip) {
    const std::array bianchi = {0, 2, 4, 5, 7, 9, 11, 12, 14, 16, 17, 19, 21, 23, 24};
    for (std::size_t i = 0; i < bianchi.size(); ++i)
        EXPECT_NEAR(PostoTasto(bianchi.at(i)).left, 30 + 220.7 * static_cast<double>(i), 1) << i;
}

TEST(PostoTasto, BlackKeysStandBetweenTheWhiteOnesInMirroredGroups) {
    const auto mezzo = [](int tasto) {
        return PostoTasto(tasto).left + PostoTasto(tasto).width / 2.0;
    };
    EXPECT_NEAR(mezzo(1) + mezzo(3), 2 * mezzo(2), 2);
    EXPECT_NEAR(mezzo(6) + mezzo(10), 2 * mezzo(8), 2);
    for (const int nero : {1, 3, 6, 8, 10}) {
        EXPECT_GT(mezzo(nero), mezzo(nero - 1)) << nero;
        EXPECT_LT(mezzo(nero), mezzo(nero + 1)) << nero;
    }
}

TEST(TastoIntero, HoldsItsLabel) {
    for (int tasto = 0; tasto < 60; ++tasto) {
        const Rettangolo intero = TastoIntero(tasto), posto = PostoTasto(tasto);
        EXPECT_LE(intero.left, posto.left) << tasto;
        EXPECT_LE(intero.top, posto.top) << tasto;
        EXPECT_GE(intero.left + intero.width, posto.left + posto.width) << tasto;
        EXPECT_GE(intero.top + intero.height, posto.top + posto.height) << tasto;
    }
}

TEST(TastoIntero, WhiteKeysLieSideBySideWithoutAGapOverFiveOctaves) {
    int fine = 17;
    for (int tasto = 0; tasto < 60; ++tasto) {
        if (tasto % 12 == 1 || tasto % 12 == 3 || tasto % 12 == 6 || tasto % 12 == 8 ||
            tasto % 12 == 10)
            continue;
        EXPECT_EQ(TastoIntero(tasto).left, fine) << tasto;
        EXPECT_NEAR(TastoIntero(tasto).width, 220.7, 1) << tasto;
        fine += TastoIntero(tasto).width;
    }
    EXPECT_EQ(fine, 17 + 5 * 1545);
}

TEST(TastoIntero, BlackKeysEndAboveTheLabelsOfTheWhiteOnes) {
    for (const int nero : {1, 3, 6, 8, 10, 58})
        EXPECT_LT(TastoIntero(nero).top + TastoIntero(nero).height, PostoTasto(0).top) << nero;
}

TEST(PostoBarra, MarksLieUnderTheWhiteKeysAndAboveTheBlackOnes) {
    EXPECT_EQ(NelPadre(PostoBarra(0)), (Rettangolo{345, 2655, 165, 75}));
    EXPECT_EQ(NelPadre(PostoBarra(1)), (Rettangolo{435, 1950, 165, 75}));
    EXPECT_EQ(NelPadre(PostoBarra(59)), (Rettangolo{7849, 2655, 165, 75}));
}

TEST(PostoDoCentrale, LiesBelowTheMiddleOfTheKeyOf60) {
    EXPECT_EQ(NelPadre(PostoDoCentrale()), (Rettangolo{3480, 2745, 75, 75}));
}

TEST(TastieraSchermo, ThePictureHoldsAllThatLiesOnIt) {
    for (int tasto = 0; tasto < 60; ++tasto)
        for (const Rettangolo& r : {PostoTasto(tasto), PostoBarra(tasto)}) {
            EXPECT_GE(r.left, 0);
            EXPECT_GE(r.top, 0);
            EXPECT_LE(r.left + r.width, postoTastiera.width);
            EXPECT_LE(r.top + r.height, postoTastiera.height);
        }
    EXPECT_LE(PostoDoCentrale().top + PostoDoCentrale().height, postoTastiera.height);
}

}  // namespace corvana::prova
