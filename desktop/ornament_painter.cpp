#include "desktop/ornament_painter.h"

#include <QImage>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "desktop/music_font.h"
#include "desktop/theme.h"

namespace corvana {

namespace {

constexpr double spazio = 11;   ///< designed pixels between two lines
constexpr double daSotto = 74;  ///< of the middle line above the window's lower edge
constexpr double onda = 13;     ///< by which the ribbon rises and falls
constexpr double lunghezzaOnda = 620;
constexpr double spessoreLinea = 1.3;

struct NotaOrnamento {
    double x;   ///< share of the width
    int passo;  ///< half spaces above the middle line
};

constexpr NotaOrnamento note[] = {{0.17, -2}, {0.25, 0},  {0.33, 1}, {0.41, 3},  {0.50, 2},
                                  {0.58, 0},  {0.66, -1}, {0.74, 1}, {0.83, -3}, {0.91, -2}};

double Altezza(double x, double base) {
    return base + onda * std::sin(2 * std::numbers::pi * x / lunghezzaOnda);
}

/// What a line from `alto` to `basso` covers of the points of one column.
void Colonna(QImage& righe, int x, double alto, double basso, const QColor& colore) {
    const int fine = std::min(righe.height(), static_cast<int>(std::ceil(basso)));
    for (int y = std::max(0, static_cast<int>(std::floor(alto))); y < fine; ++y) {
        const double coperto = std::min(y + 1.0, basso) - std::max<double>(y, alto);
        const int opaco = static_cast<int>(std::lround(255 * coperto));
        reinterpret_cast<QRgb*>(righe.scanLine(y))[x] =
            qPremultiply(qRgba(colore.red(), colore.green(), colore.blue(), opaco));
    }
}

/// The lines of the ribbon within `parte`, which lies on whole points of the screen, `punti` to a
/// designed pixel. They are so flat that what they cover of a point is what they cover of its
/// height: that takes a tenth of the time of a stroked path.
QImage Linee(const QRectF& parte, double base, double punti, const QColor& colore) {
    QImage righe(qRound(parte.width() * punti), qRound(parte.height() * punti),
                 QImage::Format_ARGB32_Premultiplied);
    righe.fill(Qt::transparent);
    const double mezza = spessoreLinea * punti / 2;
    for (int x = 0; x < righe.width(); ++x) {
        const double mezzo = Altezza(parte.x() + (x + 0.5) / punti, base) - parte.y();
        for (int linea = -2; linea <= 2; ++linea) {
            const double y = (mezzo + linea * spazio) * punti;
            Colonna(righe, x, y - mezza, y + mezza, colore);
        }
    }
    return righe;
}

/// What of the ribbon is to be painted, on whole points of the screen.
QRectF Parte(const QPainter& p, const QRectF& area, double base, double punti) {
    constexpr double ampiezza = onda + 3 * spazio;
    const QRectF nastro(0, base - ampiezza, area.width(), 2 * ampiezza);
    const QRectF parte = p.hasClipping() ? nastro & p.clipBoundingRect() : nastro;
    const QRectF intera(QRectF(parte.topLeft() * punti, parte.size() * punti).toAlignedRect());
    return {intera.topLeft() / punti, intera.size() / punti};
}

bool Tocca(const QPainter& p, const QRectF& area) {
    return !p.hasClipping() || p.clipBoundingRect().intersects(area);
}

void Nota(QPainter& p, double x, double y, bool gambaSu) {
    p.save();
    p.translate(x, y);
    const double lato = gambaSu ? 6 : -6;
    p.drawLine(QPointF(lato, 0), QPointF(lato, gambaSu ? -32 : 32));
    p.rotate(-24);
    p.setPen(Qt::NoPen);
    p.drawEllipse(QPointF(), 7.2, 5);
    p.restore();
}

void Chiave(QPainter& p, double base) {
    p.save();
    p.translate(26, Altezza(40, base) + 2 * spazio);
    p.scale(spazio, spazio);
    p.fillPath(TracciaSegno(Segno::ChiaveViolino), p.brush());
    p.restore();
}

}  // namespace

void DipingiOrnamento(QPainter& p, const QRectF& area, double scala) {
    const QRectF disegnata(QPointF(), area.size() / scala);
    const double base = disegnata.height() - daSotto;
    const double punti = scala * p.device()->devicePixelRatioF();
    const QColor tenue = PiuScura(tinta::finestra, 0.055);
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(scala, scala);
    const QRectF parte = Parte(p, disegnata, base, punti);
    if (!parte.isEmpty()) p.drawImage(parte, Linee(parte, base, punti, tenue));
    p.setBrush(tenue);
    p.setPen(QPen(tenue, 1.8));
    for (const NotaOrnamento& nota : note) {
        const double x = nota.x * disegnata.width();
        const double y = Altezza(x, base) - nota.passo * spazio / 2;
        if (Tocca(p, {x - 10, y - 40, 20, 80})) Nota(p, x, y, nota.passo < 0);
    }
    if (Tocca(p, {0, base - 80, 80, 160})) Chiave(p, base);
    p.restore();
}

}  // namespace corvana
