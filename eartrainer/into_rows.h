// The language rows of the ear trainer. Its strips `lblT` have none, which is as well: "lblT1" and
// "lblT2" are labels of their own. Any thread.
#pragma once

#include "core/language_targets.h"

namespace corvana {

Bersagli BersagliInto();

}  // namespace corvana
