// The notes that have a key among the five octaves, as MIDI numbers. Pure; any thread.
#pragma once

#include <cstdint>

namespace corvana {

constexpr std::int16_t notaPiuBassa = 36;
constexpr std::int16_t notaPiuAlta = 95;

constexpr bool SullaTastiera(std::int16_t nota) {
    return nota >= notaPiuBassa && nota <= notaPiuAlta;
}

}  // namespace corvana
