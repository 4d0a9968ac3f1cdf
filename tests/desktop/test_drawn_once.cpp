#include <gtest/gtest.h>

#include <QImage>
#include <QPainterPath>
#include <algorithm>
#include <cstdlib>

#include "desktop/drawn_once.h"

namespace corvana {
namespace {

TEST(DisegnatoUnaVolta, AgainIsDrawnWhatHasAnotherNameSizeOrDensity) {
    int disegni = 0;
    const auto chiedi = [&](const char* nome, QSize misura, double densita) {
        const auto disegna = [&](QPainter& p) {
            ++disegni;
            p.fillRect(QRect(QPoint(), misura), Qt::red);
        };
        return DisegnatoUnaVolta(QLatin1String(nome), misura, densita, disegna);
    };
    const QImage prima = chiedi("prova uno", {7, 9}, 1).toImage();
    EXPECT_EQ(prima.size(), QSize(7, 9));
    EXPECT_EQ(prima.pixelColor(6, 8), QColor(Qt::red));
    EXPECT_EQ(chiedi("prova uno", {7, 9}, 1).toImage(), prima);
    EXPECT_EQ(disegni, 1);
    chiedi("prova uno", {9, 7}, 1);
    chiedi("prova due", {7, 9}, 1);
    EXPECT_EQ(chiedi("prova uno", {7, 9}, 2).devicePixelRatio(), 2);
    EXPECT_EQ(disegni, 4);
    EXPECT_TRUE(chiedi("prova uno", {0, 9}, 1).isNull());
    EXPECT_EQ(disegni, 4);
}

QPainterPath Virgola() {
    QPainterPath virgola(QPointF(0.3, -0.4));
    virgola.cubicTo(2, 0, 2, 3, -0.5, 2.6);
    virgola.closeSubpath();
    return virgola;
}

QImage Foglio(double densita) {
    QImage foglio(qRound(60 * densita), qRound(60 * densita), QImage::Format_RGB32);
    foglio.setDevicePixelRatio(densita);
    foglio.fill(Qt::white);
    return foglio;
}

/// The largest distance of a channel at any point.
int Distanza(const QImage& a, const QImage& b) {
    int distanza = 0;
    for (int x = 0; x < a.width(); ++x)
        for (int y = 0; y < a.height(); ++y) {
            const QColor suo = a.pixelColor(x, y), altro = b.pixelColor(x, y);
            distanza = std::max({distanza, std::abs(suo.red() - altro.red()),
                                 std::abs(suo.green() - altro.green()),
                                 std::abs(suo.blue() - altro.blue())});
        }
    return distanza;
}

TEST(DisegnatoUnaVolta, APathIsFilledToThePointAsItWouldBeWithout) {
    const QColor colore(20, 90, 160);
    for (const double densita : {1.0, 1.25, 2.0})
        for (const QPointF& dove : {QPointF(10, 20), QPointF(10.5, 20), QPointF(10.5, 19.3)})
            for (const double scala : {7.0, 7.01, 11.3}) {
                QImage voluta = Foglio(densita);
                QPainter p(&voluta);
                p.setRenderHint(QPainter::Antialiasing);
                p.translate(dove);
                p.scale(scala, scala);
                p.fillPath(Virgola(), colore);
                p.end();
                // The first time it is drawn, the second time it was.
                for (const bool pronta : {false, true}) {
                    QImage foglio = Foglio(densita);
                    QPainter q(&foglio);
                    q.translate(dove);
                    q.scale(scala, scala);
                    RiempiUnaVolta(q, QStringLiteral("virgola"), Virgola(), colore);
                    EXPECT_EQ(q.worldTransform(),
                              QTransform(scala, 0, 0, scala, dove.x(), dove.y()));
                    q.end();
                    EXPECT_LE(Distanza(foglio, voluta), 1)
                        << densita << " " << dove.x() << " " << scala << " " << pronta;
                }
            }
}

TEST(DisegnatoUnaVolta, AnotherColourIsAnotherPicture) {
    QImage rossa = Foglio(1), blu = Foglio(1);
    for (const auto& [foglio, colore] : {std::pair{&rossa, Qt::red}, {&blu, Qt::blue}}) {
        QPainter p(foglio);
        p.scale(20, 20);
        RiempiUnaVolta(p, QStringLiteral("virgola"), Virgola(), colore);
    }
    EXPECT_EQ(rossa.pixelColor(20, 20), QColor(Qt::red));
    EXPECT_EQ(blu.pixelColor(20, 20), QColor(Qt::blue));
}

}  // namespace
}  // namespace corvana
