// The real program through a long time of automatic exercise, on a machine whose sound server and
// MIDI ports come and go at random. Tells what happened, and fails when the program ended, didn't
// answer, stayed silent with a server there, or grew.
// Usage: corvana_life MINUTES [SEED [PROGRAM]]
#include <poll.h>

#include <algorithm>
#include <atomic>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>

#include "bench/process_figures.h"
#include "forms/real_clock.h"
#include "tests/outputs/hearing.h"
#include "tests/screen/patient_learner.h"
#include "tests/screen/restless_machine.h"

namespace {

using namespace corvana;
using namespace corvana::prova;

std::atomic<bool> basta = false;  ///< somebody wants the report now

double Secondo() {
    return OrologioReale().Adesso();
}

void Passano(int millisecondi) {
    poll(nullptr, 0, millisecondi);
}

/// What the program takes of the machine.
struct Figure {
    double memoria = 0;  ///< MiB
    std::ptrdiff_t fili = 0, descrittori = 0;

    explicit Figure(const std::string& cartella)
        : memoria(misura::LeggiMemoria(cartella).pss),
          fili(Quanti(cartella + "/task")),
          descrittori(Quanti(cartella + "/fd")) {}

private:
    static std::ptrdiff_t Quanti(const std::string& cartella) {
        return std::distance(std::filesystem::directory_iterator(cartella), {});
    }
};

class Vita {
public:
    Vita(Schermo& schermo, std::uint32_t seme, const std::string& programma)
        : macchina_(seme),
          programma_(schermo,
                     {.pronta = false, .ambiente = macchina_.Ambiente(), .programma = programma}),
          allievo_(programma_),
          cartella_("/proc/" + std::to_string(programma_.processo.Numero())) {}

    /// False when something was wrong, which is told.
    bool Vivi(double minuti);

private:
    /// What a learner does and a machine suffers within some seconds.
    void Giro();
    void FaQualcosa();
    void ScegliDispositivo();
    bool PortaUdita();
    /// Waits until the program is heard.
    void Ascolta();
    /// As at rest: everything is there, nothing goes on, and the synthesiser is chosen.
    Figure InQuiete();
    void Esigi(bool condizione, const std::string& cosa);
    void Racconta() const;
    void Giudica(const Figure& prima, const Figure& dopo);

