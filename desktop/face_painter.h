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

/// Gradient or colour, and border, in the shape that the style words name: "tondo" has round
/// corners, "pulsante" is a raised button, "carta" a panel with a soft edge. Without any of them
/// nothing is painted.
void DipingiFondo(QPainter& p, const QRectF& area, const Aspetto& aspetto, double scala,
                  const Tocco& tocco);

/// The face of a push button in that colour, with its text.
void DipingiBottone(QPainter& p, const QRectF& area, const Aspetto& aspetto, double scala,
                    const Tocco& tocco);

/// The caption in the control's letters and colour.
void DipingiTesto(QPainter& p, const QRectF& area, const Aspetto& aspetto, double scala,
                  bool abilitato);

/// Tells which control has the keyboard.
void DipingiAnello(QPainter& p, const QRectF& area, double scala);

}  // namespace corvana
