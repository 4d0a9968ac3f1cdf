// The paste, which repeats the range of the active voice at the voice's end. It takes two clicks;
// the label that shows between them is the state, and a click on it calls the paste off. It waits
// for as long as it shows, whatever else is done meanwhile. Logic thread.
#pragma once

#include <functional>

#include "composer/composer_state.h"

namespace corvana {

/// What the paste uses and moves of the panels around it.
struct VicineIncolla {
    std::function<void()> aggiornaVoce;  ///< the texts of the active voice have changed
    std::function<Casella&()> primaNota, ultimaNota;  ///< the active voice's range boxes
};

class PannelloIncolla {
public:
    /// All must live as long as the panel.
    PannelloIncolla(Form& finestra, StatoComposer& stato, VicineIncolla vicine);

private:
    Form& finestra_;

public:
    Etichetta lblIncolla{finestra_, "lblIncolla"};
    Bottone cmdPaste{finestra_, "cmdPaste"};

    void lblIncolla_Click();
    /// Throws `Guasto`, with the voice as it was, 13 or 6 when a box holds no number of 16 bits, 9
    /// when its range reaches out of the voice, 6 when the voice would get too long.
    void cmdPaste_Click();

private:
    void Conferma();

    StatoComposer& stato_;
    VicineIncolla vicine_;
};

}  // namespace corvana
