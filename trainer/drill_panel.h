// The panel of the drill: `Start`, the score, and the run of questions, which in automatic mode is
// a loop inside the click of `Start`. Logic thread.
#pragma once

#include <array>
#include <cstdint>
#include <functional>

#include "forms/form.h"
#include "trainer/exercise_state.h"
#include "trainer/score_panel.h"

namespace corvana {

/// What a run makes of the rest of the window.
struct VicineEsercizio {
    /// False when a run begins and nothing else may be done, true when it is over.
    std::function<void(bool)> fermo;
    std::function<void(bool)> abilitaRisposte;
};

class PannelloEsercizio {
public:
    /// Makes the controls in `finestra`, which must have the notes of the staff; it and the rest
    /// must live as long as the panel. `nome` shows the name of the note.
    PannelloEsercizio(Form& finestra, const Ambiente& ambiente, StatoEsercizio& stato,
                      Etichetta& nome, VicineEsercizio vicine);

private:
    Form& finestra_;
    Ambiente a_;

public:
    Bottone Start{finestra_, "Start"};
    PannelloPunteggio punteggio{finestra_, a_.globali.testi};

    bool InCorso = false;                               ///< a run is in progress
    std::array<bool, numeroRisposte> RispostaGiusta{};  ///< at most one is true
    std::array<bool, numeroRisposte> TastoPremuto{};
    bool Risposto = false;  ///< automatic mode: this note has had its answer
    double InizioNota = 0;  ///< instant at which the note came up

    bool Corre() const { return Start.Caption() == "Stop"; }
    void Start_Click();
    void FermaEsercizio();
    void CicloAutomatico();
    /// Draws the next note, shows it and announces it.
    void Mostranota();
    void AnnunciaNota();
    /// An answer, 1 for DO to 7 for SI, by its button or its key.
    void DaiRisposta(int risposta);
    /// Judges an answer. Normal mode and a running drill only.
    void ControllaRisposta(int risposta);

private:
    /// True when the note's time is over, false when the run numbered `questa` is.
    bool AttendiRisposta(std::uint32_t questa);
    void LeggiTasti();
    void Giudica(int risposta);

    StatoEsercizio& stato_;
    Etichetta& nome_;
    VicineEsercizio vicine_;
    std::uint32_t corsa_ = 0;  ///< number of the run, so that a loop knows whether it is its own
};

}  // namespace corvana
