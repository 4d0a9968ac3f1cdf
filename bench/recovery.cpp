// What keeping the unsaved melody costs the logic thread, and what is lost of it when the program
// is killed at random instants: each life goes on with what the one before it left.
// Usage: bench_recovery [KILLS]
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdio>
#include <map>
#include <random>

#include "bench/figures.h"
#include "bench/long_voices.h"
#include "bench/recovery_life.h"
#include "bench/stopwatch.h"
#include "core/real_files.h"
#include "core/real_guardian.h"
#include "forms/virtual_clock.h"
#include "sound/recorder.h"
#include "tests/core/temporary_folder.h"
#include "tests/hearing/melody_stage.h"

namespace {

using namespace corvana;

constexpr int insieme = 20;  ///< lives at a time
constexpr unsigned seme = 20261122;
constexpr double vitaMassima = 12;  ///< seconds
constexpr double promessa = 5;      ///< seconds after which a change is kept
constexpr int prove = 1001;
constexpr long noteConMeta = 1000;

struct InCorso {
    misura::Vita vita;
    pid_t figlio = 0;
    int tubo = -1;
    std::string rimasta;  ///< what it found
};

struct Conto {
    int perse = 0;
    int conPromesse = 0;      ///< lives with changes that were old enough
    std::vector<double> eta;  ///< of the oldest change that went with each life, in seconds
};

std::string Letto(const std::string& percorso) {
    std::string byte;
    FileReali().Leggi(percorso, byte);
    return byte;
}

InCorso Inizia(const misura::Vita& vita) {
    std::array<int, 2> tubo{};
    if (pipe2(tubo.data(), O_CLOEXEC) != 0) std::abort();
    InCorso vivo{vita, 0, tubo[0], Letto(vita.percorso)};
    vivo.figlio = misura::Avvia(vita, tubo[1]);
    close(tubo[1]);
    return vivo;
}

std::vector<misura::Segnalazione> Segnalate(int tubo) {
    std::vector<misura::Segnalazione> tutte;
    misura::Segnalazione una;
    while (read(tubo, &una, sizeof una) == sizeof una)
        tutte.push_back(una);
    close(tubo);
    return tutte;
}

/// Kills it and looks what is left. False when it had ended by itself.
bool Uccidi(const InCorso& vivo, Conto& conto) {
    const double quando = misura::Monotono();
    kill(vivo.figlio, SIGKILL);
    int esito = 0;
    waitpid(vivo.figlio, &esito, 0);
    const auto segnalate = Segnalate(vivo.tubo);
    if (!WIFSIGNALED(esito) || WTERMSIG(esito) != SIGKILL) return false;
    long promessi = 0;
    for (const auto& s : segnalate)
        if (s.istante <= quando - promessa) promessi = std::max(promessi, s.gesti);
    const long gesti = segnalate.empty() ? 0 : segnalate.back().gesti + 1;
    const auto tenute = misura::Tenute(vivo.vita, vivo.rimasta, gesti);
    const std::string trovata = Letto(vivo.vita.percorso);
    long fino = gesti;
    while (fino >= 0 && tenute[static_cast<std::size_t>(fino)] != trovata)
        --fino;
    conto.perse += fino < promessi ? 1 : 0;
    conto.conPromesse += promessi > 0 ? 1 : 0;
    for (const auto& s : segnalate) {
        if (s.gesti <= fino) continue;
        conto.eta.push_back(quando - s.istante);
        break;
    }
    return true;
}

/// The lives follow one another in lanes, each with a file of its own.
bool MisuraUccisioni(int uccisioni) {
    const prova::CartellaProvvisoria cartella;
    std::mt19937 caso(seme);
    std::uniform_real_distribution<double> durata(0.05, vitaMassima);
    std::multimap<double, InCorso> vivi;  // by the instant of their end
    int avviate = 0;
    const auto avvia = [&](const std::string& percorso) {
        const int numero = avviate++;
        const misura::Vita vita{percorso, seme + static_cast<unsigned>(numero), numero % 4 == 3};
        const double fine = misura::Monotono() + durata(caso);
        vivi.emplace(fine, Inizia(vita));
    };
    while (avviate < std::min(insieme, uccisioni))
        avvia(cartella.Di("melodia" + std::to_string(avviate)));
    Conto conto;
    while (!vivi.empty()) {
        const auto primo = vivi.extract(vivi.begin());
        const double resto = primo.key() - misura::Monotono();
        if (resto > 0) usleep(static_cast<useconds_t>(resto * 1e6));
        if (!Uccidi(primo.mapped(), conto)) {
            std::puts("a process ended before it was killed");
            return false;
        }
        if (avviate < uccisioni) avvia(primo.mapped().vita.percorso);
    }
    misura::StampaMeta("melodies lost of " + std::to_string(uccisioni) + " killed while unsaved",
                       conto.perse, 0, "");
    std::printf("  with changes older than %.0f s: %d of them\n", promessa, conto.conPromesse);
    misura::Stampa("  age of the oldest change that went with one", conto.eta, "s");
    return true;
}

struct Banco {
    explicit Banco(long note) {
        misura::Riempi(palco.melodia, note, misura::stileMisto, 0);
        palco.finestra.stato.lblModificato.Visible = true;
        palco.finestra.salvaguardia.Guarda();
    }

    prova::CartellaProvvisoria cartella;
    OrologioVirtuale orologio;
    FileReali file;
    CustodeReale custode{std::make_unique<FileReali>(), cartella.Di("melodia")};
    prova::PalcoMelodia palco{
        orologio, file,
        [](auto istante) { return std::make_unique<Registratore>(std::move(istante)); }, nullptr,
        &custode};
};

void MisuraSguardo(long note) {
    Banco banco(note);
    const std::string quante = "4 x " + std::to_string(note) + " notes";
    std::string& testo = banco.palco.melodia.voci[basso].testoNote;
    std::vector<double> cambiata;
    std::vector<double> uguale;
    for (int i = 0; i < prove; ++i) {
        testo.replace(testo.size() - 3, 2, std::to_string(36 + i % 60));
        for (auto* tempi : {&cambiata, &uguale}) {
            const misura::Cronometro cronometro;
            banco.palco.finestra.salvaguardia.Guarda();
            tempi->push_back(cronometro.Millisecondi());
        }
    }
    const std::string titolo = "recovery: time on the logic thread at " + quante;
    if (note == noteConMeta)
        misura::Stampa(titolo, cambiata, "ms", {0.99, 1});
    else
        misura::Stampa(titolo, cambiata, "ms");
    misura::Stampa("  when an event changed nothing", uguale, "ms");
    const misura::Cronometro cronometro;
    banco.custode.Fissa();
    std::printf("  one write of %zu bytes by the guardian %.3f ms\n",
                Letto(banco.cartella.Di("melodia")).size(), cronometro.Millisecondi());
}

}  // namespace

int main(int argc, char** argv) {
    // Before anything has a thread: the lives are forks of this process.
    if (!MisuraUccisioni(argc > 1 ? std::atoi(argv[1]) : 200)) return 1;
    for (const long note : {250L, noteConMeta, 32'767L})
        MisuraSguardo(note);
}
