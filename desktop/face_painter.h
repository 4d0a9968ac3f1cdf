// Paints what the faces of several kinds of controls share: ground, border, text, focus ring.
// GUI thread.
#pragma once

#include <QPainter>

#include "desktop/aspect.h"

namespace corvana {

/// The pointer's and the keyboard's hold on a control that is being painted.
struct Tocco {
    bool sopra = false;
    bool premuto = false;
    bool fuoco = false;
    bool abilitato = true;
};

/// Gradient or colour, and border, in the shape that a style word names; a plain rectangle without
/// one. A control with neither colour nor such a word shows what lies beneath it, and so does a
/// transparent one, of which the border alone is painted.
void DipingiFondo(QPainter& p, const QRectF& area, const Aspetto& aspetto, double scala,
                  const Tocco& tocco);

/// The face of a push button in that colour, with its text.
void DipingiBottone(QPainter& p, const QRectF& area, const Aspetto& aspetto, double scala,
                    const Tocco& tocco);

/// The caption in the control's letters and colour.
void DipingiTesto(QPainter& p, const QRectF& area, const Aspetto& aspetto, double scala,
                  bool abilitato);

/// The key of a keyboard, in the middle of `area`.
void DipingiTasto(QPainter& p, const QRectF& area, double scala);

/// Tells which control has the keyboard.
void DipingiAnello(QPainter& p, const QRectF& area, double scala);

}  // namespace corvana
