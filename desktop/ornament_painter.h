// A faint ribbon of music along the bottom of a window's ground, where nothing else lies: style
// "ornamento". GUI thread.
#pragma once

#include <QPainter>

namespace corvana {

/// In pixels; `scala` times the designed size.
void DipingiOrnamento(QPainter& p, const QRectF& area, double scala);

}  // namespace corvana
