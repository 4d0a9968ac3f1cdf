// The panel of the staves: the notes on them, the ruler beside them, the note's name. Logic thread.
#pragma once

#include <deque>

#include "core/globals.h"
#include "core/hover.h"
#include "forms/form.h"

namespace corvana {

class PannelloPentagramma {
public:
    /// Makes the controls in `finestra`, which must live as long as the panel.
    PannelloPentagramma(Form& finestra, HoverFinestra& hover);

private:
    Form& finestra_;

public:
    FiguraLetta img{finestra_, "img"};
    /// The note controls "n11" to "n31" and "n40" to "n64", on the picture of the staves.
    std::deque<FiguraLetta> n;
    Cornice Regolo{finestra_, "Regolo"};
    Etichetta lblnn{finestra_, "lblnn"};
    Etichetta lblMn{finestra_, "lblMn"};

    /// Tells the staff and the places on it in the language of these texts.
    void PonParole(const TestiLingua& testi);
    /// Shows or hides the note's name.
    void lblMn_Click();

private:
    void DisponiNote();
};

}  // namespace corvana
