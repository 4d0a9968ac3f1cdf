// The flags by which the main window says which page of the ear trainer it wants.
// Pure; any thread.
#pragma once

#include "core/ear_trainer_state.h"

namespace corvana {

/// The flags after a page was entered: its own is set, and only some of the others are cleared, so
/// that several can stand.
BandiereInto DopoIngresso(BandiereInto bandiere, PaginaInto pagina);

/// The page of the help for it.
int AiutoDi(PaginaInto pagina);

}  // namespace corvana
