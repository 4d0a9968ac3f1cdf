// The page that trains pitch: a note sounds, after a fixed reference or without it, and the learner
// clicks its key. The range and the reference are the learner's, and are kept between visits.
// Logic thread.
#pragma once

#include "eartrainer/into_frame.h"
#include "eartrainer/range_steps.h"
#include "eartrainer/stored_state.h"

namespace corvana {

class PaginaIntonazione final : public DomandaIntonazione {
public:
    /// Makes the controls; the frame must live as long as the page.
    explicit PaginaIntonazione(TelaioInto& telaio);

private:
    TelaioInto& t_;

public:
    Cornice frmInto2{t_.finestra, "frmInto2"};
    Etichetta Label6{t_.finestra, "Label6", &frmInto2}, lblMod{t_.finestra, "lblMod", &frmInto2};
    // A little keyboard, with two black keys that pale when only white ones are asked.
    Etichetta lblSolotb{t_.finestra, "lblSolotb", &frmInto2};
    Etichetta lblT1{t_.finestra, "lblT1", &frmInto2}, lblT2{t_.finestra, "lblT2", &frmInto2};
    Bottone IntoStart{t_.finestra, "IntoStart", &frmInto2};
    Bottone cmdReimposta{t_.finestra, "cmdReimposta", &frmInto2};
    Cornice frInto{t_.finestra, "frInto", &frmInto2};
    Etichetta lblRipInto{t_.finestra, "lblRipInto", &frInto};
    Etichetta lblIntoSh{t_.finestra, "lblIntoSh", &frInto};
    Etichetta lblIntoNN{t_.finestra, "lblIntoNN", &frInto};

    bool IntoEstensioneOk = false;              ///< both limits are chosen
    bool IntoRifOk = false;                     ///< the click that completed the range is behind
    bool IntoPronto = false;                    ///< clicks on keys are answers
    bool IntoFermato = false;                   ///< after a Stop clicks on keys are nothing
    bool OkAlterna = false, KoAlterna = false;  ///< flip at each answer of their kind

    /// At the window's load.
    void Carica();
    /// What entering the page does beyond what all pages do.
    void Entra();
    /// Another page is entered.
    void Nascondi();

    void IntoStart_Click();
    void cmdReimposta_Click();
    void lblRipInto_Click();
    void lblIntoSh_Click();
    void lblMod_Click();
    void lblSolotb_Click();
    /// A click on a key of the keyboard, while this page is in front.
    void Tasto(std::int16_t indice);
    /// What is to be stored.
    StatoMemorizzato Memorizza() const;

    std::int16_t ScegliIntoNota() override;
    bool NomeInVista() const override { return lblIntoSh.Caption().empty(); }
    void MostraNome(std::int16_t intoNota) override;
    void sw(std::int16_t nota, bool acceso) override { t_.sw(nota, acceso); }
    bool ConRiferimento() const override { return t_.Stato().ConRiferimento == 1; }

private:
    void IntoRipristina();
    void PrendiMemorizzato();
    void IntoFissaEstensione(std::int16_t indice);
    bool FissaLimite(std::int16_t indice);
    void SpostaRiferimento(std::int16_t indice);
    void Avvia();
    void Ferma();
    /// The reference, if it is on, then the next question. Nothing once the window has closed.
    void IntoDomanda();
    void SuonaRiferimento();
    void Giudica(std::int16_t indice);
    void MostraStart();
    Estensione Limiti() const { return {t_.Stato().IntoBasso, t_.Stato().IntoAlto}; }
};

}  // namespace corvana
