#include "tests/trainer/careless_user.h"

#include <algorithm>

#include "forms/fault.h"
#include "trainer/positions.h"
#include "trainer/state.h"

namespace corvana::prova {

namespace {

const char* const lingua = "1;CorvanaMainF;Esci\n12;CorvanaMainF;Prima\n28;CorvanaMainF;Esatte: \n";

constexpr std::array tastiUsuali = {27, 68, 70, 71, 72, 97, 98, 99,  100, 102, 103, 104,
                                    90, 88, 67, 86, 66, 78, 77, 188, 190, 49,  13};

/// Clicked more than the rest.
constexpr std::array<const char*, 12> preferiti = {
    "Start", "Start", "Start", "Start", "mnuAutomatico", "mnuNormale",
    "pdo",   "psol",  "psi",   "mnuEn", "mnuIt",         "Suono1"};

}  // namespace

Secondarie UtenteDistratto::Programma::TutteFinte() {
    const auto apre = [this] { finestre.MostraModale(finta); };
    Secondarie s;
    s.frmInto = s.frmComposer = s.frmOptions = s.frmMidiTest = s.frmStrum = apre;
    s.frmAbout = [this] { finestre.MostraModale(about); };
    s.metronomo.apri = s.metronomo.alterna = s.aiuto = [] {};
    return s;
}

int UtenteDistratto::Tra(int basso, int alto) {
    return std::uniform_int_distribution(basso, alto)(generatore_);
}

double UtenteDistratto::Pausa() {
    if (Capita(500)) return Tra(0, 200) / 1000.0;
    if (Capita(800)) return Tra(0, 4000) / 1000.0;
    return Tra(0, Capita(2) ? 6 * 3600 : 60);
}

void UtenteDistratto::Vivi() {
    depositi_["/programma/langit.csv"] = depositi_["/programma/langen.csv"] = lingua;
    while (rimasti_ > 0 && guasto.empty())
        Avvia();
}

void UtenteDistratto::Avvia() {
    ++avvii;
    programma_ = std::make_unique<Programma>();
    Programma& p = *programma_;
    if (depositi_.contains(Banco::percorsoImpostazioni)) p.file.contenuti.clear();
    p.file.contenuti.merge(std::map(depositi_));
    if (Capita(100)) p.uscita.esitoOpen = 4;
    p.Quando(Pausa(), [this] { Passo(); });
    const bool svolta = p.SvolgiCopione([&] {
        Main(p.Tutto(), false, [&] { p.finestre.Mostra(p.finestra); });
        p.finestre.FinoAllUltima();
    });
    if (!svolta) ControllaChiusa();
    secondi += p.orologio.Adesso();
    depositi_ = p.file.contenuti;
}

void UtenteDistratto::Passo() {
    Controlla();
    if (rimasti_ <= 0 || !guasto.empty()) throw FineCopione{};
    // Now and then several things at one instant, as after a moment in which the program was busy.
    for (int i = Capita(100) ? Tra(2, 6) : 1; i > 0; --i)
        Agisci();
    programma_->Quando(programma_->orologio.Adesso() + Pausa(), [this] { Passo(); });
}

void UtenteDistratto::Agisci() {
    --rimasti_;
    if (Capita(5)) Inceppa();
    const Form* davanti = programma_->finestre.Davanti();
    if (!davanti) return;
    Evento e = Gesto(*davanti);
    e.finestra = davanti->Identita() + (Capita(2) ? 1U : 0U);
    programma_->coda.Aggiungi(std::move(e));
}

/// The output, the store, and the metronome fail or recover.
void UtenteDistratto::Inceppa() {
    Programma& p = *programma_;
    p.uscita.esitoShortMsg = Capita(100) ? 67 : 0;
    p.inceppata = p.inceppata || p.uscita.esitoShortMsg;
    p.uscita.esitoClose = Capita(50) ? 5 : 0;
    p.file.erroreScrivi = Capita(50) ? ENOSPC : 0;
    p.globali.metronomo.MetroAttivo = Capita(100);
}

Evento UtenteDistratto::Gesto(const Form& davanti) {
    Evento e;
    const bool finta = &davanti != &programma_->finestra;
    const auto su = [&](const char* nome) {
        if (const Controllo* c = davanti.Trova(nome)) e.controllo = c->Numero();
    };
    const int dado = Tra(0, 999);
    if (dado < (finta ? 500 : 4)) {
        e.fatto = Fatto::Chiudi;
    } else if (dado < 250) {
        e = Tasto();
    } else if (dado < 310) {
        e.fatto = Capita(700) ? Fatto::Scroll : Fatto::Change;
        e.valore = Capita(900) ? Tra(20, 140) : Tra(-500, 500);
        su("Slider1");
    } else if (dado < 380) {
        e.fatto = Fatto::MouseDown;
        e.y = Tra(-100, 4800);
        su("Regolo");
    } else if (dado < 440) {
        e.valore = Tra(-2, 12);
        su("difficolt");
    } else if (dado < 700) {
        su(preferiti.at(static_cast<std::size_t>(Tra(0, preferiti.size() - 1))));
    } else {
        e = GestoQualunque(davanti);
    }
    return e;
}

/// Any kind of event on any control, with whatever data; most are clicks.
Evento UtenteDistratto::GestoQualunque(const Form& davanti) {
    Evento e;
    e.controllo = Tra(0, static_cast<int>(davanti.Controlli().size()) - 1);
    if (Capita(5)) e.controllo = Tra(-5, 5000);
    const auto fatto = static_cast<Fatto>(Tra(0, static_cast<int>(Fatto::Scroll)));
    if (Capita(400)) e.fatto = fatto;
    e.valore = Tra(-200, 200);
    e.x = Tra(-10000, 10000);
    e.y = Tra(-10000, 10000);
    e.codice = Tra(-10, 300);
    return e;
}

Evento UtenteDistratto::Tasto() {
    Evento e;
    e.fatto = Capita(500) ? Fatto::KeyDown : Fatto::KeyUp;
    if (Capita(30)) e.fatto = Fatto::FuocoPerso;
    const auto quale = static_cast<std::size_t>(Tra(0, tastiUsuali.size() - 1));
    e.codice = Capita(800) ? tastiUsuali.at(quale) : Tra(-10, 300);
    e.shift = Tra(0, 7);
    e.ripetuto = Capita(200);
    return e;
}

void UtenteDistratto::Esigi(bool vero, const char* cosa) {
    if (!vero && guasto.empty())
        guasto = std::string(cosa) + ", with " + std::to_string(rimasti_) + " events to go";
}

void UtenteDistratto::Controlla() {
    const CorvanaMainF& f = programma_->finestra;
    Esigi(
        std::count(f.esercizio.RispostaGiusta.begin(), f.esercizio.RispostaGiusta.end(), true) <= 1,
        "two answers are right");
    Esigi(f.esercizio.Start.Caption() == (f.esercizio.InCorso ? "Stop" : "Start"),
          "the caption of Start is wrong");
    Esigi(f.esercizio.punteggio.Esatte >= 0 && f.esercizio.punteggio.Mostrate >= 0,
          "a counter is negative");
    // A stop just as a note's time runs out takes one away, which no panel tells.
    Esigi(f.esercizio.punteggio.Errate >= (f.esercizio.InCorso ? 0 : -1),
          "the wrong answers are fewer than none");
    Esigi(f.esercizio.punteggio.Lrerrate.Caption().find('-') == std::string::npos,
          "a panel tells less than none");
    Esigi(f.esercizio.punteggio.Rapporto >= 0 && f.esercizio.punteggio.Rapporto <= 1,
          "the bar is out of its bounds");
    Esigi(f.automatico.Slider1.Value() >= 20 && f.automatico.Slider1.Value() <= 140,
          "the slider is out of its bounds");
    Esigi(f.stato.Modo == (f.menu.mnuAutomatico.Checked() ? "automatico" : "normale"),
          "the mode is unclear");
    if (f.esercizio.InCorso) ControllaCorsa();
    ControllaRiquadri();
}

void UtenteDistratto::ControllaCorsa() {
    ++corse;
    const CorvanaMainF& f = programma_->finestra;
    Esigi(!f.menu.es.Enabled() && !f.menu.Opzioni.Enabled() && !f.menu.Risorse.Enabled() &&
              !f.menu.f1.Enabled() && !f.cmdEsci.Enabled() && !f.pentagramma.Regolo.Visible(),
          "a running drill leaves something enabled");
    Esigi(!f.esercizio.punteggio.frmRisultati.Visible(), "the results of an older run are shown");
    Esigi(CercaPosizione(f.stato.NotaCorrente), "no note stands");
    // The help menu stays on during a run, and so the about box may open over one.
    Esigi(programma_->finestre.Davanti() != &programma_->finta, "a window opened over a run");
}

void UtenteDistratto::ControllaRiquadri() {
    for (const std::string& testo : programma_->riquadri.messaggi)
        Esigi(testo.starts_with("Operation:"), ("a box: " + testo).c_str());
    programma_->riquadri.messaggi.clear();
}

void UtenteDistratto::ControllaChiusa() {
    ++chiusure;
    Controlla();
    Programma& p = *programma_;
    Esigi(!p.finestra.esercizio.InCorso, "closed within a run");
    Esigi(!p.uscita.aperto || p.uscita.esitoClose, "the device stays open");
    // Before the device was closed the drill had let go of its notes; only the faint ones behind
    // the low codes are never let go.
    for (const auto& [canale, nota] : p.uscita.NoteAccese())
        Esigi(p.inceppata || nota <= 24, "a note was left sounding");
    const std::string stato = p.impostazioni.LeggiValore("CorvanaLastS");
    Esigi(stato.empty() || LeggiStato(stato), "the stored state can't be read");
    ControllaRiquadri();
}

}  // namespace corvana::prova
