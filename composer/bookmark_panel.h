// The bookmarks: each row of their list is the record itself. Logic thread.
#pragma once

#include <functional>

#include "composer/composer_state.h"
#include "composer/voice_panel.h"
#include "core/globals.h"

namespace corvana {

/// What a bookmark that is played moves of the panels around it.
struct VicineRiferimenti {
    std::function<void(int voce)> scegliVoce;
    std::function<void()> suona;  ///< as a click on Play
};

class PannelloRiferimenti {
public:
    /// All must live as long as the panel.
    PannelloRiferimenti(const Ambiente& ambiente, Form& finestra, StatoComposer& stato,
                        PannelloVoci& voci, VicineRiferimenti vicine);

private:
    Form& finestra_;

public:
    Bottone cmdAddBm{finestra_, "cmdAddBm"};
    Cornice frBookMark{finestra_, "frBookMark"};
    Lista lstBookMark{finestra_, "lstBookMark", &frBookMark};
    Bottone cmdPlayBm{finestra_, "cmdPlayBm", &frBookMark};
    Bottone cmdModBm{finestra_, "cmdModBm", &frBookMark};
    Bottone cmdRenameBm{finestra_, "cmdRenameBm", &frBookMark};
    std::array<Bottone, 2> cmdMbUd{
        {{finestra_, "cmdMbUd0", &frBookMark}, {finestra_, "cmdMbUd1", &frBookMark}}};
    Bottone cmdDelBm{finestra_, "cmdDelBm", &frBookMark};
    Bottone cmdHideBm{finestra_, "cmdHideBm", &frBookMark};

    void cmdAddBm_Click();
    void cmdPlayBm_Click();
    void lstBookMark_DblClick();
    void cmdDelBm_Click();
    /// The chosen bookmark takes the range that the soprano's boxes show.
    void cmdModBm_Click();
    void cmdRenameBm_Click();
    /// Moves the chosen bookmark up, 0, or down, 1.
    void cmdMbUd_Click(int Index);
    void cmdHideBm_Click();

    /// All of them, as they are written into the melody's file.
    std::string TestoRiferimenti() const;
    /// The bookmark of the whole melody, the first one, takes the soprano's count.
    void AggiornaRiferimentoIntero();
    /// Follows the soprano, whose notes were counted anew: no notes, no bookmarks.
    void SegueSoprano();

private:
    void Collega();
    void AggiungiRiferimento();
    void EseguiRiferimento();
    int Scelto() const;
    std::string Intero() const;
    void Modificata() { stato_.lblModificato.Visible = true; }

    Ambiente a_;
    StatoComposer& stato_;
    VoceMelodia& soprano_;
    PannelloVoci& voci_;
    VicineRiferimenti vicine_;
};

}  // namespace corvana
