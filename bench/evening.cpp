// Evenings with the melody window, in the real windows and in real time, that end by SIGKILL at
// random instants. Counts those after which something is gone that was there for more than five
// seconds, whether it was saved or not. Usage: bench_evening [KILLS]
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <QTest>
#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <deque>
#include <iomanip>
#include <iostream>
#include <random>
#include <sstream>

#include "bench/evening_view.h"
#include "bench/figures.h"
#include "desktop/look.h"
#include "tests/core/temporary_folder.h"

namespace {

using namespace corvana;
using misura::Veduta;

constexpr std::size_t insieme = 20;  ///< evenings at a time
constexpr unsigned seme = 20261122;
constexpr double promessa = 5;  ///< seconds after which a change is kept
/// Milliseconds between two gestures, so that more than the promise passes between two saves.
constexpr int passo = 400;

double Adesso() {
    const auto adesso = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double>(adesso).count();
}

/// The whole evening, told to the standard output gesture by gesture, then "end".
int Vivi(const std::string& cartella) {
    prova::Sera sera(cartella);
    int note = 0;
    sera.dopo = [&] {
        if (auto veduta = misura::NellaFinestra(sera)) {
            // The window counts the notes of the range; none of this evening's is ever taken out.
            note = veduta->note == 0 ? 0 : std::max(note, veduta->note);
            veduta->note = note;
            std::cout << std::fixed << Adesso() << '\t' << misura::Riga(*veduta) << std::endl;
        }
        QTest::qWait(passo);
    };
    sera.Intera();
    std::cout << "end" << std::endl;
    for (;;)
        QTest::qWait(1000);
}

struct Istante {
    double quando = 0;
    Veduta veduta;
};

struct Vita {
    std::string cartella;
    pid_t figlio = 0;
    FILE* detto = nullptr;
    double fine = 0;
};

Vita Inizia(const char* programma, const std::string& cartella, double durata) {
    std::array<int, 2> tubo{};
    if (pipe(tubo.data()) != 0) std::abort();
    Vita vita{cartella, fork(), nullptr, Adesso() + durata};
    if (vita.figlio == 0) {
        dup2(tubo[1], STDOUT_FILENO);
        // The platform without a screen complains of each window.
        dup2(open("/dev/null", O_WRONLY), STDERR_FILENO);
        close(tubo[0]);
        execl(programma, programma, "--life", cartella.c_str(), nullptr);
        _exit(127);
    }
    close(tubo[1]);
    vita.detto = fdopen(tubo[0], "r");
    return vita;
}

/// To the evening's end, or to where it was killed.
std::vector<Istante> Detto(FILE* detto) {
    std::vector<Istante> istanti;
    std::array<char, 1000> riga{};
    while (fgets(riga.data(), riga.size(), detto)) {
        std::string testo(riga.data());
        if (testo == "end\n") break;
        if (!testo.ends_with('\n')) continue;
        testo.pop_back();
        const std::size_t dopo = testo.find('\t');
        if (const auto veduta = misura::Letta(testo.substr(dopo + 1)))
            istanti.push_back({std::stod(testo), *veduta});
    }
    return istanti;
}

/// False when it had ended by itself.
bool Uccidi(const Vita& vita) {
    kill(vita.figlio, SIGKILL);
    int esito = 0;
    waitpid(vita.figlio, &esito, 0);
    return WIFSIGNALED(esito) && WTERMSIG(esito) == SIGKILL;
}

struct Conto {
    int perse = 0;
    int conPromesse = 0;
    int tenute = 0;  ///< the next opening has something to bring back
};

/// The evening is always the same: what was seen is the beginning of `intera`, and one thing more
/// may have been done.
void Guarda(const Vita& vita, double morte, const std::vector<Istante>& intera, Conto& conto) {
    const std::vector<Istante> viste = Detto(vita.detto);
    const auto vecchie = std::count_if(viste.begin(), viste.end(), [&](const Istante& istante) {
        return istante.quando <= morte - promessa;
    });
    const prova::CasaDellaSera casa(vita.cartella);
    const auto tenuta = misura::NellaTenuta(casa.nonSalvata);
    conto.conPromesse += vecchie > 0 ? 1 : 0;
    conto.tenute += tenuta ? 1 : 0;
    const auto da = static_cast<std::size_t>(std::max<std::ptrdiff_t>(vecchie - 1, 0));
    const std::size_t fino = std::min(viste.size() + 1, intera.size());
    bool trovata = vecchie == 0;
    for (std::size_t i = da; i < fino && !trovata; ++i) {
        const Veduta& veduta = intera[i].veduta;
        trovata = tenuta ? *tenuta == veduta
                         : !veduta.modificata && misura::Salvata(casa.melodie + "Serata/", veduta);
    }
    if (!trovata)
        std::printf("  lost at gesture %zu: %s\n", viste.size(),
                    viste.empty() ? "" : misura::Riga(viste.back().veduta).c_str());
    conto.perse += trovata ? 0 : 1;
}

void Misura(const char* programma, int uccisioni) {
    const prova::CartellaProvvisoria cartella;
    const Vita prima = Inizia(programma, cartella.Di("intera"), 0);
    const std::vector<Istante> intera = Detto(prima.detto);
    Uccidi(prima);
    const double lunga = intera.back().quando - intera.front().quando;
    std::mt19937 caso(seme);
    std::uniform_real_distribution<double> durata(0.5, lunga + 3);
    std::deque<Vita> vive;
    Conto conto;
    for (int avviate = 0; avviate < uccisioni || !vive.empty();) {
        while (vive.size() < insieme && avviate < uccisioni)
            vive.push_back(Inizia(programma, cartella.Di(std::to_string(avviate++)), durata(caso)));
        const auto prossima = std::min_element(
            vive.begin(), vive.end(), [](const Vita& a, const Vita& b) { return a.fine < b.fine; });
        usleep(static_cast<useconds_t>(std::max(prossima->fine - Adesso(), 0.0) * 1e6));
        if (!Uccidi(*prossima)) std::puts("  an evening ended before it was killed");
        Guarda(*prossima, Adesso(), intera, conto);
        fclose(prossima->detto);
        vive.erase(prossima);
    }
    misura::StampaMeta("melodies lost of " + std::to_string(uccisioni) + " evenings killed",
                       conto.perse, 0, "");
    std::printf(
        "  an evening takes %.1f s; %d had something older than %.0f s, %d left a melody "
        "to bring back\n",
        lunga, conto.conPromesse, promessa, conto.tenute);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc == 3 && std::string(argv[1]) == "--life") {
        QApplication qt(argc, argv);
        VestiProgramma(qt);
        return Vivi(argv[2]);
    }
    Misura(argv[0], argc > 1 ? std::atoi(argv[1]) : 200);
}
