// Changing what was entered: the arrows that walk a voice note by note, the frame of the note under
// the step, and the tools beside it that work on a voice's end and on the whole. Logic thread.
#pragma once

#include <functional>

#include "composer/composer_state.h"
#include "core/globals.h"
#include "melody/step_mode.h"

namespace corvana {

/// What editing uses and moves of the panels around it.
struct VicineModifica {
    std::function<void()> aggiornaVoce;  ///< the texts of the active voice have changed
    std::function<void()> togliNota;     ///< takes out the note behind the step
    std::function<Casella&()> primaNota, ultimaNota;  ///< the active voice's range boxes
    std::function<void()> sopranoIntero;              ///< the soprano's range is all of it
    std::function<void()> svuotaRiferimenti, spegniMetronomo, spegniLoop;
    std::function<void()> azzeraAttributi, nascondiAccento, fuocoInsNota;
    /// Plays the note under the step; with `soloNota`, which is read again meanwhile, it alone.
    std::function<void(const bool& soloNota)> suonaNota;
};

class PannelloModifica {
public:
    /// All must live as long as the panel.
    PannelloModifica(const Ambiente& ambiente, Form& finestra, StatoComposer& stato,
                     VicineModifica vicine);

private:
    Form& finestra_;

public:
    Bottone cmdCanc{finestra_, "cmdCanc"}, cmdReset{finestra_, "cmdReset"};
    std::array<Etichetta, 2> lblStep{{{finestra_, "lblStep0"}, {finestra_, "lblStep1"}}};
    Cornice frmModifica{finestra_, "frmModifica"};
    Etichetta lblActualNote{finestra_, "lblActualNote", &frmModifica};
    Combo cmbDurata{finestra_, "cmbDurata", &frmModifica};
    Combo cmbPer{finestra_, "cmbPer", &frmModifica};
    Combo cmbAttributi{finestra_, "cmbAttributi", &frmModifica};
    std::array<Bottone, 1> cmdModifica{{{finestra_, "cmdModifica0", &frmModifica}}};
    Bottone cmdInsertNote{finestra_, "cmdInsertNote", &frmModifica};
    Bottone cmdCancNota{finestra_, "cmdCancNota", &frmModifica};
    Bottone cmdNpp{finestra_, "cmdNpp", &frmModifica};

    /// A step back, 0, or forward, 1.
    void lblStep_Click(int Index);
    void cmbDurata_Click();
    void cmdModifica_Click();
    void cmdInsertNote_Click();
    void cmdCancNota_Click();
    void cmdNpp_Click();
    /// Drops the last note of the active voice.
    void cmdCanc_Click();

    /// The list's word for the duration of the note at `IndiceNotaPP`; "na" when it has none.
    std::string TestoDurata() const;
    /// The value chosen in `cmbDurata`, times `cmbPer`.
    double ValoreCombo() const;
    /// Leaves the step mode and hides its frame.
    void Chiudi();

private:
    void Collega();
    bool Muovi(int Index);
    void ApriPasso(const TrattoPasso& tratto);
    bool CambiaNota();
    void InserisciDietro();
    void SvuotaVoce(VoceMelodia& voce);
    void CaricaNota(std::int16_t indice);
    void MostraNota(std::int16_t nota);
    void MostraNumero(std::int16_t indice);
    std::string ParolaDi(const VoceMelodia& voce, std::int16_t indice) const;
    bool Pausa() const { return cmbAttributi.Text() == "p"; }
    bool ConSoprano() const { return stato_.melodia.IndiceAttiva() == soprano; }

    Ambiente a_;
    StatoComposer& stato_;
    StatoPasso& passo_;
    VicineModifica vicine_;
};

}  // namespace corvana
