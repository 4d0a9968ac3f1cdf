#include "desktop/bar_painter.h"

#include <QStyle>
#include <algorithm>
#include <cmath>

#include "desktop/face_painter.h"
#include "desktop/theme.h"

namespace corvana {

namespace {

constexpr double mezzaGuida = 2;       ///< designed pixels
constexpr double minimoCorsore = 24;   ///< length of a scroll bar's thumb, designed pixels
constexpr double ariaScorrimento = 2;  ///< designed pixels beside the thumb
constexpr double capoScorrimento = 3;  ///< designed pixels before and after its way

bool Piana(const QStyleOptionSlider& o) {
    return o.orientation == Qt::Horizontal;
}

int Lunghezza(const QStyleOptionSlider& o) {
    return Piana(o) ? o.rect.width() : o.rect.height();
}

/// The part of the bar from `da`, `lungo` long.
QRect Tratto(const QStyleOptionSlider& o, int da, int lungo) {
    if (Piana(o)) return {o.rect.x() + da, o.rect.y(), lungo, o.rect.height()};
    return {o.rect.x(), o.rect.y() + da, o.rect.width(), lungo};
}

int Dove(const QStyleOptionSlider& o, int lungo) {
    return QStyle::sliderPositionFromValue(o.minimum, o.maximum, o.sliderPosition,
                                           Lunghezza(o) - lungo, o.upsideDown);
}

QColor TintaDi(const QStyleOptionSlider& o) {
    return o.state.testFlag(QStyle::State_Enabled) ? tinta::accento : tinta::spento;
}

bool Preso(const QStyleOptionSlider& o) {
    return o.state.testFlag(QStyle::State_Sunken) &&
           o.activeSubControls.testFlag(QStyle::SC_SliderHandle);
}

void DipingiGuida(QPainter& p, const QStyleOptionSlider& o, const QPointF& pollice, double scala) {
    const QPointF c = QRectF(o.rect).center();
    const double mezza = mezzaGuida * scala;
    QRectF guida = o.rect;
    if (Piana(o)) {
        guida.setTop(c.y() - mezza);
        guida.setBottom(c.y() + mezza);
    } else {
        guida.setLeft(c.x() - mezza);
        guida.setRight(c.x() + mezza);
    }
    p.setPen(Qt::NoPen);
    p.setBrush(tinta::filo);
    p.drawRoundedRect(guida, mezza, mezza);
    if (Piana(o))
        guida.setRight(pollice.x());
    else
        guida.setTop(pollice.y());
    p.setBrush(TintaDi(o));
    p.drawRoundedRect(guida, mezza, mezza);
}

}  // namespace

QRect PolliceBarra(const QStyleOptionSlider& o, double scala) {
    const int voluto = static_cast<int>(std::lround(latoPollice * scala));
    const int lato = std::min({voluto, o.rect.width(), o.rect.height()});
    const QRect tratto = Tratto(o, Dove(o, lato), lato);
    return {tratto.x() + (tratto.width() - lato) / 2, tratto.y() + (tratto.height() - lato) / 2,
            lato, lato};
}

void DipingiBarra(QPainter& p, const QStyleOptionSlider& o, double scala) {
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF pollice = PolliceBarra(o, scala);
    DipingiGuida(p, o, pollice.center(), scala);
    p.setPen(QPen(TintaDi(o), 2 * scala));
    p.setBrush(Preso(o) ? tinta::accentoTenue : tinta::carta);
    p.drawEllipse(pollice.adjusted(scala, scala, -scala, -scala));
    if (o.state.testFlag(QStyle::State_HasFocus)) DipingiAnello(p, o.rect, scala);
}

QRect CorsaScorrimento(const QStyleOptionSlider& o, double scala) {
    const int capo = static_cast<int>(capoScorrimento * scala);
    return Tratto(o, capo, std::max(0, Lunghezza(o) - 2 * capo));
}

QRect PolliceScorrimento(const QStyleOptionSlider& o, double scala) {
    QStyleOptionSlider corsa = o;
    corsa.rect = CorsaScorrimento(o, scala);
    const int lungo = Lunghezza(corsa), campo = o.maximum - o.minimum;
    if (campo <= 0) return corsa.rect;
    const int minimo = static_cast<int>(minimoCorsore * scala);
    const int parte = static_cast<int>(static_cast<double>(lungo) * o.pageStep /
                                       static_cast<double>(campo + o.pageStep));
    const int corsore = std::min(lungo, std::max(minimo, parte));
    return Tratto(corsa, Dove(corsa, corsore), corsore);
}

void DipingiScorrimento(QPainter& p, const QStyleOptionSlider& o, double scala) {
    const double aria = ariaScorrimento * scala;
    const QRectF corsore = QRectF(PolliceScorrimento(o, scala)).adjusted(aria, aria, -aria, -aria);
    const double raggio = std::min(corsore.width(), corsore.height()) / 2;
    const bool sopra = o.state.testFlag(QStyle::State_MouseOver) || Preso(o);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    p.setBrush(sopra ? tinta::inchiostroTenue : tinta::filoForte);
    p.drawRoundedRect(corsore, raggio, raggio);
}

}  // namespace corvana
