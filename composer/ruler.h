// The ruler, on which a cursor marks the active note among staff lines. The arrow keys move it; it
// doesn't follow notes that are chosen in other ways. Logic thread.
#pragma once

#include <deque>
#include <functional>
#include <string_view>

#include "composer/composer_state.h"
#include "composer/ruler_steps.h"
#include "core/globals.h"

namespace corvana {

/// What the ruler moves of the panels around it.
struct VicineRegolo {
    std::function<void(int tasto, bool acceso)> mostraTasto;
    std::function<void()> fuocoInsNota;
};

class PannelloRegolo {
public:
    /// All must live as long as the panel.
    PannelloRegolo(const Ambiente& ambiente, Form& finestra, StatoComposer& stato,
                   VicineRegolo vicine);

private:
    Form& finestra_;

public:
    Cornice Regolo{finestra_, "Regolo"};
    std::deque<Figura> Line1 = FaiRighe(finestra_, Regolo);  ///< the staff lines
    Etichetta lblCursore{finestra_, "lblCursore", &Regolo};
    Etichetta lblAccidente{finestra_, "lblAccidente", &Regolo};

    std::int16_t rigaCursore = rigaDoCentrale;  ///< row of the cursor, smaller is higher
    std::int16_t notaCursore = notaDoCentrale;  ///< note under it

    /// The cursor goes to middle C, at the window's load.
    void Carica();

    /// `stato` is "Premuta" or "Rilasciata", `tasto` the code of the key up or down. A press moves
    /// the cursor and sounds its note; no events are delivered meanwhile.
    void MuoviCursore(std::string_view stato, int tasto);

private:
    static std::deque<Figura> FaiRighe(Form& finestra, Cornice& regolo);
    void PonCursore();
    void SuonaCursore();

    Ambiente a_;
    StatoComposer& stato_;
    VicineRegolo vicine_;
};

}  // namespace corvana
