// The metronome: its panel in the main window, and its loop, which runs inside the click of its own
// button and lets events through once a pulse. Logic thread.
#pragma once

#include <deque>
#include <functional>

#include "core/globals.h"
#include "forms/form.h"
#include "metronome/pattern.h"

namespace corvana {

class PannelloMetronomo {
public:
    /// Makes the panel's controls in `finestra`, inside its frame `frmMetro`. The window must have
    /// the menus `Risorse`, `es`, `Opzioni`, `f1`, the button `pdo` and the control `cmdEsci`, and
    /// live as long as the panel. `configura` shows the pattern window.
    PannelloMetronomo(const Ambiente& ambiente, Form& finestra, std::function<void()> configura);

private:
    Form& finestra_;
    Cornice& frmMetro_;

public:
    Figura BgMetro{finestra_, "BgMetro", &frmMetro_};
    Etichetta frmMetroC{finestra_, "frmMetroC", &frmMetro_};
    Etichetta lblCloseMetro{finestra_, "lblCloseMetro", &frmMetro_};
    /// The lights, "lblPuls0" to "lblPuls19".
    std::deque<Etichetta> lblPuls;
    Etichetta lblTs{finestra_, "lblTs", &frmMetro_};
    Etichetta lblTempo{finestra_, "lblTempo", &frmMetro_};
    Barra MetroTempoS{finestra_, "MetroTempoS", &frmMetro_};
    Etichetta lblX12{finestra_, "lblX12", &frmMetro_};
    Barra MetroVol{finestra_, "MetroVol", &frmMetro_};
    Bottone cmdSetup{finestra_, "cmdSetup", &frmMetro_};
    Bottone cmdSSmetro{finestra_, "cmdSSmetro", &frmMetro_};

    /// Puts the defaults in place, at the main window's load.
    void Carica();
    /// Sets the tool tip of `lblX12` from the language strings.
    void ConsigliaX12();

    void mnuMetro_Click();
    void lblCloseMetro_Click();
    void cmdSSmetro_Click();
    void lblTs_Click();
    void lblX12_Click();
    void MetroTempoS_Change();
    void MetroTempoS_Scroll();
    void MetroVol_Change();
    void cmdSetup_Click();

    /// Opens the panel, or closes it when it is open; not while the metronome runs.
    void Alterna();

private:
    void MetroAvvia();
    void MetroFerma();
    void MetroCiclo(const std::string& sequenza);
    void SpegniSuoni();
    void MetroSpegni();
    /// The first lights, one for each letter, become grey and visible; the others stay.
    void MetroMostraLuci(const std::string& sequenza);
    void SpegniENascondi();
    void Pulso(std::size_t posto);
    void PonComandi(bool abilita);
    StatoMetronomo& Stato() { return a_.globali.metronomo; }

    Ambiente a_;
    std::function<void()> configura_;
};

}  // namespace corvana
