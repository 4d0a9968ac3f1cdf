#include "bench/process_figures.h"

#include <cstdio>
#include <filesystem>
#include <fstream>

namespace corvana::misura {

double LeggiPss(const std::string& cartella) {
    std::ifstream file(cartella + "/smaps_rollup");
    for (std::string riga; std::getline(file, riga);)
        if (riga.starts_with("Pss:")) return std::stod(riga.substr(4)) / 1024;
    return 0;
}

Fili LeggiFili(const std::string& cartella) {
    Fili fili;
    for (const auto& filo : std::filesystem::directory_iterator(cartella + "/task")) {
        std::string nome;
        double nanosecondi = 0;
        std::getline(std::ifstream(filo.path() / "comm"), nome);
        std::ifstream(filo.path() / "schedstat") >> nanosecondi;
        fili[filo.path().filename().string() + " " + nome] = nanosecondi / 1e9;
    }
    return fili;
}

void StampaRiposo(const Fili& prima, int secondi, const std::string& cartella) {
    double somma = 0;
    for (const auto& [filo, dopo] : LeggiFili(cartella)) {
        const auto inizio = prima.find(filo);
        const double quota = (dopo - (inizio == prima.end() ? 0 : inizio->second)) / secondi * 100;
        somma += quota;
        std::printf("  at rest over %d s, thread %-30s %6.3f %%\n", secondi, filo.c_str(), quota);
    }
    std::printf("%-52s %6.3f %%\n", "processor use at rest, all threads", somma);
    std::fflush(stdout);
}

}  // namespace corvana::misura
