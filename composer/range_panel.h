// The ranges of the voices: the arrows, which move an end for as long as they are held, and what
// becomes of what was typed into the boxes. Logic thread.
#pragma once

#include <deque>
#include <functional>

#include "composer/composer_state.h"
#include "composer/range_arrows.h"
#include "composer/range_boxes.h"
#include "composer/voice_panel.h"
#include "core/globals.h"

namespace corvana {

/// What the ranges move of the panels around them.
struct VicineTratti {
    std::function<void(int voce)> scegliVoce;
    std::function<void()> fuocoPlay;
};

class PannelloTratti {
public:
    /// All must live as long as the panel.
    PannelloTratti(const Ambiente& ambiente, Form& finestra, StatoComposer& stato,
                   PannelloVoci& voci, VicineTratti vicine);

    std::deque<Etichetta> lblid;  ///< the arrows
    bool passoInCorso = false;    ///< one of them is held down

    /// Steps until the button comes up, wherever that is; a press that is shorter than the first
    /// wait is one step.
    void lblid_MouseDown(int Index);
    void lblid_MouseUp();
    /// The box of a voice's first note, or of its last, was left.
    void lblNini_Validate(std::size_t voce);
    void lblNfine_Validate(std::size_t voce);

private:
    void TieniPremuta(int Index);
    void Passo(int Index);
    EstremiTratto Estremi(std::size_t voce) const;
    void Sposta(const Freccia& freccia, const EstremiTratto& tratto);
    bool Convalida(const CasellaTratto& quale);
    void Giudica(const CasellaTratto& quale, std::int64_t numero, Casella& casella);

    Ambiente a_;
    Form& finestra_;
    Melodia& melodia_;
    PannelloVoci& voci_;
    VicineTratti vicine_;
};

}  // namespace corvana
