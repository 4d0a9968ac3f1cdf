// The page that asks for a key by name: the name is shown and its note sounds, and the learner
// clicks the key, in any octave. Logic thread.
#pragma once

#include "eartrainer/into_frame.h"

namespace corvana {

class PaginaTasti {
public:
    /// Makes the controls; the frame must live as long as the page.
    explicit PaginaTasti(TelaioInto& telaio);

private:
    TelaioInto& t_;

public:
    Cornice frmRicTasto{t_.finestra, "frmRicTasto"};
    Etichetta lblSceltaTasti{t_.finestra, "lblSceltaTasti", &frmRicTasto};
    Bottone cmdRicTasto{t_.finestra, "cmdRicTasto", &frmRicTasto};

    std::string NomeChiesto;  ///< the name asked for, once judged in its plain spelling

    /// At the window's load.
    void Carica();
    /// What entering the page does beyond what all pages do. `titolo` is the page's name.
    void Entra(const std::string& titolo);

    void cmdRicTasto_Click();
    void lblSceltaTasti_Click();
    /// A click on a key of the keyboard, while this page is in front.
    void Tasto(std::int16_t indice);

private:
    void TastoDomanda();
    std::string TastoScegli();
    bool TastoGiusto(std::int16_t indice);
};

}  // namespace corvana
