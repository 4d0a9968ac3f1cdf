#include "forms/pump.h"

#include <algorithm>

namespace corvana {

namespace {
/// Lateness up to here is the system's and forgiven; anything longer is time that really was lost.
constexpr double latenzaPerdonata = 0.002;
}  // namespace

double Pompa::Adesso() const {
    const double adesso = orologio_.Adesso();
    return adesso - scadenza_ < latenzaPerdonata ? scadenza_ : adesso;
}

void Pompa::PompaEventi() {
    while (const auto evento = coda_.Prendi())
        consegna_(*evento);
}

void Pompa::AttendiEvento(double fino) {
    // Time never runs back, though the instant asked for may have passed.
    const double scadenza = std::max(fino, Adesso());
    orologio_.AspettaEvento(coda_, fino);
    scadenza_ = coda_.Vuota() ? scadenza : -perSempre;
    PompaEventi();
}

void Pompa::Attendi(double secondi) {
    if (!(secondi > 0)) return;
    const double fino = Adesso() + secondi;
    orologio_.AspettaFino(fino);
    scadenza_ = fino;
}

void Pompa::Sleep(int ms) {
    Attendi((ms + granularitaSleep) / 1000.0);
}

}  // namespace corvana
