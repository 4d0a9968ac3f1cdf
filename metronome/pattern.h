// The rules of the metronome's meters and letters. Stateless; any thread.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "core/metronome_state.h"

namespace corvana {

constexpr int luciMetronomo = 20;
constexpr std::int16_t canalePercussioni = 10;
constexpr Colore coloreLuceSpenta = 0xAAAAAA;
/// Of each letter and of its light.
constexpr Colore coloreA = Rgb(255, 0, 0), coloreB = Rgb(0, 255, 0), coloreC = Rgb(0, 0, 255);

struct Metro {
    std::string_view tempo;
    std::string_view sequenza;
};

/// The fixed meters, in the order in which a click moves through them.
constexpr std::array<Metro, 4> metri = {
    {{"2/4", "ab"}, {"3/4", "abb"}, {"4/4", "abbb"}, {"6/8", "abbcbb"}}};

/// The meter after `tempo`; the first one after the last and after a label that isn't among them.
const Metro& MetroDopo(std::string_view tempo);

/// True for the pattern of a fixed meter.
bool SequenzaFissa(std::string_view sequenza);

/// Takes note and colour of a letter; any other letter keeps those before.
void PrendiLettera(StatoMetronomo& stato, char lettera);

/// Seconds for a pulse at `valore` beats a minute.
double Battito(int valore, int molt);

}  // namespace corvana
