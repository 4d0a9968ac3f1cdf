// The parts of the melody window's layout that have a source of their own. Logic thread.
#pragma once

namespace corvana {

class frmComposer;

/// The four rows of the voices.
void DisponiVoci(frmComposer& finestra);
/// What lies between them and the keyboard, and beside it: pulses, steps, bookmarks, the palette of
/// step entry, and over that the list of melodies.
void DisponiSchede(frmComposer& finestra);

}  // namespace corvana
