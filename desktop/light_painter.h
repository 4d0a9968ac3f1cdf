// A light of the metronome: its shape tells the pulse to who can't tell the colours apart, a square
// for red, a disc for green, a triangle for blue, a dot for a light that is out. A lit one is much
// larger than its box and sheds light around it, to be seen from a music stand. Pure painting; GUI
// thread.
#pragma once

#include <QPainter>
#include <cstdint>

#include "forms/value.h"

namespace corvana {

enum class SagomaLuce : std::uint8_t { Punto, Quadro, Disco, Triangolo };

SagomaLuce SagomaDi(Colore colore);

/// Any of the three.
bool Accesa(Colore colore);

/// All that a light with this box can reach.
QRectF Bagliore(const QRectF& area, double scala);

void DipingiLuce(QPainter& p, const QRectF& area, Colore colore, double scala);

}  // namespace corvana
