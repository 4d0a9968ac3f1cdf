// Paints the double staff and its notes. In twips on the picture of the staves; the painter is
// scaled by the caller. GUI thread.
#pragma once

#include <QPainter>

namespace corvana {

/// The sheet on which the staves stand, up against the window's edges.
void DipingiFoglio(QPainter& p, const QSizeF& misura, double pixel);

/// Lines, brace and clefs. `pixel` is one pixel of the screen in twips: the lines are as thick as a
/// whole number of them and lie on them, and so stay sharp.
void DipingiPentagrammi(QPainter& p, double pixel);

/// A note head at that position, its middle at `x`, with the short lines that it needs.
void DipingiNota(QPainter& p, int posizione, double x, double pixel);

/// What `DipingiNota` paints on at most.
QRectF AreaNota(int posizione, double x);

}  // namespace corvana
