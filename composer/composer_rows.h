// The language rows of the melody window and of the one that copies from a diskette. Any thread.
#pragma once

#include "core/language_targets.h"

namespace corvana {

Bersagli BersagliComposer();
Bersagli BersagliCopyFromA();

}  // namespace corvana
