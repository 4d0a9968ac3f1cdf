#include <gtest/gtest.h>

#include <QPaintEvent>

#include "desktop/staff_geometry.h"
#include "desktop/staff_painter.h"
#include "desktop/theme.h"
#include "tests/desktop/stage.h"
#include "trainer/positions.h"

namespace corvana::prova {
namespace {

QImage Staff(Palco& palco) {
    return Fotografa(Trova(palco.scrivania, "staff"));
}

QColor Al(const QImage& foto, double x, double y) {
    const double scala = foto.devicePixelRatio() / twipsPerPixel;
    return foto.pixelColor(static_cast<int>(x * scala), static_cast<int>(y * scala));
}

bool Scuro(const QColor& colore) {
    return colore.lightness() < 90;
}

TEST(Pentagramma, EachPositionIsHalfASpaceAboveTheOneBefore) {
    EXPECT_DOUBLE_EQ(AltezzaDi(46), 1725);
    EXPECT_DOUBLE_EQ(AltezzaDi(47), 1638.75);
    EXPECT_DOUBLE_EQ(AltezzaDi(18), 3870);
    EXPECT_DOUBLE_EQ(AltezzaDi(11), 4473.75);
    EXPECT_DOUBLE_EQ(AltezzaDi(64), 172.5);
}

TEST(Pentagramma, NotesOutsideTheStaffHaveTheirShortLines) {
    EXPECT_EQ(LineeAggiunte(46), std::vector<int>{});
    EXPECT_EQ(LineeAggiunte(45), std::vector<int>{});
    EXPECT_EQ(LineeAggiunte(44), std::vector<int>{44});
    EXPECT_EQ(LineeAggiunte(40), (std::vector<int>{44, 42, 40}));
    EXPECT_EQ(LineeAggiunte(55), std::vector<int>{});
    EXPECT_EQ(LineeAggiunte(64), (std::vector<int>{56, 58, 60, 62, 64}));
    EXPECT_EQ(LineeAggiunte(28), std::vector<int>{28});
    EXPECT_EQ(LineeAggiunte(31), (std::vector<int>{28, 30}));
    EXPECT_EQ(LineeAggiunte(17), std::vector<int>{});
    EXPECT_EQ(LineeAggiunte(11), (std::vector<int>{16, 14, 12}));
}

TEST(Pentagramma, EveryNoteOfTheTrainerLiesWithinThePictureAndNearItsControl) {
    for (const Posizione& p : Posizioni()) {
        const double y = AltezzaDi(p.numero);
        EXPECT_GT(y, p.top - 60) << p.numero;
        EXPECT_LT(y, p.top + p.height + 60) << p.numero;
        const QRectF area = AreaNota(p.numero, p.left + p.width / 2.0);
        EXPECT_TRUE(QRectF(0, -90, 6330, 4800).contains(area)) << p.numero;
    }
}

TEST(Pentagramma, AHeadShowsWhileItsControlIsVisible) {
    Palco palco;
    const double x = 4605 + 127.5, y = AltezzaDi(50);
    const QImage prima = Staff(palco);
    palco.NellaLogica([](FormDiProva& form) { form.n50.Visible = true; });
    EXPECT_TRUE(Scuro(Al(Staff(palco), x + 30, y - 40)));
    palco.NellaLogica([](FormDiProva& form) { form.n50.Visible = false; });
    EXPECT_EQ(Staff(palco), prima);
    EXPECT_FALSE(Scuro(Al(prima, x + 30, y - 40)));
}

TEST(Pentagramma, AMaskShowsItsNoteWhileItIsHidden) {
    Palco palco;
    const double x = 2565 + 217.5, y = AltezzaDi(14);
    EXPECT_FALSE(Scuro(Al(Staff(palco), x, y)));
    palco.NellaLogica([](FormDiProva& form) { form.n14.Visible = false; });
    const QImage foto = Staff(palco);
    EXPECT_TRUE(Scuro(Al(foto, x, y)));
    EXPECT_TRUE(Scuro(Al(foto, x - 180, AltezzaDi(16)))) << "its short line is missing";
    palco.NellaLogica([](FormDiProva& form) { form.n14.Visible = true; });
    EXPECT_FALSE(Scuro(Al(Staff(palco), x, y)));
}

TEST(Pentagramma, AHighNoteBringsItsLinesWithIt) {
    Palco palco;
    palco.NellaLogica([](FormDiProva& form) { form.n63.Visible = true; });
    const QImage foto = Staff(palco);
    const double x = 5205 + 195;
    EXPECT_TRUE(Scuro(Al(foto, x, AltezzaDi(63))));
    for (const int linea : {56, 58, 60, 62})
        EXPECT_TRUE(Scuro(Al(foto, x - 170, AltezzaDi(linea))));
}

TEST(Pentagramma, OnlyThePlaceOfANoteIsPaintedAnew) {
    struct Area : QObject {
        QRect dipinta;
        bool eventFilter(QObject*, QEvent* evento) override {
            if (evento->type() == QEvent::Paint)
                dipinta |= static_cast<QPaintEvent*>(evento)->region().boundingRect();
            return false;
        }
    };
    Palco palco;
    Area area;
    Trova(palco.scrivania, "staff").Suolo().installEventFilter(&area);
    // The platform may yet ask for the whole window of its own accord, but not for ever.
    EXPECT_TRUE(Aspetta([&] {
        area.dipinta = {};
        palco.NellaLogica([](FormDiProva& form) { form.n50.Visible = !form.n50.Visible(); });
        return Aspetta([&] { return !area.dipinta.isEmpty(); }) && area.dipinta.width() < 60 &&
               area.dipinta.height() < 60;
    }));
}

}  // namespace
}  // namespace corvana::prova
