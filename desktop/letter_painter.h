// A letter of the metronome's pattern on its plate. Its own colour is whatever it is, so that an
// outline gives it what it lacks on a light ground. Pure painting; GUI thread.
#pragma once

#include "desktop/face_painter.h"

namespace corvana {

void DipingiLettera(QPainter& p, const QRectF& area, const Aspetto& aspetto, double scala,
                    const Tocco& tocco);

}  // namespace corvana
