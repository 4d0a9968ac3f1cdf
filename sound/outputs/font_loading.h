// Loads the sound font in the background and hands the synthesiser to the mixer. Any thread.
#pragma once

#include <memory>

#include "sound/outputs/abandonable_thread.h"
#include "sound/outputs/engine.h"
#include "sound/outputs/output_settings.h"

namespace corvana {

/// Loads the font into the mixer, and the cues of the settings' folder; false when the font can't
/// be read.
bool CaricaMotore(MotoreSonoro& motore, const ImpostazioniUscite& impostazioni);

class CaricamentoFont {
public:
    CaricamentoFont(std::shared_ptr<MotoreSonoro> motore, const ImpostazioniUscite& impostazioni);
    /// True when the synthesiser stands ready, which is waited for ten seconds at most.
    bool Pronto();

private:
    std::shared_ptr<bool> esito_;
    FiloAbbandonabile filo_;
};

}  // namespace corvana
