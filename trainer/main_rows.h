// The language rows of the main window, the metronome's panel in it included. Any thread.
#pragma once

#include "core/language_targets.h"

namespace corvana {

Bersagli BersagliPrincipali();

}  // namespace corvana
