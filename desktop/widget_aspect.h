// Which control a widget shows, for the style that paints it. GUI thread.
#pragma once

#include "desktop/aspect.h"

class QWidget;

namespace corvana {

/// The aspect must outlive the widget, or at least its last painting.
void PonAspetto(QWidget& widget, const Aspetto& aspetto);

/// That of the control to which the widget, or what it lies in or dropped down from, belongs; null
/// in the toolkit's own boxes.
const Aspetto* AspettoDi(const QWidget* widget);

}  // namespace corvana
