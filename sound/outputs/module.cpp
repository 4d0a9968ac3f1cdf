#include "sound/outputs/module.h"

#include <type_traits>

#include "sound/outputs/real_outputs.h"

extern "C" [[gnu::visibility("default")]] corvana::PiattaformaMidi* CreaUscite(
    const std::function<double()>& istante, const corvana::ImpostazioniUscite& impostazioni) {
    return new corvana::UsciteReali(istante, impostazioni);
}

static_assert(std::is_same_v<decltype(CreaUscite), corvana::CreazioneUscite>);
