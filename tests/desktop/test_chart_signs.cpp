#include <gtest/gtest.h>

#include "desktop/chart_signs.h"

namespace corvana {
namespace {

/// Of the font, and by hand.
class SegniDaTavola : public testing::TestWithParam<bool> {
protected:
    SegniTavola segni = GetParam() ? SegniTavolaAMano() : SegniDellaTavola();
};

TEST_P(SegniDaTavola, AnAccidentalStandsOnWhatItAlters) {
    const QRectF diesis = segni.alterazione(true).boundingRect();
    EXPECT_NEAR(diesis.left(), 0, 0.15);
    EXPECT_NEAR(diesis.center().y(), 0, 0.25);
    EXPECT_NEAR(diesis.height(), 2.9, 0.5);
    const QRectF bemolle = segni.alterazione(false).boundingRect();
    EXPECT_NEAR(bemolle.left(), 0, 0.15);
    EXPECT_NEAR(bemolle.bottom(), 0.6, 0.15) << "its belly fills the space";
    EXPECT_LT(bemolle.top(), -1.6) << "its stem rises";
}

TEST_P(SegniDaTavola, HeadsAreASpaceHighAroundTheMiddle) {
    const QRectF testa = segni.nota(0).boundingRect();
    EXPECT_NEAR(testa.top(), -0.5, 0.12);
    EXPECT_NEAR(testa.bottom(), 0.5, 0.12);
    EXPECT_GT(testa.width(), 1.3);
}

TEST_P(SegniDaTavola, WholeAndHalfNotesAreHollowTheOthersBlack) {
    for (int valore = 0; valore < valoriDelleNote; ++valore) {
        const double mezzo = segni.nota(0).boundingRect().width() / 2;
        const QPointF dentro(valore == 0 ? mezzo : mezzo * 0.85, 0);
        EXPECT_EQ(segni.nota(valore).contains(dentro), valore >= 2) << valore;
    }
}

TEST_P(SegniDaTavola, AllButTheWholeNoteHaveAStemAndItGrowsWithTheFlags) {
    double alto = 0;
    for (int valore = 1; valore < valoriDelleNote; ++valore) {
        const double cima = segni.nota(valore).boundingRect().top();
        EXPECT_LT(cima, -3.2) << valore;
        EXPECT_LE(cima, alto + 0.01) << valore;
        alto = cima;
    }
    EXPECT_LT(segni.nota(6).boundingRect().top(), -4.5);
}

/// How often a line down just beside the stem of a note enters black.
int Code(const QPainterPath& nota, double x) {
    int code = 0;
    bool nero = false;
    for (double y = nota.boundingRect().top() - 0.1; y < -0.6; y += 0.02) {
        const bool qui = nota.contains(QPointF(x, y));
        code += qui && !nero ? 1 : 0;
        nero = qui;
    }
    return code;
}

TEST_P(SegniDaTavola, EachValueFromTheEighthOnHasOneFlagMore) {
    const QRectF semiminima = segni.nota(2).boundingRect();
    for (int valore = 2; valore < valoriDelleNote; ++valore)
        EXPECT_EQ(Code(segni.nota(valore), semiminima.right() + 0.3), valore - 2) << valore;
}

TEST_P(SegniDaTavola, TheWholeRestHangsFromTheFourthLineTheHalfRestLiesOnTheThird) {
    const auto nero = [&](int valore, double y) {
        const QPainterPath pausa = segni.pausa(valore);
        return pausa.contains(QPointF(pausa.boundingRect().center().x(), y));
    };
    EXPECT_TRUE(nero(0, -2.75));
    EXPECT_FALSE(nero(0, -2.25));
    EXPECT_TRUE(nero(1, -2.25));
    EXPECT_FALSE(nero(1, -2.75));
}

TEST_P(SegniDaTavola, RestsStandOnTheStaffAndGrowFromTheEighthOn) {
    double alta = 0;
    for (int valore = 2; valore < valoriDelleNote; ++valore) {
        const QRectF pausa = segni.pausa(valore).boundingRect();
        EXPECT_LT(pausa.bottom(), 0.7) << valore;
        EXPECT_GT(pausa.top(), -5.3) << valore;
        EXPECT_GT(pausa.width(), 0.6) << valore;
        if (valore > 3) {
            EXPECT_GT(pausa.height(), alta + 0.5) << valore;
        }
        alta = pausa.height();
    }
}

INSTANTIATE_TEST_SUITE_P(ConFontEAMano, SegniDaTavola, testing::Bool());

}  // namespace
}  // namespace corvana
