// This machine as the program finds it: its own folder, the user's files, the outputs in their
// module. GUI thread.
#pragma once

#include <string>

#include "desktop/logic.h"
#include "sound/outputs/output_settings.h"

namespace corvana {

/// `cartellaEseguibile` is the folder of the program's executable, beside which its data and its
/// outputs lie. Makes the user's folders where they are missing. `applicazione` must outlive the
/// logic: the outputs are loaded when its first window has been painted. Of `uscite`, what depends
/// on this machine is set here.
Macchina QuestaMacchina(const Applicazione& applicazione, const std::string& cartellaEseguibile,
                        ImpostazioniUscite uscite = {});

}  // namespace corvana
