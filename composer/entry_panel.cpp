#include "composer/entry_panel.h"

namespace corvana {

PannelloInserimento::PannelloInserimento(Form& finestra, StatoInserimento& stato)
    : finestra_(finestra), stato_(stato) {
    cmdInsNota.BackColor = Rgb(255, 224, 130);
}

void PannelloInserimento::Carica() {
    ColoreSpento = cmdSimbNote[0].BackColor();
    ScegliFigura(stato_, 2);
    cmdSimbNote[stato_.figuraAttiva].BackColor = ColoreAcceso;
    AzzeraAttributi(stato_);
    stato_.letteraAttributo = "n";
    stato_.valoreNota = 1;
    stato_.contaTerzina = 0;
}

void PannelloInserimento::Abilita(bool abilita) {
    cmdInsPausa.Enabled = abilita;
    cmdInsNota.Enabled = abilita;
}

}  // namespace corvana
