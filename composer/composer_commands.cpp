// What the menus, the tools and the keys of the melody window do.
#include "composer/composer.h"
#include "composer/copy_from_a.h"

namespace corvana {

void frmComposer::CollegaMenu() {
    menu.mnuApri.Click = menu.mnuApriCont.Click = [this] { archivio.mnuApri_Click(); };
    menu.mnuSalva.Click = menu.mnuSalvaCont.Click = [this] { archivio.mnuSalva_Click(); };
    menu.mnuSaveAs.Click = menu.mnuSaveAsCont.Click = [this] { archivio.mnuSaveAs_Click(); };
    menu.mnuSalvaA.Click = menu.mnucSalvaA.Click = [this] { archivio.mnuSalvaA_Click(); };
    menu.mnuCopyFromA.Click = menu.mnucCopyFromA.Click = [this] { mnuCopyFromA_Click(); };
    menu.mnuChiudi.Click = [this] { mnuChiudi_Click(); };
    menu.mnuPiano.Click = menu.mnuPianoCont.Click = [this] { mix.mnuPiano_Click(); };
    menu.mnuOrgano.Click = menu.mnuOrganoCont.Click = [this] { mix.mnuOrgano_Click(); };
    menu.mnuSs.Click = menu.mnuSsCont.Click = [this] { mnuSs_Click(); };
    menu.mnuNotLat.Click = [this] { mnuNotLat_Click(); };
    menu.mnuNotAnglo.Click = [this] { mnuNotAnglo_Click(); };
    menu.mnuPlayRitardo.Click = [this] { play.mnuPlayRitardo_Click(); };
}

void frmComposer::CollegaFinestra() {
    modifica.cmdReset.Click = [this] { cmdReset_Click(); };
    pictCi.Click = [this] { mnuSs_Click(); };
    cmdCm.Click = [this] { mnuChiudi_Click(); };
    hover_.Evidenzia(cmdCm, "cmdcm", [this](bool sopra) {
        cmdCm.BackColor = sopra ? inserimento.cmdInsNota.BackColor() : coloreCm_;
    });
    hover_.LasciaSu({this});
    MouseDown = [this](const Evento& e) { Form_MouseDown(e.codice); };
}

PannelloBarra::Comandi frmComposer::ComandiDellaBarra() {
    const auto daFermo = [this](auto azione) {
        return PannelloBarra::Comando{[this, azione] {
            if (!stato.inEsecuzione) azione();
        }};
    };
    return {daFermo([this] { play.mnuPlayRitardo_Click(); }),
            daFermo([this] { mnuSs_Click(); }),
            daFermo([this] { archivio.mnuApri_Click(); }),
            daFermo([this] { archivio.mnuSalva_Click(); }),
            daFermo([this] { archivio.mnuSaveAs_Click(); }),
            daFermo([this] { a_.finestre.ChiediAiuto(); })};
}

void frmComposer::Form_KeyDown(const Evento& tasto) {
    comandi.Premi(tasto.codice);
}

void frmComposer::Form_KeyUp(const Evento& tasto) {
    comandi.Lascia(tasto.codice);
}

void frmComposer::Form_MouseDown(int Button) {
    if (Button == bottoneDestro) PopupMenu(menu.mnuContestuale2);
}

void frmComposer::mnuSs_Click() {
    if (stato.inEsecuzione) return;
    // The releases of what is held will be that window's.
    tasti.LasciaPiano();
    if (vicine_.frmStrum) vicine_.frmStrum();
}

void frmComposer::mnuCopyFromA_Click() {
    tasti.LasciaPiano();
    frmCopyFromA finestra(a_, *this, [this] { archivio.ListaFD(); });
    a_.finestre.MostraModale(finestra);
}

void frmComposer::mnuNotLat_Click() {
    PonNomi(false);
}

void frmComposer::mnuNotAnglo_Click() {
    PonNomi(true);
}

/// What is shown already stays as it was written.
void frmComposer::PonNomi(bool anglo) {
    a_.globali.NomiAnglo = anglo;
    menu.SpuntaNomi(anglo);
    tasti.tastiera.PonNomi(anglo);
}

void frmComposer::mnuChiudi_Click() {
    a_.finestre.Scarica(*this);
}

}  // namespace corvana