    double inizio_ = Secondo();
    MacchinaInquieta macchina_;
    ProgrammaVero programma_;
    AllievoPaziente allievo_;
    std::string cartella_;
    bool suPorta_ = false;  ///< the notes go to a port
    int giri_ = 0, uditi_ = 0, scelte_ = 0, conPorte_ = 0, porteUdite_ = 0, sorde_ = 0, guasti_ = 0;
    std::vector<double> silenzi_;  ///< seconds until it was heard
};

void Vita::Esigi(bool condizione, const std::string& cosa) {
    if (!programma_.processo.Vivo()) throw std::runtime_error("the program has ended");
    if (condizione) return;
    ++guasti_;
    std::printf("%7.0f s  WRONG: %s\n", Secondo() - inizio_, cosa.c_str());
    allievo_.Ritrai();
    std::fflush(stdout);
}

void Vita::ScegliDispositivo() {
    const bool conPorte = macchina_.MidiPresente() && macchina_.Porte() > 0;
    conPorte_ += conPorte ? 1 : 0;
    suPorta_ = conPorte || macchina_.Caso(2) == 0;
    // A search that a busy machine holds up leaves the ports that were known before.
    constexpr int volte = 3;
    for (int i = 0; i < volte; ++i) {
        const int riga = suPorta_ ? 1 + macchina_.Caso(std::max(macchina_.Porte(), 1)) : 0;
        Esigi(allievo_.ScegliDispositivo(riga), "no answer while a device is chosen");
        Esigi(allievo_.Comincia(), "no answer to Start");
        ++scelte_;
        if (!conPorte || PortaUdita()) return;
        // A server that lost a program, or was stopped for a while, may have lost itself.
        ++sorde_;
        macchina_.RifaiMidi();
    }
    Esigi(false, "no port receives notes though its server is new");
}

bool Vita::PortaUdita() {
    const std::size_t prima = macchina_.Messaggi();
    constexpr int sguardi = 100;
    for (int i = 0; i < sguardi; ++i) {
        if (macchina_.Messaggi() > prima) {
            ++porteUdite_;
            return true;
        }
        allievo_.ViaIRiquadri();
        Passano(sguardi);
    }
    return false;
}

void Vita::FaQualcosa() {
    switch (macchina_.Caso(5)) {
        case 0:
            return allievo_.Batte()
                       ? Esigi(allievo_.FermaMetronomo(), "no answer: the metronome's stop")
                       : Esigi(allievo_.AvviaMetronomo(), "no answer: the metronome's start");
        case 1: return Esigi(allievo_.Smetti(), "no answer to Stop");
        case 2: return ScegliDispositivo();
        default: return allievo_.Rispondi();
    }
}

void Vita::Ascolta() {
    // With the notes on a port the cues of the answers are heard, and those don't come while the
    // metronome ticks.
    if (suPorta_) {
        Esigi(allievo_.FermaMetronomo(), "no answer: the metronome's stop");
        Esigi(allievo_.Comincia(), "no answer to Start");
    }
    const double inizio = Secondo();
    constexpr double soglia = 0.003;
    constexpr int pazienza = 15;
    const Registrazione registrazione(macchina_.Suono());
    for (int i = 0; i < pazienza; ++i) {
        allievo_.ViaIRiquadri();
        if (suPorta_) allievo_.Rispondi();
        registrazione.Ancora(2);
        if (Picco(registrazione.Finora()) < soglia) continue;
        ++uditi_;
        silenzi_.push_back(Secondo() - inizio);
        return;
    }
    Esigi(false, "nothing is heard though the sound server is there");
}

void Vita::Giro() {
    ++giri_;
    for (int cose = 1 + macchina_.Caso(3); cose > 0; --cose) {
        macchina_.Capita();
        Passano(macchina_.Caso(2000));
        if (cose == 1 || macchina_.Caso(2) == 0) FaQualcosa();
    }
    if (!allievo_.Batte()) Esigi(allievo_.Comincia(), "no answer to Start");
    Passano(macchina_.Caso(3000));
    if (macchina_.SuonoPresente()) Ascolta();
}

Figure Vita::InQuiete() {
    macchina_.Ripara();
    Esigi(allievo_.ScegliDispositivo(0), "no answer while the synthesiser is chosen");
    Esigi(allievo_.Comincia(), "no answer to Start");
    suPorta_ = false;
    Ascolta();
    Esigi(allievo_.Smetti(), "no answer to Stop");
    // What was left behind with a dead server comes to its end.
    constexpr int riposo = 10000;
    Passano(riposo);
    return Figure(cartella_);
}

void Vita::Racconta() const {
    const Figure ora(cartella_);
    std::printf("%7.0f s  %d rounds, heard %d times; %.1f MiB, %td threads, %td descriptors\n",
                Secondo() - inizio_, giri_, uditi_, ora.memoria, ora.fili, ora.descrittori);
    std::fflush(stdout);
}

void Vita::Giudica(const Figure& prima, const Figure& dopo) {
    constexpr double altraMemoria = 4;
    std::printf("at rest: %.1f MiB, %td threads, %td descriptors; at the end %.1f MiB, %td, %td\n",
                prima.memoria, prima.fili, prima.descrittori, dopo.memoria, dopo.fili,
                dopo.descrittori);
    Esigi(dopo.memoria <= prima.memoria + altraMemoria, "the memory grew");
    Esigi(dopo.fili <= prima.fili, "threads were left");
    Esigi(dopo.descrittori <= prima.descrittori, "descriptors were left");
    for (const auto& [cosa, volte] : macchina_.Accaduto())
        std::printf("%6d  %s\n", volte, cosa.c_str());
    std::printf("%6d  devices chosen, %d times a port received notes\n", scelte_, porteUdite_);
    std::printf("%6d  MIDI servers that took no notes and were replaced\n", sorde_);
    std::printf("%6d  boxes answered\n", allievo_.Riquadri());
    const auto peggio = [](const std::vector<double>& v) {
        return v.empty() ? 0 : *std::max_element(v.begin(), v.end());
    };
    std::printf("%6zu  answers waited for, the longest %.2f s\n", allievo_.Attese().size(),
                peggio(allievo_.Attese()));
    std::printf("%6d  times heard, the longest wait %.1f s\n", uditi_, peggio(silenzi_));
    Esigi(porteUdite_ > 0 || conPorte_ == 0, "no port ever received a note");
}

bool Vita::Vivi(double minuti) {
    constexpr double alMinuto = 60;
    const double durata = minuti * alMinuto;
    const auto vivi = [&](double fino) {
        for (double detto = Secondo(); Secondo() - inizio_ < fino && !basta;) {
            Giro();
            if (Secondo() - detto < alMinuto) continue;
            detto = Secondo();
            Racconta();
        }
    };
    vivi(durata / 10);
    const Figure prima = InQuiete();
    vivi(durata);
    Giudica(prima, InQuiete());
    const auto esito = programma_.Esce(SIGTERM);
    if (esito != 0 || programma_.StatoSalvato().empty())
        throw std::runtime_error("the program didn't end well");
    std::printf("%s: %.0f minutes, %d rounds, %d faults\n", guasti_ == 0 ? "whole" : "BROKEN",
                minuti, giri_, guasti_);
    return guasti_ == 0;
}

}  // namespace

int main(int argc, char** argv) try {
    if (argc < 2) return 2;
    for (const int segnale : {SIGINT, SIGTERM})
        std::signal(segnale, [](int) { basta = true; });
    const auto seme = static_cast<std::uint32_t>(argc > 2 ? std::atoi(argv[2]) : 1);
    Schermo schermo;
    Vita vita(schermo, seme, argc > 3 ? argv[3] : "");
    return vita.Vivi(std::atof(argv[1])) ? 0 : 1;
} catch (const std::exception& guasto) {
    std::printf("BROKEN: %s\n", guasto.what());
    return 1;
}
