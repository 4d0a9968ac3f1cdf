// The ruler, on which a cursor marks the active note among staff lines. Logic thread.
#pragma once

#include "composer/composer_state.h"
#include "core/globals.h"

namespace corvana {

class PannelloRegolo {
public:
    /// All must live as long as the panel.
    PannelloRegolo(const Ambiente& ambiente, Form& finestra, StatoComposer& stato);

private:
    Form& finestra_;

public:
    Cornice Regolo{finestra_, "Regolo"};
    Etichetta lblCursore{finestra_, "lblCursore", &Regolo};
    Etichetta lblAccidente{finestra_, "lblAccidente", &Regolo};

    std::int16_t rigaCursore = 19;  ///< row of the cursor, smaller is higher
    std::int16_t notaCursore = 60;  ///< note under it

    /// The cursor goes to the note 60, at the window's load.
    void Carica();

private:
    void PonCursore();

    Ambiente a_;
    StatoComposer& stato_;
};

}  // namespace corvana
