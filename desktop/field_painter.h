// What the user fills in or chooses from: drop-down lists, text boxes and the frames of lists, in
// the colours of their controls. Everything grows with the scale. Pure painting; GUI thread.
#pragma once

#include <QStyleOption>

#include "desktop/face_painter.h"

namespace corvana {

/// A drop-down list, closed or open, without the text.
void DipingiScelta(QPainter& p, const QStyleOptionComboBox& o, const Aspetto& aspetto, double scala,
                   const Tocco& tocco);
/// The text that was chosen in it.
void DipingiTestoScelto(QPainter& p, const QStyleOptionComboBox& o, const Aspetto& aspetto,
                        double scala);

/// What lies beneath the text of a box. "giuste" and "sbagliate" have a mark there.
void DipingiCasella(QPainter& p, const QRectF& area, const Aspetto& aspetto, double scala,
                    bool fuoco);

/// What lies beneath the rows of a list.
void DipingiElenco(QPainter& p, const QRectF& area, const Aspetto& aspetto, double scala,
                   bool fuoco);

}  // namespace corvana
