// Music signs as paths, from a music font of the system; drawn by hand where there is none.
// GUI thread.
#pragma once

#include <QPainterPath>
#include <optional>

namespace corvana {

enum class Segno { ChiaveViolino, ChiaveBasso };

/// The sign for a staff whose lines are 1 apart: 0, 0 is the left end of its lowest line, y grows
/// downwards. The sign begins at x = 0.
const QPainterPath& TracciaSegno(Segno segno);
/// The same without any font.
QPainterPath TracciaSegnoAMano(Segno segno);

/// Any sign of the font whose signs all lie alike: a note's head stands on the lowest line, a rest
/// where it belongs. None where the machine hasn't got that font.
std::optional<QPainterPath> TracciaDelFont(char32_t codice);

/// A curly brace from 0, 0 down to 0, `altezza`, its point at -`larghezza`.
QPainterPath TracciaGraffa(double altezza, double larghezza);

}  // namespace corvana
