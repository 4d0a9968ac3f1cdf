// Where the instrument picker's controls lie. Logic thread.
#pragma once

namespace corvana {

class frmStrum;

void DisponiStrumenti(frmStrum& finestra);
/// The list becomes shorter, so that the voices have room above it.
void FaPostoAlleVoci(frmStrum& finestra);

}  // namespace corvana
