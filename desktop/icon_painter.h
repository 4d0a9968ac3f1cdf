// Paints the program's own pictures, which are part of the program. GUI thread.
#pragma once

#include <QIcon>
#include <QPainter>
#include <QStringList>

#include "desktop/face_painter.h"

namespace corvana {

/// True when one of the style words is "icona:" and a name.
bool EIcona(const QStringList& stile);

/// One of the program's pictures in the usual sizes, for what Qt paints itself.
QIcon IconaDelProgramma(const QString& nome);

/// The picture that the style words name, in the middle of `area`, as large as it fits.
void DipingiIcona(QPainter& p, const QRectF& area, const QStringList& stile, const Tocco& tocco);

}  // namespace corvana
