#include "bench/process_figures.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>

#include "bench/figures.h"

namespace corvana::misura {

namespace {

/// "0.0 %" to whoever reads one digit.
constexpr double quotaRiposo = 0.05;

/// The numbers behind a name and a colon, added up.
long Somma(const std::string& percorso, std::initializer_list<const char*> nomi) {
    long somma = 0;
    std::ifstream file(percorso);
    for (std::string riga; std::getline(file, riga);)
        for (const char* nome : nomi)
            if (riga.starts_with(nome)) somma += std::stol(riga.substr(riga.find(':') + 1));
    return somma;
}

}  // namespace

Memoria LeggiMemoria(const std::string& cartella) {
    constexpr double mebi = 1024;  // the system tells KiB
    const std::string file = cartella + "/smaps_rollup";
    return {static_cast<double>(Somma(file, {"Pss:"})) / mebi,
            static_cast<double>(Somma(file, {"Private_Clean:", "Private_Dirty:"})) / mebi};
}

void StampaMemoria(const std::string& cosa, const Memoria& memoria) {
    std::printf("%-52s %.1f MiB, of its own %.1f\n", ("memory (PSS), " + cosa).c_str(), memoria.pss,
                memoria.sola);
    std::fflush(stdout);
}

Fili LeggiFili(const std::string& cartella) {
    Fili fili;
    for (const auto& filo : std::filesystem::directory_iterator(cartella + "/task")) {
        std::string nome;
        double nanosecondi = 0;
        std::getline(std::ifstream(filo.path() / "comm"), nome);
        std::ifstream(filo.path() / "schedstat") >> nanosecondi;
        fili[filo.path().filename().string() + " " + nome] = {
            nanosecondi / 1e9, Somma(filo.path() / "status",
                                     {"voluntary_ctxt_switches:", "nonvoluntary_ctxt_switches:"})};
    }
    return fili;
}

void StampaRiposo(const std::string& cosa, const Fili& prima, int secondi,
                  const std::string& cartella) {
    double somma = 0, massima = 0, risvegli = 0;
    for (const auto& [filo, dopo] : LeggiFili(cartella)) {
        const auto trovato = prima.find(filo);
        const Filo inizio = trovato == prima.end() ? Filo{} : trovato->second;
        const double quota = (dopo.secondi - inizio.secondi) / secondi * 100;
        const double volte = static_cast<double>(dopo.risvegli - inizio.risvegli) / secondi;
        somma += quota;
        massima = std::max(massima, quota);
        risvegli += volte;
        std::printf("  at rest over %d s, thread %-30s %6.3f %%, wakes %.1f times a second\n",
                    secondi, filo.c_str(), quota, volte);
    }
    std::printf("%-52s %6.3f %%, wakes %.1f times a second\n",
                ("at rest, all threads, " + cosa).c_str(), somma, risvegli);
    StampaMeta("at rest, busiest thread, " + cosa, massima, quotaRiposo, "%");
}

}  // namespace corvana::misura
