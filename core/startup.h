// How the process starts. Logic thread.
#pragma once

#include <functional>

#include "core/globals.h"
#include "core/languages.h"

namespace corvana {

/// Reads the stored language, sets the paths from `CartellaProgramma`, and shows the main window by
/// `mostraPrincipale`. When another instance runs it says so and returns false at once.
bool Main(const Ambiente& ambiente, bool altraIstanza,
          const std::function<void()>& mostraPrincipale);

/// Points the texts and the help to the language.
void PonLingua(Globali& globali, const Lingua& lingua);

}  // namespace corvana
