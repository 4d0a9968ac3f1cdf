// The pulses that tick along with a melody, and what the lists of their panel mean. Any thread.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace corvana {

struct Battuta {
    bool metroAttivo = false;
    std::string pattern = "ab";  ///< the pulse letters
    std::uint8_t ultimoPulso = 1;
    std::uint8_t pulsoIniziale = 0;
    double durataPulso = 1;  ///< in quarter notes
};

/// A letter for each of 1 to 9 pulses: a for the strong one, b for a weak, c for a secondary one;
/// those of two pulses for any other text.
std::string_view LetterePulsi(std::string_view pulsazioni);

/// Quarter notes of a pulse whose note has that denominator, 1 to 16; 1 for any other text.
double DurataPulsi(std::string_view denominatore);

}  // namespace corvana
