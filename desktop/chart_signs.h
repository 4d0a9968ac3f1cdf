// The signs of the reference chart as paths, in spaces of a staff, y growing downwards: from the
// music font where the machine has it, else drawn by hand. GUI thread.
#pragma once

#include <QPainterPath>

namespace corvana {

constexpr int valoriDelleNote = 7;  ///< whole to sixty-fourth

struct SegniTavola {
    /// Its left end at x = 0, the place that it alters at y = 0.
    QPainterPath (*alterazione)(bool diesis);
    /// A note with its stem up; the left end and the middle of its head at 0, 0.
    QPainterPath (*nota)(int valore);
    /// The lowest line of its staff at y = 0, its left end at x = 0.
    QPainterPath (*pausa)(int valore);
};

/// What the chart is painted with.
SegniTavola SegniDellaTavola();
/// The same without any font.
SegniTavola SegniTavolaAMano();

}  // namespace corvana
