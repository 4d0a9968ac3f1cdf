// The panel of the seven answers. Logic thread.
#pragma once

#include <array>
#include <functional>

#include "forms/form.h"
#include "trainer/exercise_state.h"

namespace corvana {

class PannelloRisposte {
public:
    /// Makes the buttons in `finestra`, which must live as long as the panel. `dai` takes the
    /// answer of a click, 1 for DO to 7 for SI.
    PannelloRisposte(Form& finestra, const std::function<void(int)>& dai);

private:
    Form& finestra_;

public:
    Bottone pdo{finestra_, "pdo"}, pre{finestra_, "pre"}, pmi{finestra_, "pmi"},
        pfa{finestra_, "pfa"}, psol{finestra_, "psol"}, pla{finestra_, "pla"},
        psi{finestra_, "psi"};

    void Abilita(bool abilita);
    /// C, D, E or DO, RE, MI.
    void PonNomi(bool anglo);

private:
    std::array<Bottone*, numeroRisposte> Bottoni();
};

}  // namespace corvana
