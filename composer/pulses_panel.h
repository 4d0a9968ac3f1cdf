// The panel of the pulses that tick along with a melody. Logic thread.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "composer/pulses.h"
#include "forms/form.h"
#include "melody/mel_writer.h"

namespace corvana {

class PannelloPulsi {
public:
    /// `finestra` must live as long as the panel.
    explicit PannelloPulsi(Form& finestra);

private:
    Form& finestra_;

public:
    Etichetta Label6{finestra_, "Label6"};  ///< its heading
    Etichetta lblTs{finestra_, "lblTs"};
    Cornice frMetro{finestra_, "frMetro"};
    Combo Pulsazioni{finestra_, "Pulsazioni", &frMetro};
    Combo DurataPulsazioni{finestra_, "DurataPulsazioni", &frMetro};
    Barra InizioPuls{finestra_, "InizioPuls", &frMetro};
    Etichetta LblInizioPuls{finestra_, "LblInizioPuls", &frMetro};
    Barra VolumeMetro{finestra_, "VolumeMetro", &frMetro};
    Etichetta lblDebug{finestra_, "lblDebug", &frMetro};

    Battuta battuta;

    /// Chooses the defaults, at the window's load.
    void Carica();
    void Spegni();

    void lblTs_Click();
    /// Shows the counter of pulses in the panel, or hides it: nothing else tells of it.
    void Label6_DblClick();
    void Pulsazioni_Click();
    void DurataPulsazioni_Click();
    void InizioPuls_Change();

    /// Velocity of a pulse.
    std::int16_t Forza() const;
    /// Counts a pulse that was struck, while the counter is shown.
    void ContaPulso();

    /// Takes the settings from a file's line, of which they are the fields 1 to 3. Whether the
    /// metronome is on stays. Throws `Guasto` for what the controls can't hold.
    void Prendi(const std::vector<std::string>& campi);
    /// What a file keeps; nothing while the metronome is off.
    std::optional<MetronomoMel> DaScrivere() const;

private:
    void Prepara();
    void PonMetronomo(bool attivo, Colore fondo, Colore lettere);

    int pulsiContati_ = 0;
};

}  // namespace corvana
