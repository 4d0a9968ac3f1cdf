#include "composer/composer.h"

#include "composer/composer_layout.h"
#include "composer/composer_rows.h"
#include "core/language.h"

namespace corvana {

namespace {

constexpr double passataTasti = 0.02;  // seconds

}  // namespace

frmComposer::frmComposer(const Ambiente& ambiente, VicineComposer vicine)
    : Form("frmComposer"),
      a_(ambiente),
      vicine_(std::move(vicine)),
      play(ambiente, *this, stato, AttornoAlPlay()),
      modifica(ambiente, *this, stato, AttornoAllaModifica()),
      incolla(*this, stato, AttornoAllIncolla()),
      trasposizione(ambiente, *this, stato, {[this] { voci.MostraNomiInteri(); }, FuocoPlay()}),
      mix(ambiente, *this, stato,
          {[this](bool abilita) { riferimenti.cmdAddBm.Enabled = abilita; },
           [this](std::size_t voce) { return voci.perVoce[voce].ultima.Text(); }, FuocoPlay()}),
      voci(ambiente, *this, stato, [this] { riferimenti.SegueSoprano(); }),
      tratti(ambiente, *this, stato, voci,
             {[this](int voce) { mix.VoceAttiva_Click(voce); }, FuocoPlay()}),
      tasti(ambiente, *this, stato),
      inserimento(ambiente, *this, stato, AttornoAllInserimento()),
      regolo(
          ambiente, *this, stato,
          {[this](int tasto, bool acceso) { tasti.MostraTasto(tasto, acceso); }, FuocoInsNota()}),
      riferimenti(
          ambiente, *this, stato, voci,
          {[this](int voce) { mix.VoceAttiva_Click(voce); }, [this] { play.cmdPlay_Click(); }}),
      archivio(ambiente, *this, stato,
               {[this] { return Byte(); }, [this](const std::string& nome) { CaricaMelodia(nome); },
                FuocoPlay()}),
      comandi(ambiente, stato, tasti, AttornoAiTasti()),
      salvaguardia(ambiente, stato, [this](MelodiaTenuta& copia) { return CopiaMelodia(copia); }) {
    DisponiComposer(*this);
    CollegaMenu();
    CollegaFinestra();
}

void frmComposer::VoceCambiata() {
    voci.AggiornaVoce();
    voci.MostraNoteVoce();
}

void frmComposer::BloccaModifiche(bool bloccate) {
    menu.AbilitaFile(!bloccate);
    incolla.cmdPaste.Enabled = !bloccate;
    inserimento.Abilita(!bloccate);
    voci.Blocca(bloccate);
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
    trasposizione.Carica();
    pulsi.Carica();
    CaricaAspetto();
    if (const auto rimasta = salvaguardia.Ritrova()) RiprendiMelodia(*rimasta);
    salvaguardia.Inizia();
}

/// Entries that read as others do.
void frmComposer::CaricaTesti() {
    menu.mnuPiano.Caption = vicine_.mnuPiano();
    menu.mnuOrgano.Caption = vicine_.mnuOrgano();
    menu.mnuPianoCont.Caption = menu.mnuPiano.Caption();
    menu.mnuOrganoCont.Caption = menu.mnuOrgano.Caption();
    archivio.cmdDelete.Caption = riferimenti.cmdDelBm.Caption();
    incolla.lblIncolla.Caption = a_.globali.testi.TxtIncolla;
    barra.ToolButton.at(1).ToolTipText = pictCi.ToolTipText();
}

void frmComposer::CaricaAspetto() {
    Gradiente(pictCi, 255, 143, 106, 255, 255, 0, "ds", "d2");
    barra.Dipingi();
    coloreCm_ = cmdCm.BackColor();
    if (vicine_.figuraStrumenti) barra.ToolButton.at(1).stile = vicine_.figuraStrumenti();
    if (vicine_.figuraPromemoria) barra.ToolButton.at(5).stile = vicine_.figuraPromemoria();
}

void frmComposer::Form_Activate() {
    menu.SpuntaNomi(a_.globali.NomiAnglo);
    comandi.fineTastiera = false;
    inserimento.cmdInsNota.SetFocus();
    tasti.baseTastiera = baseDiPartenzaTasti;
    if (const std::string avviso = salvaguardia.AvvisoIlleggibile(); !avviso.empty())
        a_.riquadri.MsgBox(avviso);
}

void frmComposer::CicloResidente() {
    a_.pompa.PompaEventi();
    while (!comandi.fineTastiera) {
        comandi.Esamina();
        // What a key did may have closed the window, and nothing more would wake it then.
        if (comandi.fineTastiera) return;
        // Keys tell of themselves by events, but for the one that counts for as long as it is held.
        a_.pompa.AttendiEvento(comandi.Insiste() ? a_.pompa.Adesso() + passataTasti : perSempre);
    }
}

void frmComposer::Form_Unload(bool& Cancel) {
    if (a_.finestre.InChiusura()) salvaguardia.Conserva();
    const bool chiede = stato.lblModificato.Visible() && !a_.finestre.InChiusura();
    if (chiede && !a_.riquadri.Domanda(a_.globali.testi.msgUscireSenzaSalvare)) {
        Cancel = true;
        return;
    }
    if (stato.inEsecuzione) {
        Cancel = true;
        return;
    }
    if (!a_.finestre.InChiusura()) salvaguardia.Finisci();
    comandi.fineTastiera = true;
    archivio.Ricorda();
    // Whatever is held or was left on: nobody could stop it any more.
    a_.suono.Reset();
    a_.suono.CambiaStrumento(a_.globali.StrumentoGlobale, 0);
    a_.globali.ComposerAperto = false;
    hover_.Lascia();
}

}  // namespace corvana
