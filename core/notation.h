// The program's vocabulary: pitches and their names, instruments. Stateless; any
// thread, but for the draws, which belong to the logic thread.
//
// Three numberings of pitch are in use. A MIDI number is 36 to 95, for the note trainer from 31. An
// `IndiceNota` is the MIDI number less 36. The three notes below index 0 have no negative index but
// the low codes 496, 498 and 500, for MIDI 31, 33 and 35.
#pragma once

#include <cstdint>
#include <string>

#include "core/random.h"

namespace corvana {

/// Index plus this is the MIDI number.
constexpr std::int16_t scartoIndiceNota = 36;

/// Name of a MIDI number from 36 to 95, of 0 (a rest), or of a low code plus 36 (532, 534, 536);
/// empty for any other. `nomiAnglo` gives C, D, E instead of Do, Re, Mi.
std::string NomeNota(std::int16_t midi, bool nomiAnglo);

/// Name of a General MIDI program, 0 to 127; empty for any other.
std::string NomeStrumento(std::int32_t programma);

/// A random whole number from `basso` to `alto`. Equal bounds draw no number.
std::int16_t CasualeIntero(Casuale& casuale, std::int16_t basso, std::int16_t alto);

/// The same by the bare formula: it draws a number also for equal bounds.
std::int16_t EstraiIntero(Casuale& casuale, std::int16_t basso, std::int16_t alto);

}  // namespace corvana
