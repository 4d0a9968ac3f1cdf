// How late waits of timed sound end, against the instant asked for and by the clock, and what a
// long row of them loses. Usage: bench_waits [SECONDS]
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "bench/figures.h"
#include "bench/row.h"
#include "forms/pump.h"
#include "forms/real_clock.h"
#include "realtime/punctuality.h"

namespace {

using namespace corvana;
using misura::Intorno;

void Misura(Intorno intorno, double attesa, double secondi) {
    const misura::ProgrammiOccupati occupati(intorno == Intorno::Occupato);
    OrologioReale orologio;
    CodaEventi coda;
    Pompa pompa(orologio, coda);
    pompa.Attendi(attesa);
    const misura::Singhiozzo singhiozzo(intorno == Intorno::Fermato, secondi);
    const double inizio = pompa.Adesso();
    const int volte = static_cast<int>(secondi / attesa);
    std::vector<double> ritardi;
    for (int i = 1; i <= volte; ++i) {
        pompa.Attendi(attesa);
        ritardi.push_back((orologio.Adesso() - (inizio + i * attesa)) * 1e3);
    }
    const double persi = (pompa.Adesso() - inizio - volte * attesa) * 1e3;
    char titolo[80];
    std::snprintf(titolo, sizeof titolo, "waits of %.0f ms, %s", attesa * 1e3,
                  misura::Titolo(intorno, misura::Puntuale()).c_str());
    misura::Stampa(titolo, ritardi, "ms late");
    misura::StampaMeta(std::string(titolo) + ", lost in all", std::fabs(persi), 0.001, "ms");
    if (!misura::Puntuale() || intorno == Intorno::Fermato) return;
    std::sort(ritardi.begin(), ritardi.end());
    misura::StampaMeta(std::string(titolo) + ", late, p99", misura::Quantile(ritardi, 0.99), 0.3,
                       "ms");
}

}  // namespace

int main(int argc, char** argv) {
    const double secondi = argc > 1 ? std::atof(argv[1]) : 60;
    PreferisciPuntualita();
    for (const auto intorno : {Intorno::Quiete, Intorno::Occupato, Intorno::Fermato})
        for (const double attesa : {0.005, 0.029})
            Misura(intorno, attesa, secondi);
}
