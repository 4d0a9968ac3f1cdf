// How late the waits of timed sound end, idle and beside two busy loops, and whether they drift.
#include <cstdio>

#include "bench/busy.h"
#include "bench/figures.h"
#include "forms/pump.h"
#include "forms/real_clock.h"

namespace {

using namespace corvana;

void MisuraRitardi(const std::string& titolo, double secondi, int volte) {
    OrologioReale orologio;
    CodaEventi coda;
    Pompa pompa(orologio, coda);
    std::vector<double> ritardi;
    for (int i = 0; i < volte; ++i) {
        pompa.Attendi(secondi);
        // The pump stands at the instant at which the wait should have ended.
        ritardi.push_back((orologio.Adesso() - pompa.Adesso()) * 1e3);
    }
    misura::Stampa(titolo, ritardi, "ms");
}

void MisuraDeriva(double secondi, int volte) {
    OrologioReale orologio;
    CodaEventi coda;
    Pompa pompa(orologio, coda);
    pompa.Attendi(secondi);
    const double inizio = pompa.Adesso();
    for (int i = 0; i < volte; ++i)
        pompa.Attendi(secondi);
    const double deriva = pompa.Adesso() - inizio - secondi * volte;
    std::printf("%-52s %.6f ms\n", "drift over 200 waits of 29 ms", deriva * 1e3);
}

void MisuraTutto(const std::string& dove) {
    MisuraRitardi("lateness of a wait of 5 ms, " + dove, 0.005, 1000);
    MisuraRitardi("lateness of a wait of 29 ms, " + dove, 0.029, 300);
    MisuraDeriva(0.029, 200);
}

}  // namespace

int main() {
    PreferisciPuntualita();
    MisuraTutto("idle");
    const misura::CicliOccupati cicli(2);
    MisuraTutto("beside two busy loops");
}
