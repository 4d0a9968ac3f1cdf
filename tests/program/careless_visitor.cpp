#include "tests/program/careless_visitor.h"

#include <algorithm>

#include "composer/composer.h"
#include "core/text.h"
#include "trainer/answer_keys.h"
#include "utilities/instruments.h"

namespace corvana::prova {

namespace {

const char* const italiano = "1;CorvanaMainF;Esci\n28;CorvanaMainF;Esatte: \n34;CorvanaMainF;V \n";
const char* const inglese = "1;CorvanaMainF;Exit\n28;CorvanaMainF;Right: \n34;CorvanaMainF;S \n";

/// What the ear trainer says, so that it can be told from faults and its prompts from each other.
std::string DellOrecchio() {
    std::string righe;
    for (const int id :
         {180, 181, 182, 183, 184, 208, 209, 215, 216, 217, 224, 225, 230, 231, 232, 239, 240, 244})
        righe += std::to_string(id) + ";frmInto;into " + std::to_string(id) + '\n';
    return righe;
}

/// What the composer says.
std::string DelComposer() {
    std::string righe;
    for (int id = 254; id <= 374; ++id)
        if (id <= 262 || id == 276 || id >= 356)
            righe += std::to_string(id) + ";frmComposer;composer " + std::to_string(id) + '\n';
    return righe;
}

/// A fault that the composer's user has made himself: a box without a number, a full voice.
bool DettoDalComposer(const std::string& testo) {
    for (const char* inizio : {"composer ", "5\r", "6\r", "9\r", "13\r", "71\r", "380\r"})
        if (testo.starts_with(inizio)) return true;
    return false;
}

/// What a burst is made of; a name that comes twice is done twice as often. "" is a right answer.
constexpr std::array<const char*, 20> abitudini = {"Start",
                                                   "Start",
                                                   "Start",
                                                   "Start",
                                                   "cmdSSmetro",
                                                   "cmdSSmetro",
                                                   "cmdSSmetro",
                                                   "mnuNormale",
                                                   "mnuAutomatico",
                                                   "mnuNormale",
                                                   "ToolButton6",
                                                   "mnuMetro",
                                                   "ToolButton3",
                                                   "",
                                                   "",
                                                   "pdo",
                                                   "mnuIt",
                                                   "mnuEn",
                                                   "difficolt",
                                                   "Regolo"};

/// More than the slowest note and the slowest pulse take.
constexpr double lungaAttesa = 8;
constexpr double giroIntero = 3.5;

}  // namespace

void Vagabondo::Vivi() {
    while (rimasti_ > 0 && guasto.empty())
        Avvia();
}

void Vagabondo::Avvia() {
    banco_ = std::make_unique<BancoProgramma>(chance_);
    banco_->uscita.nomi = {"Porta"};
    banco_->file.contenuti["/programma/langit.csv"] = italiano + DellOrecchio() + DelComposer();
    banco_->file.contenuti["/programma/langen.csv"] = inglese + DellOrecchio() + DelComposer();
    if (Capita(100)) banco_->uscita.esitoOpen = 4;
    PonSupporto();
    prima_.reset();
    composer_ = nullptr;
    banco_->Quando(0, [this] { Passo(); });
    const bool svolta = banco_->SvolgiCopione([this] { banco_->programma.DaMainAllaFine(false); });
    if (!svolta) ControllaChiusa();
    pulsi += static_cast<int>(banco_->Pulsi().size());
    secondi += banco_->orologio.Adesso();
}

/// Nothing, a few melodies, or more than can be counted.
void Vagabondo::PonSupporto() {
    if (Capita(200)) return;
    banco_->file.supportoRimovibile = "/medium/";
    for (int i = Capita(200) ? 300 : Tra(0, 10); i > 0; --i)
        banco_->file.contenuti["/medium/m" + std::to_string(i) + ".mel"] =
            "60;62;64;\r\n1;1;1;\r\nn;n;n;\r\n 60 \r\n 16 \r\n";
}

double Vagabondo::Pausa() {
    if (Capita(60)) return lungaAttesa + Tra(0, 20);
    return Capita(998) ? Tra(0, 1500) / 1000.0 : Tra(0, 1800);
}

void Vagabondo::Passo() {
    Controlla();
    ControllaAttesa();
    if (rimasti_ <= 0 || !guasto.empty()) throw FineCopione{};
    for (int i = Capita(100) ? Tra(2, 6) : 1; i > 0; --i)
        Agisci();
    const double pausa = Pausa();
    const double adesso = banco_->orologio.Adesso();
    if (pausa >= lungaAttesa)
        banco_->Quando(adesso + pausa - giroIntero, [this] {
            if (DeveCorrere()) prima_ = Ora();
        });
    banco_->Quando(adesso + pausa, [this] { Passo(); });
}

void Vagabondo::Agisci() {
    --rimasti_;
    banco_->riquadri.risposte = {Capita(500)};
    const Form* davanti = banco_->finestre.Davanti();
    if (!davanti) return;
    ++viste[davanti->Name];
    if (const auto* aperto = dynamic_cast<const frmComposer*>(davanti)) composer_ = aperto;
    const bool principale = davanti == &banco_->finestra;
    if (principale && PerAbitudine()) return;
    if (VociAlCaso(*davanti) || DalComposer(*davanti)) return;
    Evento e = GestoQualunque(*davanti);
    if (e.fatto == Fatto::Chiudi && principale && !Capita(100)) e.fatto = Fatto::Click;
    Manda(std::move(e));
}

bool Vagabondo::PerAbitudine() {
    if (raffica_ == 0 && Capita(60)) raffica_ = Tra(4, 40);
    if (raffica_ == 0) return false;
    --raffica_;
    const std::string cosa = abitudini.at(static_cast<std::size_t>(Tra(0, abitudini.size() - 1)));
    if (Capita(15)) {
        Evento chiude;
        chiude.fatto = Fatto::Chiudi;
        Manda(chiude);
    } else if (Capita(15)) {
        Tasto(27);
    } else if (cosa.empty()) {
        RispondiGiusto();
    } else {
        Premi(cosa);
    }
    return true;
}

/// In the picker over the melody window he plays, stops, chooses voices and rows, and wants out.
bool Vagabondo::VociAlCaso(const Form& davanti) {
    const auto* picker = dynamic_cast<const frmStrum*>(&davanti);
    if (!picker || !picker->frmVoci.Visible() || Capita(200)) return false;
    constexpr std::array dove = {"cmdPlaySstru", "cmdPlaySstru", "cmdPlaySstru",
                                 "VoceAttiva0",  "VoceAttiva1",  "VoceAttiva3",
                                 "List1",        "cmdTest",      "cmdEsci"};
    Evento e;
    e.valore = Tra(0, 127);
    e.controllo = davanti.Trova(dove.at(static_cast<std::size_t>(Tra(0, 8))))->Numero();
    suonate += picker->cmdPlaySstru.Caption() == "Stop" ? 1 : 0;
    Manda(e);
    return true;
}

/// From the melody window he also goes where a mere chance would seldom lead him.
bool Vagabondo::DalComposer(const Form& davanti) {
    if (davanti.Name != "frmComposer" || !Capita(60)) return false;
    constexpr std::array dove = {"mnuCopyFromA", "mnuSs", "cmdInsNota", "cmdInsNota"};
    Evento e;
    e.controllo = davanti.Trova(dove.at(static_cast<std::size_t>(Tra(0, 3))))->Numero();
    Manda(e);
    return true;
}

void Vagabondo::Premi(const std::string& controllo) {
    Evento e;
    e.controllo = banco_->finestra.Trova(controllo)->Numero();
    if (controllo == "Regolo") e.fatto = Fatto::MouseDown;
    e.y = Tra(0, 4700);
    e.valore = Tra(0, 10);
    Manda(e);
}

void Vagabondo::RispondiGiusto() {
    const auto& giuste = banco_->finestra.esercizio.RispostaGiusta;
    const auto quale = std::find(giuste.begin(), giuste.end(), true) - giuste.begin();
    if (quale == static_cast<std::ptrdiff_t>(giuste.size())) return;
    constexpr std::array bottoni = {"pdo", "pre", "pmi", "pfa", "psol", "pla", "psi"};
    if (Capita(700)) return Premi(bottoni.at(static_cast<std::size_t>(quale)));
    for (const TastiRisposta& tasti : tastiAutomatici)
        if (tasti.risposta == quale + 1) Tasto(tasti.tasto);
}

void Vagabondo::Tasto(int codice) {
    for (const Fatto fatto : {Fatto::KeyDown, Fatto::KeyUp}) {
        Evento e;
        e.fatto = fatto;
        e.codice = codice;
        Manda(e);
    }
}

void Vagabondo::Manda(Evento evento) {
    evento.finestra = banco_->finestre.Davanti()->Identita();
    banco_->coda.Aggiungi(std::move(evento));
}

Evento Vagabondo::GestoQualunque(const Form& davanti) {
    Evento e;
    e.controllo = Tra(0, static_cast<int>(davanti.Controlli().size()) - 1);
    e.valore = Tra(-20, 140);
    e.x = Tra(-1000, 10000);
    e.y = Tra(-1000, 5000);
    for (int riga = Tra(0, 3); riga > 0; --riga)
        e.scelte.push_back(Tra(-1, 12));
    e.codice = Capita(500) ? 27 : Tra(1, 255);
    e.testo = std::string(static_cast<std::size_t>(Tra(0, 20)), static_cast<char>(Tra('a', 'e')));
    if (Capita(300)) e.fatto = static_cast<Fatto>(Tra(0, static_cast<int>(Fatto::FuocoPerso)));
    const bool dellaFinestra =
        e.fatto == Fatto::KeyDown || e.fatto == Fatto::KeyUp || e.fatto == Fatto::Chiudi;
    if (dellaFinestra) e.controllo = 0;
    return e;
}

void Vagabondo::Esigi(bool vero, const std::string& cosa) {
    if (!vero && guasto.empty()) guasto = cosa + ", " + std::to_string(rimasti_) + " to go";
}

void Vagabondo::Controlla() {
    ControllaRiquadri();
    const StatoMetronomo& m = banco_->stato;
    const CorvanaMainF& f = banco_->finestra;
    Esigi(!m.MetroSequenza.empty() && m.MetroSequenza.size() <= 20, "no pattern");
    Esigi(m.MetroBattito >= 0.15 - 1e-9 && m.MetroBattito <= 3, "a beat out of its bounds");
    Esigi(f.esercizio.Start.Caption() == (f.esercizio.InCorso ? "Stop" : "Start"),
          "the caption of Start");
    Esigi(f.stato.Modo == (f.menu.mnuAutomatico.Checked() ? "automatico" : "normale"),
          "the mode is unclear");
    Esigi(f.esercizio.punteggio.Rapporto >= 0 && f.esercizio.punteggio.Rapporto <= 1,
          "the bar is out of its bounds");
    ControllaPicker();
    if (m.MetroAttivo)
        Esigi(!banco_->metronomo.cmdSetup.Enabled() && f.frmMetro.Visible(),
              "the set-up is on, or the panel gone, while it ticks");
    if (f.esercizio.InCorso) ControllaCorsa();
    // Until the opening signal is over some commands rest.
    if (!f.esercizio.InCorso && !m.MetroAttivo &&
        banco_->orologio.Adesso() > BancoProgramma::pronta)
        ControllaFermo();
}

/// The picker and the melody window say the same of what plays.
void Vagabondo::ControllaPicker() {
    const Form* davanti = banco_->finestre.Davanti();
    const auto* picker = dynamic_cast<const frmStrum*>(davanti);
    Esigi(!picker || banco_->globali.PickerAperto, "the picker is open and says that it isn't");
    if (!picker || !picker->frmVoci.Visible() || !composer_) return;
    Esigi((picker->cmdPlaySstru.Caption() == "Stop") == composer_->stato.inEsecuzione,
          "the picker's word and what plays");
}

void Vagabondo::ControllaRiquadri() {
    for (const std::string& testo : banco_->riquadri.messaggi)
        Esigi(testo.starts_with("Operation:") || testo.starts_with("into ") ||
                  DettoDalComposer(testo),
              "a box: " + testo);
    banco_->riquadri.messaggi.clear();
}

/// In an automatic run, and only there, notes have been shown by the clock.
void Vagabondo::ControllaCorsa() {
    ++corse;
    const CorvanaMainF& f = banco_->finestra;
    const bool automatica = f.esercizio.punteggio.Mostrate > 0;
    cambi += automatica && f.stato.Modo == "normale" ? 1 : 0;
    Esigi(f.esercizio.punteggio.Esatte >= 0 && f.esercizio.punteggio.Errate >= 0 &&
              f.esercizio.punteggio.Mostrate >= 0,
          "a counter of a run is negative");
    Esigi(f.esercizio.punteggio.er.Text() == std::to_string(f.esercizio.punteggio.Errate),
          "the wrong answers shown");
    Esigi(!f.esercizio.punteggio.frmRisultati.Visible(), "the results of an older run are shown");
    Esigi(!f.pentagramma.Regolo.Visible(), "the ruler is there in a run");
    if (automatica) {
        Esigi(NumeroIntero(f.esercizio.punteggio.conta.Text(), 0, 100000) >=
                  f.esercizio.punteggio.Mostrate,
              "the notes shown");
        return;
    }
    const int date = f.esercizio.punteggio.Esatte + f.esercizio.punteggio.Errate;
    Esigi(f.esercizio.punteggio.conta.Text() == std::to_string(f.esercizio.punteggio.Esatte),
          "the right answers shown");
    Esigi(f.esercizio.punteggio.PercEs.Text() ==
              (date ? Percento(f.esercizio.punteggio.Esatte, date) : "0"),
          "the percentage");
}

void Vagabondo::ControllaFermo() {
    const CorvanaMainF& f = banco_->finestra;
    Esigi(f.menu.es.Enabled() && f.menu.Opzioni.Enabled() && f.menu.Risorse.Enabled() &&
              f.menu.f1.Enabled() && f.menu.Esci.Enabled() && f.cmdEsci.Enabled() &&
              f.pentagramma.Regolo.Visible(),
          "the idle window isn't whole");
    Esigi(banco_->metronomo.cmdSetup.Enabled() && banco_->metronomo.lblCloseMetro.Enabled(),
          "the idle panel isn't whole");
}

bool Vagabondo::DeveCorrere() const {
    const BancoProgramma& b = *banco_;
    if (b.finestre.Davanti() != &b.finestra) return false;
    // Without a device the metronome waits in silence.
    if (b.stato.MetroAttivo) return b.suono.HandleMidi != 0;
    return b.finestra.esercizio.InCorso && b.punteggio.Mostrate > 0;
}

Vagabondo::Avanzamento Vagabondo::Ora() const {
    return {banco_->punteggio.Mostrate, banco_->uscita.messaggi.size()};
}

void Vagabondo::ControllaAttesa() {
    if (!prima_) return;
    ++attese;
    Esigi(Ora() != *prima_, "what is shown as running stands still");
    prima_.reset();
}

void Vagabondo::ControllaChiusa() {
    ++chiusure;
    Controlla();
    Esigi(!banco_->stato.MetroAttivo, "closed while the metronome ticks");
    Esigi(!banco_->finestra.esercizio.InCorso, "closed within a run");
    Esigi(!banco_->uscita.aperto, "the device stays open");
    // Before it was closed the drill had let go of its notes; only the faint ones behind the low
    // codes, and what the MIDI test has struck, are never let go.
    for (const auto& [canale, nota] : banco_->uscita.NoteAccese())
        Esigi(canale != 1 || nota <= 24 || nota == 69, "a note was left sounding");
}

}  // namespace corvana::prova
