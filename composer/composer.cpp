#include "composer/composer.h"

#include "composer/composer_layout.h"
#include "composer/composer_rows.h"
#include "core/language.h"

namespace corvana {

frmComposer::frmComposer(const Ambiente& ambiente, VicineComposer vicine)
    : Form("frmComposer"),
      voci(ambiente, *this, stato, [this] { riferimenti.SegueSoprano(); }),
      mix(ambiente, *this, stato,
          {[this](bool abilita) { riferimenti.cmdAddBm.Enabled = abilita; },
           [this](std::size_t voce) { return voci.perVoce[voce].ultima.Text(); }}),
      play(ambiente, *this, stato, AttornoAlPlay()),
      archivio(
          ambiente, *this, stato,
          {[this] { return Byte(); }, [this](const std::string& nome) { CaricaMelodia(nome); }}),
      riferimenti(ambiente, *this, stato.melodia),
      tasti(ambiente, *this, stato),
      regolo(ambiente, *this, stato),
      inserimento(ambiente, *this, stato, AttornoAllInserimento()),
      modifica(ambiente, *this, stato, AttornoAllaModifica()),
      a_(ambiente),
      vicine_(std::move(vicine)) {
    DisponiComposer(*this);
    CollegaMenu();
    modifica.cmdReset.Click = [this] { cmdReset_Click(); };
}

VicinePlay frmComposer::AttornoAlPlay() {
    return {pulsi.battuta,
            [this] { return pulsi.Forza(); },
            [this] { pulsi.ContaPulso(); },
            [this](std::size_t voce) { return mix.perVoce[voce].volume.Value(); },
            [this](int tasto, bool acceso) { tasti.MostraTasto(tasto, acceso); },
            [this] { tasti.SpegniNoteVoci(); },
            [this] { tasti.SpegniTutteLeNote(); },
            [this](bool bloccate) { BloccaModifiche(bloccate); },
            [this](bool abilita) { modifica.cmdCanc.Enabled = abilita; },
            [this](bool abilita) { riferimenti.cmdAddBm.Enabled = abilita; },
            [this](int voce) { mix.VoceAttiva_Click(voce); },
            [this] { modifica.Chiudi(); },
            [this] { return inserimento.cmdInsNota.BackColor(); },
            [this] {
                if (vicine_.finePlayDaPicker) vicine_.finePlayDaPicker();
            }};
}

VicineInserimento frmComposer::AttornoAllInserimento() {
    return {tasti.lb,
            [this](int tasto, bool acceso) { tasti.MostraTasto(tasto, acceso); },
            [this](int tasto) { tasti.tastoCorrente = static_cast<std::int16_t>(tasto); },
            [this] { VoceCambiata(); },
            [this] { modifica.cmdPaste.Enabled = true; },
            [this] { play.cmdPlay.SetFocus(); }};
}

VicineModifica frmComposer::AttornoAllaModifica() {
    return {[this] { VoceCambiata(); },
            [this] { voci.TogliNota(); },
            [this]() -> Casella& { return voci.perVoce[stato.melodia.IndiceAttiva()].prima; },
            [this]() -> Casella& { return voci.perVoce[stato.melodia.IndiceAttiva()].ultima; },
            [this] { voci.MostraSopranoIntero(); },
            [this] { riferimenti.lstBookMark.Clear(); },
            [this] { pulsi.Spegni(); },
            [this] { play.chekLoop.Value = false; },
            [this] { inserimento.AzzeraAttributi(); },
            [this] { inserimento.NascondiAccento(); },
            [this] { inserimento.cmdInsNota.SetFocus(); },
            [this](const bool& soloNota) {
                play.SuonaMelodia(stato.passo.IndiceNotaPP, stato.passo.IndiceNotaPP, soloNota);
            }};
}

void frmComposer::VoceCambiata() {
    voci.AggiornaVoce();
    voci.MostraNoteVoce();
}

void frmComposer::BloccaModifiche(bool bloccate) {
    menu.file.Enabled = !bloccate;
    modifica.cmdPaste.Enabled = !bloccate;
    inserimento.Abilita(!bloccate);
    voci.Blocca(bloccate);
}

void frmComposer::CollegaMenu() {
    menu.mnuApri.Click = [this] { archivio.mnuApri_Click(); };
    menu.mnuSalva.Click = menu.mnuSalvaCont.Click = [this] { archivio.mnuSalva_Click(); };
    menu.mnuSaveAs.Click = menu.mnuSaveAsCont.Click = [this] { archivio.mnuSaveAs_Click(); };
    menu.mnuSalvaA.Click = menu.mnucSalvaA.Click = [this] { archivio.mnuSalvaA_Click(); };
    menu.mnuPlayRitardo.Click = [this] { play.mnuPlayRitardo_Click(); };
}

void frmComposer::Form_Load() {
    if (FileLinguaEsiste(a_)) UpdateString(a_, *this, BersagliComposer());
    a_.globali.ComposerAperto = true;
    CaricaTesti();
    regolo.Carica();
    archivio.Carica();
    inserimento.Carica();
    play.Carica();
    tasti.Carica();
    voci.Carica();
    mix.Carica();
    pulsi.Carica();
}

/// Entries that read as others do.
void frmComposer::CaricaTesti() {
    menu.mnuPiano.Caption = vicine_.mnuPiano();
    menu.mnuOrgano.Caption = vicine_.mnuOrgano();
    menu.mnuPianoCont.Caption = menu.mnuPiano.Caption();
    menu.mnuOrganoCont.Caption = menu.mnuOrgano.Caption();
    archivio.cmdDelete.Caption = riferimenti.cmdDelBm.Caption();
}

void frmComposer::Form_Unload(bool& Cancel) {
    const bool chiede = stato.lblModificato.Visible() && !a_.finestre.InChiusura();
    if (chiede && !a_.riquadri.Domanda(a_.globali.testi.msgUscireSenzaSalvare)) {
        Cancel = true;
        return;
    }
    if (stato.inEsecuzione) {
        Cancel = true;
        return;
    }
    archivio.Ricorda();
    a_.suono.CambiaStrumento(a_.globali.StrumentoGlobale, 0);
    a_.globali.ComposerAperto = false;
}

}  // namespace corvana
