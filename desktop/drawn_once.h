// Pictures that are drawn once for each size in points of the screen, and kept as long as there is
// room for them. GUI thread.
#pragma once

#include <QPainter>
#include <QPixmap>
#include <functional>

namespace corvana {

/// The picture of that name, `misura` points of the screen large, of which `densita` go to a pixel.
/// When it isn't kept, `disegna` draws it, point by point. A name stands for one drawing.
QPixmap DisegnatoUnaVolta(const QString& nome, const QSize& misura, double densita,
                          const std::function<void(QPainter&)>& disegna);

/// Fills the path where the painter stands, which may be moved and scaled, but not turned: what
/// `fillPath` would paint.
void RiempiUnaVolta(QPainter& p, const QString& nome, const QPainterPath& traccia,
                    const QColor& colore);

}  // namespace corvana
