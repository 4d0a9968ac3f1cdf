// Paints the keys of the keyboard on the screen and the marks on it. Everything grows with the
// scale. Pure painting; GUI thread.
#pragma once

#include <QPainter>

namespace corvana {

struct AspettoTasto {
    bool acceso;    ///< a lit key is pressed down, too
    QColor colore;  ///< of a lit one
    bool fuoco;     ///< the keyboard would press it
};

/// What the keys lie in; `tasti` is where they lie, all together.
void DipingiLetto(QPainter& p, const QRectF& tasti, double scala);

void DipingiTastoBianco(QPainter& p, const QRectF& area, const AspettoTasto& tasto, double scala);
void DipingiTastoNero(QPainter& p, const QRectF& area, const AspettoTasto& tasto, double scala);
/// A black key with the shadow that it throws.
QRect OmbraTasto(const QRect& area, double scala);

void DipingiBarretta(QPainter& p, const QRectF& area, const QColor& colore, double scala);
void DipingiDoCentrale(QPainter& p, const QRectF& area, const QColor& colore, double scala);

}  // namespace corvana
