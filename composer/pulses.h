// What the lists of the melody's metronome mean. Any thread.
#pragma once

#include <string_view>

namespace corvana {

/// A letter for each of 1 to 9 pulses: a for the strong one, b for a weak, c for a secondary one;
/// those of two pulses for any other text.
std::string_view LetterePulsi(std::string_view pulsazioni);

/// Quarter notes of a pulse whose note has that denominator, 1 to 16; 1 for any other text.
double DurataPulsi(std::string_view denominatore);

}  // namespace corvana
