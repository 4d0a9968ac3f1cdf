#include "cues.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>

namespace corvana {

namespace {

struct Parziale {
    double hertz;
    double ampiezza;
    double decadimento;  ///< seconds until it has fallen to 1/e
};

std::vector<double> Somma(const std::vector<Parziale>& parziali, double durata) {
    std::vector<double> onda(static_cast<std::size_t>(durata * frequenzaSegnali));
    for (std::size_t i = 0; i < onda.size(); ++i) {
        const double t = static_cast<double>(i) / frequenzaSegnali;
        for (const Parziale& p : parziali)
            onda[i] += p.ampiezza * std::exp(-t / p.decadimento) *
                       std::sin(2 * std::numbers::pi * p.hertz * t);
    }
    return onda;
}

/// From 0 to 1 along half a cosine, so that nothing clicks.
double Rampa(double parte) {
    return 0.5 - 0.5 * std::cos(std::numbers::pi * std::clamp(parte, 0.0, 1.0));
}

void Arrotonda(std::vector<double>& onda, double attacco, double coda) {
    const double durata = static_cast<double>(onda.size() - 1) / frequenzaSegnali;
    for (std::size_t i = 0; i < onda.size(); ++i) {
        const double t = static_cast<double>(i) / frequenzaSegnali;
        onda[i] *= Rampa(t / attacco) * Rampa((durata - t) / coda);
    }
}

void Normalizza(std::vector<double>& onda, double picco) {
    double massimo = 0;
    for (const double campione : onda)
        massimo = std::max(massimo, std::fabs(campione));
    for (double& campione : onda)
        campione *= picco / massimo;
}

}  // namespace

std::vector<double> Campana() {
    // The partials of a small bell are not whole multiples; the high ones die first.
    std::vector<double> onda = Somma({{1318.5, 1.0, 0.110},
                                      {1318.5 * 2.003, 0.35, 0.060},
                                      {1318.5 * 2.76, 0.22, 0.035},
                                      {1318.5 * 5.40, 0.06, 0.012}},
                                     0.28);
    Arrotonda(onda, 0.003, 0.060);
    Normalizza(onda, 0.10);
    return onda;
}

std::vector<double> Colpo() {
    std::vector<double> onda =
        Somma({{147.0, 1.0, 0.045}, {233.0, 0.6, 0.025}, {391.0, 0.3, 0.010}}, 0.18);
    Arrotonda(onda, 0.002, 0.050);
    Normalizza(onda, 0.15);
    return onda;
}

}  // namespace corvana
