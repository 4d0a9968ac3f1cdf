// Transposing the whole melody: by how many semitones, and the label that does it. Logic thread.
#pragma once

#include <functional>

#include "composer/composer_state.h"
#include "core/globals.h"

namespace corvana {

/// What the transposition moves of the panels around it.
struct VicineTrasposizione {
    std::function<void()> mostraNomi;  ///< all note names of the voices, whatever their ranges
    std::function<void()> fuocoPlay;
};

class PannelloTrasposizione {
public:
    /// All must live as long as the panel.
    PannelloTrasposizione(const Ambiente& ambiente, Form& finestra, StatoComposer& stato,
                          VicineTrasposizione vicine);

private:
    Form& finestra_;

public:
    Etichetta Label5{finestra_, "Label5"};
    std::array<Etichetta, 2> lblIDs{{{finestra_, "lblIDs0"}, {finestra_, "lblIDs1"}}};
    Etichetta lblSemitoni{finestra_, "lblSemitoni"};

    /// None waits, at the window's load.
    void Carica();

    /// 0 is for a semitone less, 1 for one more.
    void lblIDs_Click(int Index);
    void lblSemitoni_Click();
    /// All voices or none.
    void Trasponi();

private:
    void PonSemitoni(int semitoni);
    void Applica();

    Ambiente a_;
    StatoComposer& stato_;
    Melodia& melodia_;
    VicineTrasposizione vicine_;
};

}  // namespace corvana
