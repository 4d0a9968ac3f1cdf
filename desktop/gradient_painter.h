// Paints a band of colour. GUI thread; the colours are pure.
#pragma once

#include <QBrush>
#include <QRectF>
#include <array>

#include "forms/value.h"

namespace corvana {

/// A gradient is this many lines, whatever the size of what it fills.
constexpr int righeSfumatura = 280;

/// The colours of its lines, from the top or from the left.
std::array<QRgb, righeSfumatura> RigheSfumatura(const Sfumatura& sfumatura);

/// Fills `area` with the lines.
QBrush PennelloSfumatura(const Sfumatura& sfumatura, const QRectF& area);

}  // namespace corvana
