// The language rows of the pattern window. Any thread.
#pragma once

#include "core/language_targets.h"

namespace corvana {

Bersagli BersagliConfMetro();

}  // namespace corvana
