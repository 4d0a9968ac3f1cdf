// Changing what was entered: the frame of the note under the step, and the tools beside it that
// work on a voice's end. Logic thread.
#pragma once

#include "composer/composer_state.h"
#include "core/globals.h"

namespace corvana {

class PannelloModifica {
public:
    /// All must live as long as the panel.
    PannelloModifica(const Ambiente& ambiente, Form& finestra, StatoComposer& stato);

private:
    Form& finestra_;

public:
    Bottone cmdCanc{finestra_, "cmdCanc"}, cmdPaste{finestra_, "cmdPaste"};
    Cornice frmModifica{finestra_, "frmModifica"};
    Combo cmbDurata{finestra_, "cmbDurata", &frmModifica};
    Combo cmbPer{finestra_, "cmbPer", &frmModifica};
    Combo cmbAttributi{finestra_, "cmbAttributi", &frmModifica};

    /// The list's word for the duration of the note at `IndiceNotaPP`; "na" when it has none.
    std::string TestoDurata() const;
    /// The value chosen in `cmbDurata`, times `cmbPer`.
    double ValoreCombo() const;
    /// Leaves the step mode and hides its frame.
    void Chiudi();

private:
    Ambiente a_;
    StatoComposer& stato_;
};

}  // namespace corvana
