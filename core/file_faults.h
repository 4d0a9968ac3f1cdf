// What the system says of a failed file operation, as a fault for a box. Any thread.
#pragma once

#include "forms/fault.h"

namespace corvana {

/// The fault for an errno: 61 for a full disk, 71 for a medium that is missing or doesn't answer,
/// the errno itself for all else; with the system's own description.
Guasto GuastoFile(int errore);

/// Throws the fault for an errno that isn't 0.
void Controlla(int errore);

}  // namespace corvana
