// Where the controls of the reference chart lie, with their texts and colours. Logic thread.
#pragma once

namespace corvana {

class frmOptions;

void DisponiPromemoria(frmOptions& form);

}  // namespace corvana
