// What the keys that step through something come to next. Pure; any thread.
#pragma once

#include <cstdint>

namespace corvana {

/// No key of the keyboard on the screen was used yet.
constexpr std::int16_t nessunTasto = 70;

struct PassoTasto {
    std::int16_t tasto = nessunTasto;  ///< the last key used, from now on
    bool premuto = false;              ///< it is to be pressed
    bool operator==(const PassoTasto&) const = default;
};

/// The key to the left, or to the right, of the last one used; the first time one beside middle C.
/// At the ends of the keyboard nothing is pressed.
PassoTasto TastoASinistra(std::int16_t tastoCorrente);
PassoTasto TastoADestra(std::int16_t tastoCorrente);

/// In a circle, by their places.
std::uint8_t FiguraPrecedente(std::uint8_t figura);
std::uint8_t FiguraSeguente(std::uint8_t figura);

/// The attribute button that is to be pressed so that the next attribute is chosen: dot, staccato,
/// appoggiato, accent, tie, triplet, none.
std::uint8_t BottoneAttributoSeguente(std::uint8_t attributo);

/// The note of the key Z: an octave higher, from the highest to the lowest one.
std::int16_t BaseSeguente(std::int16_t base);

}  // namespace corvana
