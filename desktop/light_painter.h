// A light of the metronome: its shape tells the pulse to who can't tell the colours apart, a square
// for red, a disc for green, a triangle for blue, a dot for a light that is out. Pure painting; GUI
// thread.
#pragma once

#include <QPainter>
#include <cstdint>

#include "forms/value.h"

namespace corvana {

enum class SagomaLuce : std::uint8_t { Punto, Quadro, Disco, Triangolo };

SagomaLuce SagomaDi(Colore colore);

void DipingiLuce(QPainter& p, const QRectF& area, Colore colore, double scala);

}  // namespace corvana
