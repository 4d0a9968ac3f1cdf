// Melodies by chance, for properties: to be drawn within a property only.
#pragma once

#include "tests/melody/mel_content.h"

namespace corvana::prova {

/// One to four voices with tokens by the grammar and durations with `separatore`, the metronome on
/// or off, no bookmark or at least two.
ContenutoMel MelodiaACaso(char separatore);

}  // namespace corvana::prova
