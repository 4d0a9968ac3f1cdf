#include <gtest/gtest.h>

#include <QImage>

#include "desktop/ornament_painter.h"
#include "desktop/theme.h"

namespace corvana::prova {
namespace {

QImage Dipinto(double scala, double punti, const std::vector<QRect>& parti) {
    const QSize misura = QSize(800, 520) * scala;
    QImage foto(misura * punti, QImage::Format_RGB32);
    foto.setDevicePixelRatio(punti);
    foto.fill(tinta::finestra);
    for (const QRect& parte : parti) {
        QPainter p(&foto);
        p.setClipRect(parte);
        DipingiOrnamento(p, QRectF(QPointF(), misura), scala);
    }
    return foto;
}

TEST(Ornamento, PaintedInPartsItLooksAsPaintedWhole) {
    for (const double scala : {1.0, 1.5, 2.0})
        for (const double punti : {1.0, 2.0}) {
            const int larga = qRound(800 * scala), alta = qRound(520 * scala), mezzo = larga / 3;
            const QImage intero = Dipinto(scala, punti, {{0, 0, larga, alta}});
            const QImage aParti =
                Dipinto(scala, punti, {{0, 0, mezzo, alta}, {mezzo, 0, larga - mezzo, alta}});
            EXPECT_EQ(intero, aParti) << scala << " " << punti;
        }
}

TEST(Ornamento, ItsFiveLinesAreFaintAndLieAlongTheLowerEdge) {
    const QImage foto = Dipinto(1, 1, {{0, 0, 800, 520}});
    // A column where neither a note nor the clef stands.
    constexpr int x = 100;
    int linee = 0;
    bool sullaLinea = false;
    for (int y = 0; y < foto.height(); ++y) {
        const bool qui = foto.pixelColor(x, y) != tinta::finestra;
        linee += qui && !sullaLinea;
        sullaLinea = qui;
        EXPECT_LT(tinta::finestra.lightness() - foto.pixelColor(x, y).lightness(), 30);
        EXPECT_TRUE(!qui || y > 380) << y;
    }
    EXPECT_EQ(linee, 5);
}

}  // namespace
}  // namespace corvana::prova
