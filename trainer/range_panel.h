// The panel of the ranges: the list of exercises, and what a click on the ruler means. Logic
// thread.
#pragma once

#include <functional>

#include "forms/form.h"
#include "trainer/exercise_state.h"
#include "trainer/exercises.h"

namespace corvana {

class PannelloIntervalli {
public:
    /// Makes the controls in `finestra`, which must have the notes of the staff; it and the rest
    /// must live as long as the panel. `pronto` tells that a run may begin, or not.
    PannelloIntervalli(Form& finestra, StatoEsercizio& stato, Cornice& regolo,
                       std::function<void(bool)> pronto);

private:
    Form& finestra_;

public:
    Etichetta Intervallo{finestra_, "Intervallo"};
    Lista difficolt{finestra_, "difficolt"};

    SegniRegolo segni;
    bool CaricamentoLista = false;  ///< the next selection in the list comes from the program

    void difficolt_Click();
    /// Only Y matters, in twips from the ruler's top.
    void Regolo_MouseDown(int Button, int Shift, int X, int Y);
    void ImpostaIntervallo();
    /// Shows the limits that hold at the start, in the list or on the staff.
    void SelezionaRigaDiPartenza();

private:
    void PonLimiti(int uno, int altro);
    void VisualizzaLimiti();

    StatoEsercizio& stato_;
    std::function<void(bool)> pronto_;
};

}  // namespace corvana
