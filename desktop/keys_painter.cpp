#include "desktop/keys_painter.h"

#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "desktop/theme.h"

namespace corvana {

namespace {

// In designed pixels.
constexpr double raggioBianco = 2.2, raggioNero = 1.6;
constexpr double labbro = 2.5;  ///< what is seen of a white key's front
constexpr double fronte = 4;    ///< what is seen of a black key's front
constexpr double spalla = 1.3;  ///< of a black key, beside its upper face
constexpr double ombraX = 1.5, ombraY = 2;

/// Square above, round below, as keys are.
QPainterPath Sagoma(const QRectF& area, double raggio) {
    QPainterPath tasto;
    tasto.addRoundedRect(area.adjusted(0, -2 * raggio, 0, 0), raggio, raggio);
    QPainterPath sotto;
    sotto.addRect(area);
    return tasto.intersected(sotto);
}

double Filo(double scala) {
    return std::max(1.0, std::round(scala * 0.75));
}

/// A lit key bears a dot, for who can't tell its colour.
void Punto(QPainter& p, const QPointF& dove, const QColor& colore, double raggio) {
    p.setPen(Qt::NoPen);
    p.setBrush(PiuScura(colore, 0.6));
    p.drawEllipse(dove, raggio, raggio);
}

void Anello(QPainter& p, const QPainterPath& sagoma, double scala) {
    p.setClipPath(sagoma, Qt::IntersectClip);
    p.setPen(QPen(tinta::accento, 5 * scala));
    p.setBrush(Qt::NoBrush);
    p.drawPath(sagoma);
    p.setPen(QPen(tinta::stacco, 1.2 * scala));
    p.drawPath(sagoma);
}

}  // namespace

void DipingiLetto(QPainter& p, const QRectF& tasti, double scala) {
    p.setRenderHint(QPainter::Antialiasing);
    const double bordo = Filo(scala);
    p.setPen(Qt::NoPen);
    p.setBrush(tinta::solcoTasti);
    p.drawRoundedRect(tasti.adjusted(-bordo, -bordo, bordo, bordo), 2 * scala, 2 * scala);
}

void DipingiTastoBianco(QPainter& p, const QRectF& area, const AspettoTasto& t, double scala) {
    p.setRenderHint(QPainter::Antialiasing);
    p.fillRect(area, tinta::solcoTasti);
    const QRectF tasto = area.adjusted(0, 0, -Filo(scala), 0);
    const QPainterPath intera = Sagoma(tasto, raggioBianco * scala);
    p.fillPath(intera, tinta::frontaleTasti);
    // One that is down shows no front.
    const QRectF sopra = tasto.adjusted(0, 0, 0, t.acceso ? 0 : -labbro * scala);
    p.fillPath(Sagoma(sopra, raggioBianco * scala), t.acceso ? t.colore : tinta::avorio);
    QLinearGradient ombra(tasto.topLeft(),
                          tasto.topLeft() + QPointF(0, (t.acceso ? 7 : 4) * scala));
    ombra.setColorAt(0, tinta::ombraTasti);
    ombra.setColorAt(1, Qt::transparent);
    p.fillRect(QRectF(tasto.topLeft(), QSizeF(tasto.width(), 7 * scala)), ombra);
    if (t.acceso)
        Punto(p, {tasto.center().x(), tasto.top() + 0.68 * tasto.height()}, t.colore, 2.2 * scala);
    if (t.fuoco) Anello(p, intera, scala);
}

QRect OmbraTasto(const QRect& area, double scala) {
    return area.adjusted(0, 0, static_cast<int>(std::ceil(ombraX * scala)),
                         static_cast<int>(std::ceil(ombraY * scala)));
}

void DipingiTastoNero(QPainter& p, const QRectF& area, const AspettoTasto& t, double scala) {
    p.setRenderHint(QPainter::Antialiasing);
    const double raggio = raggioNero * scala;
    const QPainterPath intera = Sagoma(area, raggio);
    if (!t.acceso) p.fillPath(intera.translated(ombraX * scala, ombraY * scala), tinta::ombraTasti);
    p.fillPath(intera, tinta::ebano);
    const double davanti = (t.acceso ? 1.4 : fronte) * scala;
    const QRectF sopra = area.adjusted(spalla * scala, 0, -spalla * scala, -davanti);
    QLinearGradient lucido(sopra.topLeft(), sopra.bottomLeft());
    lucido.setColorAt(0, tinta::ebano);
    lucido.setColorAt(1, tinta::ebanoLucido);
    p.fillPath(Sagoma(sopra, raggio), t.acceso ? QBrush(t.colore) : QBrush(lucido));
    if (t.acceso)
        Punto(p, {area.center().x(), area.top() + 0.5 * area.height()}, t.colore, 1.3 * scala);
    if (t.fuoco) Anello(p, intera, scala);
}

void DipingiBarretta(QPainter& p, const QRectF& area, const QColor& colore, double scala) {
    p.setRenderHint(QPainter::Antialiasing);
    const double alto = area.height() * 0.72, mezzo = Filo(scala) / 2;
    QRectF barra(area.x(), area.y(), area.width(), alto);
    barra.moveCenter(area.center());
    p.setPen(QPen(PiuScura(colore, 0.45), 2 * mezzo));
    p.setBrush(colore);
    p.drawRoundedRect(barra.adjusted(mezzo, mezzo, -mezzo, -mezzo), alto / 2, alto / 2);
}

void DipingiDoCentrale(QPainter& p, const QRectF& area, const QColor& colore, double scala) {
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(tinta::stacco, scala / 2));
    p.setBrush(colore);
    p.drawEllipse(area.adjusted(scala / 4, scala / 4, -scala / 4, -scala / 4));
}

}  // namespace corvana
