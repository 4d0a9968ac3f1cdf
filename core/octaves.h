// The notes that have a key among the five octaves, and which of the keys are black. Pure; any
// thread.
#pragma once

#include <array>
#include <cstdint>

namespace corvana {

constexpr std::int16_t notaPiuBassa = 36;
constexpr std::int16_t notaPiuAlta = 95;

/// The MIDI number has a key among the five octaves.
constexpr bool SullaTastiera(std::int16_t nota) {
    return nota >= notaPiuBassa && nota <= notaPiuAlta;
}

constexpr int tastiTastiera = 60;

/// By the key's place, from 0; false for a place where no key is.
constexpr bool TastoNero(int tasto) {
    constexpr std::array neri = {false, true,  false, true,  false, false,
                                 true,  false, true,  false, true,  false};
    return tasto >= 0 && tasto < tastiTastiera && neri[static_cast<std::size_t>(tasto % 12)];
}

}  // namespace corvana
