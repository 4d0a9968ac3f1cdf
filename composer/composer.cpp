#include "composer/composer.h"

#include "composer/composer_rows.h"
#include "composer/ranges.h"
#include "core/language.h"
#include "melody/numbers.h"

namespace corvana {

namespace {

/// The melodies that come with the program, below its folder.
constexpr const char* cartellaDemo = "/Melodie/Demo/";

std::string ConSeparatore(std::string cartella) {
    if (!cartella.ends_with('/')) cartella += '/';
    return cartella;
}

}  // namespace

frmComposer::frmComposer(const Ambiente& ambiente, VicineComposer vicine)
    : Form("frmComposer"), a_(ambiente), vicine_(std::move(vicine)) {
    for (int tasto = 0; tasto < tastiTastiera; ++tasto)
        lb.emplace_back(*this, "lb" + std::to_string(tasto));
    PreparaControlli();
    Collega();
}

void frmComposer::Collega() {
    const auto click = [this](Controllo& controllo, void (frmComposer::*gestore)()) {
        controllo.Click = [this, gestore] { (this->*gestore)(); };
    };
    click(mnuApri, &frmComposer::mnuApri_Click);
    click(mnuSalva, &frmComposer::mnuSalva_Click);
    click(mnuSalvaCont, &frmComposer::mnuSalva_Click);
    click(mnuSaveAs, &frmComposer::mnuSaveAs_Click);
    click(mnuSaveAsCont, &frmComposer::mnuSaveAs_Click);
    click(mnuSalvaA, &frmComposer::mnuSalvaA_Click);
    click(mnucSalvaA, &frmComposer::mnuSalvaA_Click);
    click(mnuPlayRitardo, &frmComposer::mnuPlayRitardo_Click);
    click(cmdEseguiFile, &frmComposer::cmdEseguiFile_Click);
    click(cmdPlay, &frmComposer::cmdPlay_Click);
    click(lblTs, &frmComposer::lblTs_Click);
    click(Pulsazioni, &frmComposer::Pulsazioni_Click);
    click(DurataPulsazioni, &frmComposer::DurataPulsazioni_Click);
    InizioPuls.Change = [this] { InizioPuls_Change(); };
    Slider1.Change = [this] { Slider1_Change(); };
    Slider1.Scroll = [this] { Slider1_Scroll(); };
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        VoceAttiva[voce].Click = [this, voce] { VoceAttiva_Click(static_cast<int>(voce)); };
        perVoce[voce].volume.Change = [this, voce] { VolumeCambiato(perVoce[voce]); };
    }
}

void frmComposer::Form_Load() {
    if (FileLinguaEsiste(a_)) UpdateString(a_, *this, BersagliComposer());
    a_.globali.ComposerAperto = true;
    mnuPiano.Caption = vicine_.mnuPiano();
    mnuOrgano.Caption = vicine_.mnuOrgano();
    mnuPianoCont.Caption = mnuPiano.Caption();
    mnuOrganoCont.Caption = mnuOrgano.Caption();
    cmdDelete.Caption = cmdDelBm.Caption();
    PonCursore();
    const std::string ultima = a_.impostazioni.LeggiValore("LastDir");
    a_.globali.percorsoCorrente =
        ultima.empty() ? a_.globali.CartellaProgramma + cartellaDemo : ConSeparatore(ultima);
    AzzeraEditing();
    AzzeraMelodia();
    melodia.voceAttiva = nomiVoci[soprano];
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        melodia.voci[voce].strumento = a_.globali.StrumentoGlobale;
        MandaStrumento(voce);
    }
    melodia.semitoni = 0;
    lblSemitoni.Caption = "0";
    PonMetronomoIniziale();
}

void frmComposer::PonCursore() {
    rigaCursore = 19;
    notaCursore = 60;
    melodia.notaAttiva = notaCursore;
    // A row is half the label's height; the label's middle then lies on the row's line.
    const int altezza = lblCursore.Height();
    lblCursore.Top = rigaCursore * altezza / 2 + altezza;
    lblAccidente.Top = lblCursore.Top();
    lblActNote.Caption = NomeDi(melodia.notaAttiva);
}

void frmComposer::AzzeraEditing() {
    ColoreSpento = cmdSimbNote[0].BackColor();
    melodia.figuraAttiva = 2;
    cmdSimbNote[melodia.figuraAttiva].BackColor = ColoreAcceso;
    melodia.attributoAttivo = senzaAttributo;
    melodia.letteraAttributo = "n";
    melodia.valoreFigura = 1;
    melodia.valoreNota = 1;
    melodia.tempo = tempoIniziale;
    tastoCorrente = 70;
    Velocità.Caption = std::to_string(Slider1.Value());
    melodia.contaTerzina = 0;
}

void frmComposer::Form_Unload(bool& Cancel) {
    const bool chiede = lblModificato.Visible() && !a_.finestre.InChiusura();
    if (chiede && !a_.riquadri.Domanda(a_.globali.testi.msgUscireSenzaSalvare)) {
        Cancel = true;
        return;
    }
    if (InPlay()) {
        Cancel = true;
        return;
    }
    a_.impostazioni.ScriviValore("LastDir", a_.globali.percorsoCorrente);
    a_.suono.CambiaStrumento(a_.globali.StrumentoGlobale, 0);
    a_.globali.ComposerAperto = false;
}

void frmComposer::Slider1_Scroll() {
    melodia.tempo = static_cast<std::uint8_t>(Slider1.Value());
    Velocità.Caption = std::to_string(Slider1.Value());
}

void frmComposer::Slider1_Change() {
    Slider1_Scroll();
    cmdPlay.SetFocus();
    if (!melodia.voci[soprano].Vuota() && !melodia.inCaricamento) lblModificato.Visible = true;
}

}  // namespace corvana
