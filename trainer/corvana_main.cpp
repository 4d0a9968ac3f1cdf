#include "trainer/corvana_main.h"

#include "core/language.h"
#include "trainer/main_rows.h"
#include "trainer/state.h"

namespace corvana {

namespace {

constexpr int aiutoTrainer = 2;
constexpr double pausaPrimaDellaSigla = 0.5;
constexpr std::int16_t canaleSigla = 1;
constexpr std::int32_t canaliConStrumento = 4;

/// What stands in for the language's text when no language file is there.
constexpr const char* avvisoSenzaSuono =
    "Nessun dispositivo audio: tutto funziona, in silenzio. Collega una cuffia o un altoparlante, "
    "o "
    "avvia il servizio audio: Corvana suonerà da sola.";

}  // namespace

CorvanaMainF::CorvanaMainF(const Ambiente& ambiente, Secondarie secondarie)
    : Form("CorvanaMainF"), a_(ambiente), secondarie_(std::move(secondarie)) {
    for (const Posizione& p : Posizioni())
        n.emplace_back(*this, "n" + std::to_string(p.numero), &img);
    DisponiPrincipale(*this);
    HelpContextID = aiutoTrainer;
    CollegaMenu();
    CollegaControlli();
    CollegaHover();
}

void CorvanaMainF::CollegaControlli() {
    Start.Click = [this] { Start_Click(); };
    difficolt.Click = [this] { difficolt_Click(); };
    Regolo.MouseDown = [this](const Evento& e) { Regolo_MouseDown(e.codice, e.shift, e.x, e.y); };
    lblMn.Click = [this] { lblMn_Click(); };
    ShToolbar.Click = [this] { ShToolbar_Click(); };
    Slider1.Change = [this] { Slider1_Change(); };
    Slider1.Scroll = [this] { Slider1_Scroll(); };
    int nome = 0;
    for (Bottone* bottone : Risposte())
        bottone->Click = [this, r = ++nome] { DaiRisposta(r); };
    int numero = 0;
    for (Figura& bottone : ToolButton)
        bottone.Click = [this, b = ++numero] { ToolButton_Click(b); };
}

void CorvanaMainF::Form_Load() {
    if (FileLinguaEsiste(a_)) UpdateString(a_, *this, BersagliPrincipali());
    SuonoNota = true;
    if (a_.globali.NomiAnglo)
        Nominote2_Click();
    else
        Nominote1_Click();
    for (Controllo* c : {static_cast<Controllo*>(&frmMetro), static_cast<Controllo*>(&frmRisultati),
                         static_cast<Controllo*>(&Velocità), static_cast<Controllo*>(&Slider1),
                         static_cast<Controllo*>(&lblAuto1), static_cast<Controllo*>(&lblAuto2)})
        c->Visible = false;
    SecondiNota = 2;
    CaricamentoLista = true;
    Nascondinote();
    primaAttivazione_ = true;
    if (secondarie_.metronomo.carica) secondarie_.metronomo.carica();
    RipristinaStato();
    AbilitaRisposte(false);
    DipingiSfondi();
    DisabilitaAssenti();
}

void CorvanaMainF::Form_Activate() {
    Nominote1.Checked = !a_.globali.NomiAnglo;
    Nominote2.Checked = a_.globali.NomiAnglo;
    if (primaAttivazione_) PrimaAttivazione();
}

void CorvanaMainF::PrimaAttivazione() {
    primaAttivazione_ = false;
    a_.pompa.PompaEventi();
    if (!Identita()) return;
    AbilitaComandi(false);
    if (!a_.suono.HandleMidi) ApriSuono();
    AbilitaComandi(true);
    Start.SetFocus();
}

void CorvanaMainF::ApriSuono() {
    if (!a_.suono.ApriMidi(dispositivoPredefinito)) return;
    for (std::int32_t canale = 0; canale < canaliConStrumento; ++canale)
        a_.suono.CambiaStrumento(a_.globali.StrumentoGlobale, canale);
    a_.suono.Attendi(pausaPrimaDellaSigla);
    a_.suono.SuonaSigla(canaleSigla);
    if (a_.suono.Udibile()) return;
    const std::string& avviso = a_.globali.testi.msgSenzaSuono;
    a_.riquadri.MsgBox(avviso.empty() ? avvisoSenzaSuono : avviso);
}

void CorvanaMainF::AbilitaComandi(bool abilita) {
    Start.Enabled = abilita;
    mnuRint.Enabled = abilita;
    Intonazione.Enabled = abilita;
    cmdEsci.Enabled = abilita;
    DisabilitaAssenti();
}

void CorvanaMainF::Form_Unload(bool& Cancel) {
    if (a_.globali.metronomo.MetroAttivo) {
        Cancel = true;
        return;
    }
    if (Corre()) Start_Click();
    // What the program's end cut short has left its notes sounding.
    if (a_.finestre.InChiusura()) a_.suono.Reset();
    if (a_.suono.HandleMidi) a_.suono.ChiudiMidi();
    a_.impostazioni.ScriviValore("CorvanaLastS",
                                 ComponiStato({LimiteBasso, LimiteAlto, a_.globali.StrumentoGlobale,
                                               Slider1.Value, Modo == "automatico"}));
}

}  // namespace corvana
