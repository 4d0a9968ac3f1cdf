// Emptying the whole melody.
#include "composer/composer.h"

namespace corvana {

void frmComposer::cmdReset_Click() {
    if (stato.inEsecuzione) play.FermaMelodia();
    tasti.SpegniTastiera();
    mix.VoceAttiva_Click(soprano);
    stato.lblModificato.Visible = false;
    inserimento.Abilita(true);
    modifica.cmdCanc.Enabled = true;
    stato.melodia.nomeMelodia.clear();
    stato.lblNome.Caption = "";
    inserimento.cmdInsNota.SetFocus();
    voci.AzzeraMelodia();
    riferimenti.lstBookMark.Clear();
    modifica.Chiudi();
    tasti.SpegniTutteLeNote();
}

}  // namespace corvana
