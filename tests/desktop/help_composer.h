// The pictures of the melody window. GUI thread.
#pragma once

#include "tests/desktop/help_photographer.h"

namespace corvana::prova {

/// Opens it from the main window, enters a few notes, plays a melody, and comes back.
void FinestraComposizione(Fotografo& f);

}  // namespace corvana::prova
