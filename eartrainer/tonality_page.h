// The page that trains tonalities: a figure states a key, and the learner clicks its name among
// twelve major and twelve minor ones. Logic thread.
#pragma once

#include "eartrainer/into_frame.h"
#include "eartrainer/tonalities.h"

namespace corvana {

class PaginaTonalita {
public:
    /// Makes the controls; the frame must live as long as the page.
    explicit PaginaTonalita(TelaioInto& telaio);

private:
    TelaioInto& t_;

public:
    Cornice frmTo{t_.finestra, "frmTo"};
    Etichetta Label9{t_.finestra, "Label9", &frmTo}, Label10{t_.finestra, "Label10", &frmTo};
    std::deque<Etichetta> T;  ///< the answers
    /// The strips that say whether they may be asked. Named "lblT(0)" and so on, since "lblT1" is
    /// a label of its own.
    std::deque<Etichetta> lblT;
    Bottone cmdT{t_.finestra, "cmdT", &frmTo};
    Etichetta lblRipeti{t_.finestra, "lblRipeti", &frmTo};
    Etichetta lblTsh{t_.finestra, "lblTsh", &frmTo};

    std::array<bool, tonalita> ToAmmessa{};
    std::int16_t ToIndice = 0;  ///< the key asked for
    bool ToMaggiore = true;
    bool ToInCorso = false;  ///< its figure sounds: the window doesn't close
    Colore ColoreMaggiori = coloreDiSistema, ColoreMinori = coloreDiSistema;

    /// At the window's load.
    void Carica();
    /// What entering the page does beyond what all pages do. A Start that the learner has left
    /// disabled, with nothing admitted, stays so until the next click on a strip.
    void Entra();

    void cmdT_Click();
    void lblT_Click(int indice);
    void T_Click(int indice);
    void lblRipeti_Click();
    void lblTsh_Click();
    /// Writes the keys' names in that notation.
    void ScriviNomi(bool anglo);

private:
    void ToDomanda();
    void ToSuona(std::int16_t tonica, bool maggiore);
    void Ammetti(std::size_t indice, bool ammessa);
    bool Aiuto() const { return lblTsh.Caption().empty(); }
    Etichetta& Cella() { return T.at(static_cast<std::size_t>(ToIndice)); }
};

}  // namespace corvana
