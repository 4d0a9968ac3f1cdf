// Writes a melody as the bytes of its file. Any thread.
#pragma once

#include <optional>
#include <string>

#include "melody/melody.h"

namespace corvana {

/// The metronome as the composer's lists and bar show it.
struct MetronomoMel {
    std::string pulsazioni;        ///< 1 to 9
    std::string durataPulsazioni;  ///< 1, 2, 4, 8 or 16
    int inizioPuls = 1;
};

struct DaScrivere {
    const std::array<VoceMelodia, numeroVoci>& voci;
    int tempo = 60;
    std::optional<MetronomoMel> metronomo;  ///< only when it is on
    std::string riferimenti;                ///< as one text; empty for none
};

/// The soprano is always written, the other voices when they have note texts. Throws `Guasto` 5
/// when a text holds a character that the file's code page doesn't have.
std::string ScriviMel(const DaScrivere& melodia);

}  // namespace corvana
