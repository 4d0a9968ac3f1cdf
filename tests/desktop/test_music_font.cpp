#include <gtest/gtest.h>

#include "desktop/music_font.h"

namespace corvana {
namespace {

// Of a staff whose lines lie at y = 0, -1, -2, -3, -4.
void StaSulPentagramma(const QPainterPath& violino, const QPainterPath& basso) {
    const QRectF v = violino.boundingRect(), b = basso.boundingRect();
    EXPECT_NEAR(v.left(), 0, 0.3);
    EXPECT_LT(v.top(), -4.4) << "the treble clef rises above the staff";
    EXPECT_GT(v.bottom(), 0.8) << "and hangs below it";
    EXPECT_NEAR(b.top(), -4, 0.35) << "the bass clef begins at the top line";
    EXPECT_LT(b.bottom(), -0.4);
    EXPECT_GT(b.width(), 2);
    EXPECT_LT(b.width(), 3.6);
}

TEST(Segni, TheClefsOfTheFontStandOnTheStaff) {
    StaSulPentagramma(TracciaSegno(Segno::ChiaveViolino), TracciaSegno(Segno::ChiaveBasso));
}

TEST(Segni, TheClefsDrawnByHandStandThereToo) {
    StaSulPentagramma(TracciaSegnoAMano(Segno::ChiaveViolino),
                      TracciaSegnoAMano(Segno::ChiaveBasso));
}

TEST(Segni, TheDotsOfTheBassClefLieOnBothSidesOfItsLine) {
    for (const auto& basso :
         {TracciaSegno(Segno::ChiaveBasso), TracciaSegnoAMano(Segno::ChiaveBasso)}) {
        const double x = basso.boundingRect().right() - 0.15;
        EXPECT_FALSE(basso.contains(QPointF(x, -3)));
        EXPECT_TRUE(basso.contains(QPointF(x, -3.5)));
        EXPECT_TRUE(basso.contains(QPointF(x, -2.5)));
    }
}

TEST(Segni, TheBraceReachesFromEndToEnd) {
    const QRectF area = TracciaGraffa(1000, 100).boundingRect();
    EXPECT_NEAR(area.top(), 0, 1);
    EXPECT_NEAR(area.bottom(), 1000, 1);
    EXPECT_NEAR(area.left(), -100, 5);
}

}  // namespace
}  // namespace corvana
