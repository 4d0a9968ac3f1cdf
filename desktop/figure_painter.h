// Paints the buttons of step entry, and the name of a voice. A lit one stands out by its ground, by
// a frame and by a lamp at its foot. Pure painting; GUI thread.
#pragma once

#include <QPainterPath>

#include "desktop/face_painter.h"

namespace corvana {

/// The sign that the style word "figura:" names: a number is a figure, 0 for a whole note to 6 for
/// a sixty-fourth; "punto", "staccato", "legatura", "terzina", "appoggiato" and "accento" are the
/// attributes, "maggiore" is the accent alone, "diesis" a sharp. In spaces of a staff, y growing
/// downwards; 0, 0 is where the left end of the head's middle lies. Empty for any other name.
QPainterPath TracciaFigura(const QString& nome);

/// The button with its sign. With the style word "nuda" the sign alone.
void DipingiFigura(QPainter& p, const QRectF& area, const Aspetto& aspetto, double scala,
                   const Tocco& tocco, bool accesa);

/// The button of a voice, with its lamp: a tick on the voice that is written, an empty ring on the
/// others.
void DipingiVoceAttiva(QPainter& p, const QRectF& area, const Aspetto& aspetto, double scala,
                       const Tocco& tocco, bool attiva);

}  // namespace corvana
