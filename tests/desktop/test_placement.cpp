#include <gtest/gtest.h>

#include "desktop/placement.h"

namespace corvana {

namespace {

const QRect schermo(0, 0, 1000, 800);
/// A second screen, to the left, with a panel at its top.
const QRect altroSchermo(-1200, 30, 1200, 770);

TEST(Collocazione, AWindowThatLiesOnTheScreenStaysThere) {
    for (const QRect finestra : {QRect(0, 0, 10, 10), QRect(990, 790, 10, 10), schermo})
        EXPECT_EQ(DentroSchermo(finestra, schermo), finestra);
}

TEST(Collocazione, OneThatHangsOverAnEdgeIsMovedIn) {
    EXPECT_EQ(DentroSchermo({-50, -60, 300, 200}, schermo), QRect(0, 0, 300, 200));
    EXPECT_EQ(DentroSchermo({900, 700, 300, 200}, schermo), QRect(700, 600, 300, 200));
    EXPECT_EQ(DentroSchermo({-5000, 0, 300, 200}, altroSchermo), QRect(-1200, 30, 300, 200));
    EXPECT_EQ(DentroSchermo({500, 900, 300, 200}, altroSchermo), QRect(-300, 600, 300, 200));
}

TEST(Collocazione, OneThatIsTooLargeFillsTheScreen) {
    EXPECT_EQ(DentroSchermo({100, 100, 1200, 300}, schermo), QRect(0, 100, 1000, 300));
    EXPECT_EQ(DentroSchermo({100, 100, 300, 900}, schermo), QRect(100, 0, 300, 800));
    EXPECT_EQ(DentroSchermo({1, 2, 9000, 9000}, altroSchermo), altroSchermo);
}

TEST(Collocazione, InTheMiddleOfTheOneBeneath) {
    EXPECT_EQ(AlCentro({100, 60}, {300, 200, 400, 300}, schermo), QRect(450, 320, 100, 60));
    EXPECT_EQ(AlCentro({600, 500}, {300, 200, 400, 300}, schermo), QRect(200, 100, 600, 500));
}

TEST(Collocazione, InTheMiddleOfOneAtTheEdgeItStillLiesOnTheScreen) {
    EXPECT_EQ(AlCentro({400, 300}, {-100, 700, 300, 200}, schermo), QRect(0, 500, 400, 300));
}

TEST(Collocazione, BesideOnTheSideWithMoreRoom) {
    const QRect aSinistra(50, 100, 300, 400), aDestra(600, 100, 300, 400);
    EXPECT_EQ(Accanto({500, 600}, 200, aSinistra, schermo), QRect(350, 100, 500, 600));
    EXPECT_EQ(Accanto({500, 600}, 200, aDestra, schermo), QRect(100, 100, 500, 600));
    EXPECT_EQ(Accanto({500, 600}, 200, {400, 100, 200, 50}, schermo), QRect(600, 100, 400, 600));
}

TEST(Collocazione, BesideItIsMadeNarrowerBeforeItCoversAnything) {
    EXPECT_EQ(Accanto({700, 600}, 400, {50, 100, 500, 400}, schermo), QRect(550, 100, 450, 600));
    EXPECT_EQ(Accanto({700, 600}, 450, {50, 100, 500, 400}, schermo), QRect(550, 100, 450, 600));
}

TEST(Collocazione, WithoutRoomBesideItStandsAtTheEdge) {
    EXPECT_EQ(Accanto({700, 600}, 451, {50, 100, 500, 400}, schermo), QRect(300, 100, 700, 600));
    EXPECT_EQ(Accanto({700, 600}, 451, {450, 100, 500, 400}, schermo), QRect(0, 100, 700, 600));
}

TEST(Collocazione, BesideItIsNeverTallerThanTheScreen) {
    EXPECT_EQ(Accanto({300, 900}, 200, {50, 100, 500, 400}, schermo), QRect(550, 0, 300, 800));
    EXPECT_EQ(Accanto({300, 790}, 200, {50, 100, 500, 400}, schermo), QRect(550, 10, 300, 790));
}

TEST(Collocazione, AWindowThatIsTooLargeKeepsItsShape) {
    EXPECT_EQ(ConLaSuaForma({400, 300}, {1000, 800}), QSize(400, 300));
    EXPECT_EQ(ConLaSuaForma({2000, 1000}, {1000, 800}), QSize(1000, 500));
    EXPECT_EQ(ConLaSuaForma({1000, 1600}, {1000, 800}), QSize(500, 800));
}

TEST(Collocazione, AWindowThatASmallScreenHoldsIsMadeNoSmaller) {
    for (const QSize misura : {QSize(283, 210), QSize(1000, 560)})
        EXPECT_EQ(ScalaMinima(misura, 1), 1);
}

TEST(Collocazione, OneThatIsTooLargeForItCanBeMadeToFit) {
    EXPECT_DOUBLE_EQ(ScalaMinima({2000, 560}, 1), 0.5);
    EXPECT_DOUBLE_EQ(ScalaMinima({2000, 700}, 1), 0.5);
    EXPECT_DOUBLE_EQ(ScalaMinima({1000, 700}, 1), 0.8);
}

TEST(Collocazione, WhereAPixelIsSeveralPointsTheScreenHoldsFewerPixels) {
    EXPECT_DOUBLE_EQ(ScalaMinima({1000, 280}, 2), 0.5);
    EXPECT_DOUBLE_EQ(ScalaMinima({500, 280}, 2), 1);
    EXPECT_DOUBLE_EQ(ScalaMinima({1000, 700}, 2), 0.4);
}

}  // namespace
}  // namespace corvana
