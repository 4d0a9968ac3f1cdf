#include "composer/bookmark_panel.h"

#include "melody/bookmark.h"

namespace corvana {

PannelloRiferimenti::PannelloRiferimenti(const Ambiente& ambiente, Form& finestra,
                                         const Melodia& melodia)
    : finestra_(finestra), a_(ambiente), soprano_(melodia.voci[soprano]) {
    frBookMark.Visible = false;
}

void PannelloRiferimenti::AggiornaRiferimentoIntero() {
    Righe righe = lstBookMark.List();
    if (righe.empty()) return;
    righe.front() =
        Riferimento::Intero(soprano_.numeroNote, a_.globali.testi.TxtMelodiaIntera).Testo();
    lstBookMark.List = std::move(righe);
}

void PannelloRiferimenti::SegueSoprano() {
    if (soprano_.numeroNote == -1)
        lstBookMark.Clear();
    else
        AggiornaRiferimentoIntero();
}

}  // namespace corvana
