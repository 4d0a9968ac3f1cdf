// Where the ear trainer's controls lie, and the texts that they start with. Logic thread.
#pragma once

namespace corvana {

class frmInto;

void DisponiInto(frmInto& finestra);

}  // namespace corvana
