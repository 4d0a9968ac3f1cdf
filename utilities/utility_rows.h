// The language rows of the small windows. Any thread.
#pragma once

#include "core/language_targets.h"

namespace corvana {

Bersagli BersagliMidiTest();
Bersagli BersagliAbout();
Bersagli BersagliOptions();

}  // namespace corvana
