// The signs that stand beside a colour, for who can't tell colours apart: a tick for what is right
// or admitted, a cross for what is wrong or excluded. Everything grows with the scale. Pure
// painting; GUI thread.
#pragma once

#include <QPainter>

#include "desktop/aspect.h"

namespace corvana {

/// `scala` times the designed size.
void DipingiSegno(QPainter& p, const QPointF& centro, bool giusto, const QColor& colore,
                  double scala);

/// What a number of answers tells: "giuste" and "sbagliate" have their sign at the left of what
/// they count. With "esito" it is the last answer, and the sign stands in the middle.
void DipingiEsito(QPainter& p, const QRectF& area, const Aspetto& aspetto, double scala);

/// How many of a button's steps were gone: as many lamps beneath its words as `Max`, the first
/// `Value` of them lit.
void DipingiPassi(QPainter& p, const QRectF& area, const Aspetto& aspetto, double scala);

/// Tells the answer that is shown from its neighbours.
void DipingiSvelata(QPainter& p, const QRectF& area, double scala);

}  // namespace corvana
