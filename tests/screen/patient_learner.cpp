#include "tests/screen/patient_learner.h"

#include <poll.h>

#include <cmath>
#include <cstdlib>
#include <stdexcept>

#include "forms/real_clock.h"

namespace corvana::prova {

namespace {

constexpr const char* principale = "CorvanaMainF";
constexpr const char* dispositivi = "frmMidiTest";
constexpr const char* riquadro = "riquadro";

double Secondo() {
    return OrologioReale().Adesso();
}

}  // namespace

AllievoPaziente::AllievoPaziente(ProgrammaVero& programma) : p_(programma) {
    if (!p_.ApriMetronomo() || !p_.CliccaFinoA("ToolButton6", p_.Dove("Slider1")))
        throw std::runtime_error("the program isn't ready");
    // What comes up by steps has done so before it is looked at.
    constexpr int unSecondo = 1000;
    poll(nullptr, 0, unSecondo);
    regolo_ = p_.Dove("Regolo");
    sequenza_ = p_.Dove("cmdSetup");
    senzaEsercizio_ = p_.schermo.Immagine(regolo_);
    senzaBattito_ = p_.schermo.Immagine(sequenza_);
}

bool AllievoPaziente::InCorso() {
    return p_.schermo.Immagine(regolo_) != senzaEsercizio_;
}

bool AllievoPaziente::Batte() {
    return p_.schermo.Immagine(sequenza_) != senzaBattito_;
}

bool AllievoPaziente::Comincia() {
    return Ottieni("Start", principale, [this] { return InCorso(); });
}

bool AllievoPaziente::Smetti() {
    return FermaMetronomo() && Ottieni("Start", principale, [this] { return !InCorso(); });
}

bool AllievoPaziente::AvviaMetronomo() {
    return Ottieni("cmdSSmetro", principale, [this] { return Batte(); });
}

bool AllievoPaziente::FermaMetronomo() {
    return Ottieni("cmdSSmetro", principale, [this] { return !Batte(); });
}

bool AllievoPaziente::ScegliDispositivo(int riga) {
    if (!Smetti()) return false;
    if (!ApriDispositivi()) return false;
    ViaIRiquadri();
    if (riga > 0) CliccaLaRiga(riga);
    return Ottieni("cmdChiudi", dispositivi, [this] { return p_.schermo.Cerca(dispositivi) == 0; });
}

/// By the menu, which may be opening still when its next key comes.
bool AllievoPaziente::ApriDispositivi() {
    constexpr int volte = 3, sguardi = 50, pausa = 100;
    const auto aperta = [this] { return p_.schermo.Cerca(dispositivi) != 0; };
    for (int i = 0; i < volte && !aperta(); ++i) {
        ViaIRiquadri();
        for (const char* tasto : {"Escape", "alt+r", "Up", "Return"}) {
            p_.schermo.Batti(tasto);
            poll(nullptr, 0, pausa);
        }
        for (int s = 0; s < sguardi && !aperta(); ++s)
            poll(nullptr, 0, pausa);
    }
    return aperta();
}

/// Of a list that has no such row nothing is chosen.
void AllievoPaziente::CliccaLaRiga(int riga) {
    constexpr int bordo = 10, altezza = 23;
    // The window takes its place, and the rows come, some time after it is there.
    constexpr int volte = 10, pausa = 500;
    poll(nullptr, 0, pausa);
    const auto scelto = [this] { return p_.schermo.Immagine(p_.Dove("lblDevID", dispositivi)); };
    const auto prima = scelto();
    for (int i = 0; i < volte && scelto() == prima; ++i) {
        ViaIRiquadri();
        const Rettangolo elenco = p_.Dove("LstMidiDev", dispositivi);
        p_.schermo.Clicca({elenco.x + bordo, elenco.y + bordo + riga * altezza});
        poll(nullptr, 0, pausa);
    }
}

void AllievoPaziente::Rispondi() {
    ViaIRiquadri();
    constexpr int quantoUnDito = 150;
    p_.schermo.Tieni("d", quantoUnDito);
}

void AllievoPaziente::ViaIRiquadri() {
    constexpr int volte = 3;
    while (const xcb_window_t quale = p_.schermo.Cerca(riquadro)) {
        ++riquadri_;
        const auto andato = [&] { return p_.schermo.Cerca(riquadro) != quale; };
        for (int i = 0; i < volte && !andato(); ++i) {
            // It may have been given the keyboard already when the last key came.
            p_.schermo.Riapri(quale);
            p_.schermo.Aspetta([&] { return p_.schermo.Attiva() == quale || andato(); });
            p_.schermo.Batti("Return");
            p_.schermo.Aspetta(andato);
        }
        if (andato()) continue;
        Ritrai();
        throw std::runtime_error("a box doesn't go");
    }
}

void AllievoPaziente::Ritrai() {
    const char* dove = std::getenv("CORVANA_PICTURES");
    if (!dove) return;
    const std::string file =
        std::string(dove) + "/life-" + std::to_string(std::llround(Secondo())) + ".png";
    Processo({{"scrot", "--silent", file}, {"DISPLAY=" + p_.schermo.Nome()}}).EsitoFinale();
}

bool AllievoPaziente::Attendi(const std::function<bool()>& effetto) {
    const double inizio = Secondo();
    const bool visto =
        p_.schermo.Aspetta([&] { return p_.schermo.Cerca(riquadro) != 0 || effetto(); });
    if (visto) attese_.push_back(Secondo() - inizio);
    return visto;
}

bool AllievoPaziente::Ottieni(const std::string& controllo, const std::string& forma,
                              const std::function<bool()>& effetto) {
    constexpr int volte = 5;
    for (int i = 0; i < volte; ++i) {
        ViaIRiquadri();
        if (effetto()) return true;
        p_.Clicca(controllo, forma);
        if (!Attendi(effetto)) return false;
    }
    return false;
}

}  // namespace corvana::prova
