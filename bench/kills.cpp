// A process that saves melodies without pause is killed at random instants. Counts the melodies
// that don't read, whole, as one of those that were saved. A kill is no power failure: what the
// system has taken over, it still brings to the disk. Usage: bench_kills [KILLS]
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <random>

#include "bench/figures.h"
#include "bench/long_voices.h"
#include "core/real_files.h"
#include "forms/virtual_clock.h"
#include "sound/recorder.h"
#include "tests/core/temporary_folder.h"
#include "tests/hearing/melody_stage.h"

namespace {

using namespace corvana;

constexpr unsigned seme = 20240607;
constexpr double attesaMassima = 0.04;  // seconds
constexpr const char* nome = "melodia";

/// A window with a long melody.
struct Banco {
    Banco(const std::string& cartella, long note, int variante) {
        misura::Riempi(palco.melodia, note, misura::stileMisto, variante);
        palco.globali.percorsoCorrente = cartella;
        palco.finestra.archivio.SalvaMelodia(nome);
        file.Leggi(cartella + nome + ".mel", byte);
    }
    /// False when the window had to tell something.
    bool Salva() {
        palco.finestra.archivio.SalvaMelodia(nome);
        return palco.riquadri.messaggi.empty();
    }

    OrologioVirtuale orologio;
    FileReali file;
    prova::PalcoMelodia palco{orologio, file, [](auto istante) {
                                  return std::make_unique<Registratore>(std::move(istante));
                              }};
    std::string byte;
};

struct Conto {
    int dellaPrima = 0;
    int dellaSeconda = 0;
    int perse = 0;
};

/// Saves by turns until it is killed; tells through `segno` that the first save is done.
[[noreturn]] void SalvaSempre(Banco& prima, Banco& seconda, int segno) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    for (bool detto = false;; detto = true) {
        if (!prima.Salva()) _exit(1);
        if (!detto && write(segno, "v", 1) != 1) _exit(1);
        if (!seconda.Salva()) _exit(1);
    }
}

/// True when the child lived until it was killed.
bool UnaUccisione(Banco& prima, Banco& seconda, double attesa) {
    std::array<int, 2> tubo{};
    if (pipe(tubo.data()) != 0) return false;
    const pid_t figlio = fork();
    if (figlio == 0) SalvaSempre(prima, seconda, tubo[1]);
    close(tubo[1]);
    char segno = 0;
    const bool vivo = read(tubo[0], &segno, 1) == 1;
    close(tubo[0]);
    usleep(static_cast<useconds_t>(attesa * 1e6));
    kill(figlio, SIGKILL);
    int esito = 0;
    waitpid(figlio, &esito, 0);
    return vivo && WIFSIGNALED(esito);
}

void Conta(Conto& conto, Banco& prima, Banco& seconda, const std::string& percorso) {
    std::string letti;
    prima.file.Leggi(percorso, letti);
    ++(letti == prima.byte     ? conto.dellaPrima
       : letti == seconda.byte ? conto.dellaSeconda
                               : conto.perse);
}

}  // namespace

int main(int argc, char** argv) {
    const int uccisioni = argc > 1 ? std::atoi(argv[1]) : 200;
    const prova::CartellaProvvisoria cartella;
    Banco prima(cartella.Di(""), 32'767, 0);
    Banco seconda(cartella.Di(""), 20'000, 5);
    std::mt19937 caso(seme);
    std::uniform_real_distribution<double> attesa(0, attesaMassima);
    Conto conto;
    for (int i = 0; i < uccisioni; ++i) {
        if (!UnaUccisione(prima, seconda, attesa(caso))) {
            std::puts("a save failed before its process was killed");
            return 1;
        }
        Conta(conto, prima, seconda, cartella.Di("melodia.mel"));
    }
    // Beside the melody lies the copy that each of them left.
    const int aMeta = cartella.Quanti() - 1;
    misura::StampaMeta("melodies lost of " + std::to_string(uccisioni) + " saved under SIGKILL",
                       conto.perse, 0, "");
    std::printf("  kills within a write %d; the one melody was found %d times, the other %d\n",
                aMeta, conto.dellaPrima, conto.dellaSeconda);
}
