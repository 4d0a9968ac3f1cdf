// Where the melody window's controls lie, and the texts that they start with. Logic thread.
#pragma once

namespace corvana {

class frmComposer;

/// Lays out the window, whose panels have been made.
void DisponiComposer(frmComposer& finestra);

}  // namespace corvana
