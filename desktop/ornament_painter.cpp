#include "desktop/ornament_painter.h"

#include <QPainterPath>
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

struct NotaOrnamento {
    double x;   ///< share of the width
    int passo;  ///< half spaces above the middle line
};

constexpr NotaOrnamento note[] = {{0.17, -2}, {0.25, 0},  {0.33, 1}, {0.41, 3},  {0.50, 2},
                                  {0.58, 0},  {0.66, -1}, {0.74, 1}, {0.83, -3}, {0.91, -2}};

double Altezza(double x, double base) {
    return base + onda * std::sin(2 * std::numbers::pi * x / lunghezzaOnda);
}

void Linee(QPainter& p, double larghezza, double base) {
    constexpr double tratto = 12;
    for (int linea = -2; linea <= 2; ++linea) {
        QPainterPath percorso(QPointF(0, Altezza(0, base) + linea * spazio));
        for (double x = tratto; x < larghezza + tratto; x += tratto)
            percorso.lineTo(x, Altezza(x, base) + linea * spazio);
        p.drawPath(percorso);
    }
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
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(scala, scala);
    const double larghezza = area.width() / scala, base = area.height() / scala - daSotto;
    const QColor tenue = PiuScura(tinta::finestra, 0.055);
    p.setPen(QPen(tenue, 1.3));
    p.setBrush(Qt::NoBrush);
    Linee(p, larghezza, base);
    p.setBrush(tenue);
    p.setPen(QPen(tenue, 1.8));
    for (const NotaOrnamento& nota : note) {
        const double x = nota.x * larghezza;
        Nota(p, x, Altezza(x, base) - nota.passo * spazio / 2, nota.passo < 0);
    }
    Chiave(p, base);
    p.restore();
}

}  // namespace corvana
