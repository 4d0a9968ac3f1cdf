// The bookmarks: each row of their list is the record itself. Logic thread.
#pragma once

#include "composer/composer_state.h"
#include "core/globals.h"

namespace corvana {

class PannelloRiferimenti {
public:
    /// All must live as long as the panel.
    PannelloRiferimenti(const Ambiente& ambiente, Form& finestra, const Melodia& melodia);

private:
    Form& finestra_;

public:
    Bottone cmdAddBm{finestra_, "cmdAddBm"};
    Cornice frBookMark{finestra_, "frBookMark"};
    Lista lstBookMark{finestra_, "lstBookMark", &frBookMark};
    Bottone cmdDelBm{finestra_, "cmdDelBm", &frBookMark};

    /// The bookmark of the whole melody, the first one, takes the soprano's count.
    void AggiornaRiferimentoIntero();
    /// Follows the soprano, whose notes were counted anew: no notes, no bookmarks.
    void SegueSoprano();

private:
    Ambiente a_;
    const VoceMelodia& soprano_;
};

}  // namespace corvana
