#include "trainer/corvana_main.h"

#include "trainer/answer_keys.h"
#include "trainer/shown_notes.h"
#include "trainer/state.h"

namespace corvana {

namespace {

constexpr int aiutoTrainer = 2;
constexpr Colore rosso = 255;
constexpr Colore blu = 0xFF0000;
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
    DisponiPrincipale(*this);
    HelpContextID = aiutoTrainer;
    hover_.Affonda(cmdEscibg, cmdEsci, rosso, blu);
    hover_.LasciaSu({this});
    menu.Esci.Click = cmdEsci.Click = cmdEscibg.Click = [this] { Esci_Click(); };
    menu.mnuNormale.Click = [this] { mnuNormale_Click(); };
    menu.mnuAutomatico.Click = [this] { mnuAutomatico_Click(); };
    menu.Nominote1.Click = [this] { Nominote1_Click(); };
    menu.Nominote2.Click = [this] { Nominote2_Click(); };
    menu.mnuIt.Click = [this] { mnuIt_Click(); };
    menu.mnuEn.Click = [this] { mnuEn_Click(); };
}

PannelloBarra::Comandi CorvanaMainF::ComandiDellaBarra() {
    std::function<void()> into;
    if (secondarie_.frmInto)
        into = [this] { ApriInto(a_.globali, secondarie_, 3, PaginaInto::Intonazione); };
    return {{into, &menu.es},
            {secondarie_.frmComposer, &menu.Risorse},
            {secondarie_.metronomo.alterna, &menu.Risorse, false},
            {secondarie_.frmOptions, &menu.Risorse},
            {secondarie_.frmStrum, &menu.Risorse},
            {[this] { PonModo(menu.mnuNormale.Checked); }, &menu.Risorse, false},
            {secondarie_.aiuto, &menu.Risorse}};
}

void CorvanaMainF::Form_Load() {
    LeggiLingua();
    stato.SuonoNota = true;
    PonNomiRisposte(a_.globali.NomiAnglo);
    frmMetro.Visible = false;
    esercizio.punteggio.frmRisultati.Visible = false;
    automatico.Mostra(false);
    stato.SecondiNota = 2;
    intervalli.CaricamentoLista = true;
    Nascondinote(*this);
    primaAttivazione_ = true;
    Apri(secondarie_.metronomo.carica);
    RipristinaStato();
    risposte.Abilita(false);
    esercizio.punteggio.Dipingi();
    barra.Dipingi();
    DisabilitaAssenti();
}

void CorvanaMainF::Form_Activate() {
    menu.SpuntaNomi(a_.globali.NomiAnglo);
    if (primaAttivazione_) PrimaAttivazione();
}

void CorvanaMainF::PrimaAttivazione() {
    primaAttivazione_ = false;
    a_.pompa.PompaEventi();
    if (!Identita()) return;
    AbilitaComandi(false);
    if (!a_.suono.HandleMidi) ApriSuono();
    AbilitaComandi(true);
    esercizio.Start.SetFocus();
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

void CorvanaMainF::Form_Unload(bool& Cancel) {
    if (a_.globali.metronomo.MetroAttivo) {
        Cancel = true;
        return;
    }
    if (esercizio.Corre()) esercizio.Start_Click();
    // What the program's end cut short has left its notes sounding.
    if (a_.finestre.InChiusura()) a_.suono.Reset();
    if (a_.suono.HandleMidi) a_.suono.ChiudiMidi();
    a_.impostazioni.ScriviValore(
        "CorvanaLastS",
        ComponiStato({stato.LimiteBasso, stato.LimiteAlto, a_.globali.StrumentoGlobale,
                      automatico.Slider1.Value, stato.Modo == "automatico"}));
}

void CorvanaMainF::Form_KeyUp(const Evento& tasto) {
    if (esercizio.Corre()) {
        if (const auto risposta = RispostaDaTasto(tasto.codice)) esercizio.DaiRisposta(*risposta);
    } else if (const auto riga = RigaDaTasto(tasto.codice)) {
        intervalli.difficolt.Seleziona(*riga);
    }
}

}  // namespace corvana
