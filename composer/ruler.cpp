#include "composer/ruler.h"

#include "core/notation.h"

namespace corvana {

PannelloRegolo::PannelloRegolo(const Ambiente& ambiente, Form& finestra, StatoComposer& stato)
    : finestra_(finestra), a_(ambiente), stato_(stato) {
    Regolo.BackColor = Rgb(224, 255, 255);
    lblCursore.BackColor = Rgb(255, 0, 0);
    lblAccidente.Visible = false;
}

void PannelloRegolo::Carica() {
    rigaCursore = 19;
    notaCursore = 60;
    PonCursore();
}

void PannelloRegolo::PonCursore() {
    stato_.inserimento.notaAttiva = notaCursore;
    // A row is half the label's height; the label's middle then lies on the row's line.
    const int altezza = lblCursore.Height();
    lblCursore.Top = rigaCursore * altezza / 2 + altezza;
    lblAccidente.Top = lblCursore.Top();
    stato_.lblActNote.Caption = NomeNota(notaCursore, a_.globali.NomiAnglo);
}

}  // namespace corvana
