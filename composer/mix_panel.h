// The mix: which voice is the active one, what plays each voice, and how loud. Logic thread.
#pragma once

#include <functional>

#include "composer/composer_state.h"
#include "core/globals.h"

namespace corvana {

/// What the mix moves and reads of the panels around it.
struct VicineMix {
    std::function<void(bool)> abilitaAddBm;                   ///< only the soprano has bookmarks
    std::function<std::string(std::size_t voce)> fineTratto;  ///< what a last-note box shows
    std::function<void()> fuocoPlay;
};

class PannelloMix {
public:
    /// All must live as long as the panel.
    PannelloMix(const Ambiente& ambiente, Form& finestra, StatoComposer& stato, VicineMix vicine);

private:
    Form& finestra_;

public:
    std::array<Etichetta, numeroVoci> VoceAttiva{{{finestra_, "VoceAttiva0"},
                                                  {finestra_, "VoceAttiva1"},
                                                  {finestra_, "VoceAttiva2"},
                                                  {finestra_, "VoceAttiva3"}}};
    std::array<Etichetta, numeroVoci> lblInstr{{{finestra_, "lblInstr0"},
                                                {finestra_, "lblInstr1"},
                                                {finestra_, "lblInstr2"},
                                                {finestra_, "lblInstr3"}}};
    /// The solo buttons.
    std::array<EtichettaAPassi, numeroVoci> lblMuteC{{{finestra_, "lblMuteC0"},
                                                      {finestra_, "lblMuteC1"},
                                                      {finestra_, "lblMuteC2"},
                                                      {finestra_, "lblMuteC3"}}};
    Barra VolS{finestra_, "VolS"}, VolC{finestra_, "VolC"};
    Barra VolT{finestra_, "VolT"}, VolB{finestra_, "VolB"};
    Etichetta lblVolS{finestra_, "lblVolS"}, lblVolC{finestra_, "lblVolC"};
    Etichetta lblVolT{finestra_, "lblVolT"}, lblVolB{finestra_, "lblVolB"};

    /// How far each solo button has been pressed, 0 to 2.
    std::array<std::uint8_t, numeroVoci> statoSolo{};

    /// The controls that each voice has its own of.
    struct ControlliVolume {
        Barra& volume;
        Etichetta& percento;
    };
    const std::array<ControlliVolume, numeroVoci> perVoce{
        {{VolS, lblVolS}, {VolC, lblVolC}, {VolT, lblVolT}, {VolB, lblVolB}}};

    /// All voices get the instrument of the main window, at the window's load.
    void Carica();

    /// Makes a voice the active one; an index outside of 0 to 3 does nothing.
    void VoceAttiva_Click(int Index);
    /// First the others go down, then they are silent, then all are back.
    void lblMuteC_Click(int Index);
    /// That voice alone is to be heard.
    void lblVol_Click(std::size_t voce);
    void ResetVolumi();

    void mnuPiano_Click();
    void mnuOrgano_Click();
    /// Gives the active voice an instrument.
    void SceltaStrum(std::int32_t programma);
    /// Sends and shows the instruments of a melody that was loaded.
    void MandaStrumenti();

private:
    void Prepara(std::size_t voce);
    void MostraPassi();
    void ColoraVoci(std::size_t scelta);
    void PonVolumi(std::size_t voce, int altre);
    void PonStrumenti(std::int32_t programma);
    void MandaStrumento(std::size_t voce);
    void MostraStrumento(std::size_t voce);
    static void VolumeCambiato(const ControlliVolume& voce);

    Ambiente a_;
    StatoComposer& stato_;
    Melodia& melodia_;
    VicineMix vicine_;
};

}  // namespace corvana
