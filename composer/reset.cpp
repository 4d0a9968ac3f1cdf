// Emptying the whole melody.
#include "composer/composer.h"

namespace corvana {

void frmComposer::cmdReset_Click() {
    if (InPlay()) FermaMelodia();
    SpegniTastiera();
    VoceAttiva_Click(soprano);
    lblModificato.Visible = false;
    cmdInsNota.Enabled = true;
    cmdInsPausa.Enabled = true;
    cmdCanc.Enabled = true;
    inEsecuzione = false;
    melodia.nomeMelodia.clear();
    lblNome.Caption = "";
    cmdInsNota.SetFocus();
    AzzeraMelodia();
    lstBookMark.Clear();
    melodia.modoPasso = false;
    frmModifica.Visible = false;
    SpegniTutteLeNote();
}

}  // namespace corvana
