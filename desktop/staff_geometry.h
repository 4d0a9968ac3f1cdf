// Where notes stand on the double staff. Everything in twips on the picture of the staves, in which
// positions 11 to 31 belong to the bass staff and 40 to 64 to the treble staff. Pure.
#pragma once

#include <QPointF>
#include <vector>

namespace corvana {

constexpr double altezzaPosizione = 86.25;                  ///< from one white note to the next
constexpr double spazioPentagramma = 2 * altezzaPosizione;  ///< from one line to the next

constexpr int primaLineaBasso = 18, primaLineaViolino = 46;  ///< positions of the lowest lines
constexpr int lineePentagramma = 5;

constexpr double inizioLinee = 195, fineLinee = 6150;  ///< where the lines begin and end

/// The height of a position's ideal line.
double AltezzaDi(int posizione);

/// Positions of the short lines that a note at that position needs, from the staff outwards.
std::vector<int> LineeAggiunte(int posizione);

}  // namespace corvana
