// Where a window is put on the screen. Pure; rectangles are in pixels and include the window's
// frame, `libero` is what of the screen windows may cover.
#pragma once

#include <QRect>

namespace corvana {

/// How small a window of that designed size may be made, as a share of it: as far as the smallest
/// screen asks for. Farther its letters couldn't be read, or would be cut off.
double ScalaMinima(QSize disegnata, double puntiPerPixel);

/// As much of that size as there is room for, no broader or narrower than it is.
QSize ConLaSuaForma(QSize misura, QSize spazio);

/// Moved, and made smaller where it must be, so that it lies on the screen as a whole.
QRect DentroSchermo(QRect finestra, const QRect& libero);

/// In the middle of the one beneath, and on the screen as a whole.
QRect AlCentro(QSize misura, const QRect& sotto, const QRect& libero);

/// Beside the other one, on the side where there is more room; narrower there, down to
/// `larghezzaMinima`, before it covers any of it.
QRect Accanto(QSize misura, int larghezzaMinima, const QRect& altra, const QRect& libero);

}  // namespace corvana
