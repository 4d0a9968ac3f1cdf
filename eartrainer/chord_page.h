// The page that trains the four triads: one sounds on a root of the learner's range, and the
// learner clicks its type. It is held until the next question. Logic thread.
#pragma once

#include "eartrainer/chord_types.h"
#include "eartrainer/into_frame.h"

namespace corvana {

class PaginaAccordi {
public:
    /// Makes the controls; the frame must live as long as the page. `neutro` is the background of
    /// an answer at rest.
    PaginaAccordi(TelaioInto& telaio, std::function<Colore()> neutro);

private:
    TelaioInto& t_;

public:
    Cornice frmRacc{t_.finestra, "frmRacc"};
    std::deque<Etichetta> TipoAcc;  ///< the answers, by type
    std::deque<Etichetta> EsclTa;   ///< the strips that say whether they may be asked
    Bottone ComdRacStart{t_.finestra, "ComdRacStart", &frmRacc};
    Bottone cmdRes{t_.finestra, "cmdRes", &frmRacc};
    Etichetta lblRipta{t_.finestra, "lblRipta", &frmRacc};
    Etichetta lblModoVt{t_.finestra, "lblModoVt", &frmRacc};
    Etichetta lblVt{t_.finestra, "lblVt", &frmRacc};

    bool AccPronto = false;  ///< the range is chosen
    std::array<bool, tipiAccordo.size()> AccEscluso{};

    /// At the window's load.
    void Carica();
    /// What entering the page does beyond what all pages do.
    void Entra();

    void cmdRes_Click();
    void ComdRacStart_Click();
    void TipoAcc_Click(int tipo);
    void EsclTa_Click(int tipo);
    void lblRipta_Click();
    void lblVt_Click();
    /// A click on a key of the keyboard, while this page is in front.
    void Tasto(std::int16_t indice);

    /// At least one type may be asked.
    bool AccCeNe() const;

private:
    void AccFissaEstensione(std::int16_t indice);
    void Avvia();
    void Ferma();
    void AccScegli();
    void AccSuona();
    void AccFerma();
    /// All notes of the last chord have a key: not before the first one.
    bool ConTasti() const;
    void MostraTasti(bool mostra);
    void Neutralizza();
    Etichetta& Risposta() { return TipoAcc.at(static_cast<std::size_t>(t_.Stato().AccTipo)); }

    std::function<Colore()> neutro_;
};

}  // namespace corvana
