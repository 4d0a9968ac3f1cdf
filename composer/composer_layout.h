// Where the melody window's controls lie, and the texts that they start with. Logic thread.
#pragma once

#include "forms/form.h"

namespace corvana {

/// Lays out the window, whose panels have been made.
void DisponiComposer(Form& finestra);

}  // namespace corvana
