// Menus: the entries of the bar, those that drop down, and the marks of checked ones. Everything
// grows with the scale. Pure geometry and painting; GUI thread.
#pragma once

#include <QIcon>
#include <QPainter>
#include <QStyleOptionMenuItem>

namespace corvana {

/// The room that an entry takes when its text takes `testo`.
QSize MisuraVoce(const QStyleOptionMenuItem& o, const QSize& testo, double scala);
QSize MisuraVoceSbarra(const QSize& testo, double scala);

void DipingiVoce(QPainter& p, const QStyleOptionMenuItem& o, double scala);
void DipingiVoceSbarra(QPainter& p, const QStyleOptionMenuItem& o, double scala);

/// The mark itself, in the middle of the area, for check boxes too.
void DipingiSegnata(QPainter& p, const QRectF& area, const QColor& colore, double scala);

/// What stands for the entries that a narrow bar has no room for. Painted when it is first seen.
QIcon IconaDelSeguito();

}  // namespace corvana
