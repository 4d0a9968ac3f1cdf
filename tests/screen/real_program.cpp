#include "tests/screen/real_program.h"

#include <csignal>
#include <fstream>
#include <stdexcept>

#include "composer/composer.h"
#include "metronome/conf_metro.h"
#include "tests/program/program_rig.h"
#include "utilities/about.h"
#include "utilities/instruments.h"
#include "utilities/midi_test.h"

namespace corvana::prova {

namespace {

constexpr int twipPerPixel = 15;

/// The same windows, never shown, for where their controls lie by design.
struct Disegni {
    BancoProgramma banco;
    frmConfMetro sequenza{banco.Tutto()};
    frmStrum strumenti{banco.Tutto()};
    frmAbout versione{banco.Tutto()};
    frmMidiTest midi{banco.Tutto()};
    frmComposer composizione{banco.Tutto(), {}};

    const Form& Di(const std::string& forma) const {
        for (const Form* form :
             {static_cast<const Form*>(&banco.finestra), static_cast<const Form*>(&sequenza),
              static_cast<const Form*>(&strumenti), static_cast<const Form*>(&versione),
              static_cast<const Form*>(&midi), static_cast<const Form*>(&composizione)})
            if (form->Name == forma) return *form;
        throw std::logic_error("no design of " + forma);
    }
};

std::string Variabile(const char* nome, const std::filesystem::path& valore) {
    return std::string(nome) + "=" + valore.string();
}

}  // namespace

ProgrammaVero::ProgrammaVero(Schermo& dove) : ProgrammaVero(dove, Come{}) {}

ProgrammaVero::ProgrammaVero(Schermo& dove, const Come& come)
    : casa_(come.casa.empty() ? nuova_.Percorso() : come.casa),
      scala_(come.scala),
      schermo(dove),
      processo(Avvio(come)) {
    principale = AspettaFinestra("CorvanaMainF");
    if (principale == 0) throw std::runtime_error("the main window doesn't come");
    if (!come.pronta) return;
    if (AspettaFinestra("riquadro") == 0) throw std::runtime_error("the box doesn't come");
    schermo.Batti("Return");
    if (AspettaFinestra("CorvanaMainF") == 0) throw std::runtime_error("the box doesn't go");
}

std::vector<std::string> ProgrammaVero::Ambiente(const Come& come) const {
    std::vector<std::string> ambiente = come.ambiente;
    for (std::string voce :
         {Variabile("DISPLAY", schermo.Nome()), Variabile("HOME", casa_),
          Variabile("XDG_CONFIG_HOME", casa_ / "config"),
          Variabile("XDG_CACHE_HOME", casa_ / "cache"),
          Variabile("XDG_STATE_HOME", casa_ / "state"), Variabile("XDG_RUNTIME_DIR", casa_ / "run"),
          std::string("QT_QPA_PLATFORM=xcb"), std::string("SDL_AUDIODRIVER=none"),
          "QT_SCALE_FACTOR=" + std::to_string(come.scala)})
        ambiente.push_back(std::move(voce));
    return ambiente;
}

Processo::Avvio ProgrammaVero::Avvio(const Come& come) const {
    std::filesystem::create_directory(casa_ / "run");
    std::filesystem::permissions(casa_ / "run", std::filesystem::perms::owner_all);
    return {{come.programma.empty() ? CORVANA_PROGRAM : come.programma},
            Ambiente(come),
            casa_ / "uscita",
            casa_ / "errori"};
}

xcb_window_t ProgrammaVero::AspettaFinestra(const std::string& forma) {
    xcb_window_t finestra = 0;
    schermo.Aspetta([&] {
        finestra = schermo.Cerca(forma);
        return finestra != 0 && schermo.Attiva() == finestra;
    });
    return finestra;
}

bool ProgrammaVero::AspettaChiusa(const std::string& forma) {
    return schermo.Aspetta([&] { return schermo.Cerca(forma) == 0; });
}

Rettangolo ProgrammaVero::Dove(const std::string& controllo, const std::string& forma) {
    static const Disegni disegni;
    const Form& disegno = disegni.Di(forma);
    const Controllo* c = disegno.Trova(controllo);
    if (!c) throw std::logic_error("no control " + controllo);
    const auto pixel = [this](int twip) { return twip / twipPerPixel * scala_; };
    Rettangolo dove{0, 0, pixel(c->Width), pixel(c->Height)};
    for (; c && c != &disegno; c = c->Padre()) {
        dove.x += pixel(c->Left);
        dove.y += pixel(c->Top);
    }
    const Rettangolo finestra = schermo.Interno(schermo.Cerca(forma));
    dove.x += finestra.x;
    // The menu bar lies above the face.
    dove.y += finestra.y + finestra.altezza - pixel(disegno.Height);
    return dove;
}

void ProgrammaVero::Clicca(const std::string& controllo, const std::string& forma) {
    const Rettangolo dove = Dove(controllo, forma);
    schermo.Clicca({dove.x + dove.larghezza / 2, dove.y + dove.altezza / 2});
}

bool ProgrammaVero::CliccaFinoA(const std::string& controllo, const Rettangolo& dove) {
    const auto prima = schermo.Immagine(dove);
    Clicca(controllo);
    return schermo.Aspetta([&] { return schermo.Immagine(dove) != prima; });
}

bool ProgrammaVero::ApriMetronomo() {
    return CliccaFinoA("ToolButton3", Dove("lblTempo"));
}

bool ProgrammaVero::AvviaMetronomo() {
    const Rettangolo luce = Dove("lblPuls0");
    // Its lamps go on with the first pulse, a whole one after the click.
    return CliccaFinoA("cmdSSmetro", luce);
}

bool ProgrammaVero::FermaMetronomo() {
    return CliccaFinoA("cmdSSmetro", Dove("cmdSetup"));
}

bool ProgrammaVero::AvviaAutomatico() {
    return CliccaFinoA("ToolButton6", Dove("Slider1")) && CliccaFinoA("Start", Dove("Regolo"));
}

xcb_window_t ProgrammaVero::ApriSequenza() {
    if (!ApriMetronomo()) return 0;
    Clicca("cmdSetup");
    return AspettaFinestra("frmConfMetro");
}

xcb_window_t ProgrammaVero::ApriStrumenti() {
    Clicca("ToolButton5");
    return AspettaFinestra("frmStrum");
}

xcb_window_t ProgrammaVero::ApriComposer() {
    schermo.Batti("alt+r");
    schermo.Batti("Return");
    return AspettaFinestra("frmComposer");
}

std::optional<int> ProgrammaVero::Esce(int segnale) {
    processo.Segnala(segnale);
    return Esce();
}

std::optional<int> ProgrammaVero::Esce() {
    constexpr double pazienza = 60;
    if (!processo.AspettaFine(pazienza)) return std::nullopt;
    return processo.EsitoFinale();
}

std::string ProgrammaVero::StatoSalvato() const {
    std::ifstream file(casa_ / "config" / "corvana" / "settings");
    const std::string nome = "CorvanaLastS=";
    for (std::string riga; std::getline(file, riga);)
        if (riga.starts_with(nome)) return riga.substr(nome.size());
    return {};
}

}  // namespace corvana::prova
