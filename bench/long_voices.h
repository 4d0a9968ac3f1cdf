// Voices as long as a measurement wants them, the same at every run. Any thread.
#pragma once

#include <span>
#include <string_view>

#include "melody/melody.h"

namespace corvana::misura {

/// Tokens that a voice's notes take in turn.
struct StileVoce {
    std::span<const std::string_view> durate;
    std::string_view attributi;
};

/// As a learner's melody has them: plain, dotted, a triplet, short ones, all attributes.
extern const StileVoce stileMisto;
/// So short that a note begins every few ticks.
extern const StileVoce stileFitto;

/// Sets the texts of a voice: `note` tokens each, every eleventh note a rest. `variante` tells
/// voices apart by their pitches. The texts aren't split yet.
void Riempi(VoceMelodia& voce, long note, const StileVoce& stile, int variante);

/// All four voices in that way, each with pitches of its own.
void Riempi(Melodia& melodia, long note, const StileVoce& stile, int variante);

}  // namespace corvana::misura
