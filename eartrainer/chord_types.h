// The triads of the chord drill, all in root position. Pure; any thread.
#pragma once

#include <array>
#include <cstdint>

namespace corvana {

struct TipoAccordo {
    const char* nome;
    std::int16_t seconda, terza;  ///< semitones above the root
};

/// By type: minor, major, diminished, augmented.
constexpr std::array<TipoAccordo, 4> tipiAccordo = {
    {{"Min", 3, 7}, {"Mag", 4, 7}, {"Dim", 3, 6}, {"Ecc", 4, 8}}};

/// MIDI numbers, lowest first.
constexpr std::array<std::int16_t, 3> NoteAccordo(std::int16_t fondamentale, std::int16_t tipo) {
    const TipoAccordo& accordo = tipiAccordo.at(static_cast<std::size_t>(tipo));
    return {fondamentale, static_cast<std::int16_t>(fondamentale + accordo.seconda),
            static_cast<std::int16_t>(fondamentale + accordo.terza)};
}

}  // namespace corvana
