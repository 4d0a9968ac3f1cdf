// How the program gets its outputs, which lie in a module beside it: the audio libraries and what
// these need are two thirds of all that it loads, and its windows need none of them.
#pragma once

#include <functional>

#include "sound/outputs/output_settings.h"
#include "sound/platform_midi.h"

namespace corvana {

/// Its one entry: makes outputs that belong to the caller.
constexpr const char* entrataUscite = "CreaUscite";
using CreazioneUscite = PiattaformaMidi*(const std::function<double()>& istante,
                                         const ImpostazioniUscite& impostazioni);

}  // namespace corvana
