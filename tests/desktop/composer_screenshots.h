// Pictures of the melody window in its states, to be looked at by a person. GUI thread.
#pragma once

#include <functional>

#include "tests/desktop/screen.h"

namespace corvana::prova {

/// Opens the window from the main one and closes it again. `scatta` takes a picture of the window
/// in front under that name.
void FotografaComposer(Scrivania& scrivania, const std::function<void(const QString&)>& scatta);

}  // namespace corvana::prova
