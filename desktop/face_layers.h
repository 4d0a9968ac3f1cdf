// How the painted controls of a face lie one over the other: for their painting, and for what the
// pointer meets. GUI thread.
#pragma once

#include <functional>

#include "desktop/painted_view.h"

namespace corvana {

/// Calls it for each painted control that lies in `vista` and has no face of its own, from the
/// lowest to the uppermost.
void PerOgniStrato(const VistaDipinta& vista, const std::function<void(VistaDipinta&)>& azione);

/// Paints what is to be seen of `terra` and of all that lies in it within `scoperto`, to which the
/// painter keeps, as that of a paint event does.
void DipingiStrati(QPainter& p, VistaDipinta& terra, const QRegion& scoperto,
                   const std::function<Tocco(const VistaDipinta&)>& tatto);

/// What of all that lies in `terra` is on top there; null where there is nothing.
VistaDipinta* InCima(VistaDipinta& terra, const QPoint& punto);

}  // namespace corvana
