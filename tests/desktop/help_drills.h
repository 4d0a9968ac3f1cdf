// The pictures of the five drills for the ear. GUI thread.
#pragma once

#include "tests/desktop/help_photographer.h"

namespace corvana::prova {

/// Opens each drill from the main window, plays it a little, and comes back.
void EserciziOrecchio(Fotografo& f);

}  // namespace corvana::prova
