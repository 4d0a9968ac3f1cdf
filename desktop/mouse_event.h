// What the logic is told of the mouse. GUI thread.
#pragma once

#include <QPointF>
#include <Qt>

#include "forms/event.h"

namespace corvana {

class Vista;

/// `posto` is in pixels from the control's upper left corner.
Evento EventoMouse(const Vista& vista, Fatto fatto, const QPointF& posto);

int NumeroBottone(Qt::MouseButton bottone);

}  // namespace corvana
