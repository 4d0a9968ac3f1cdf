#include "sound/outputs/stream_clock.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "sound/outputs/synthesiser.h"

namespace corvana {

namespace {

constexpr double durataNominale = 1.0 / frequenza;
/// No device's clock is further from its nominal rate than this.
constexpr double derivaMassima = 0.005;
/// Hz; the loop follows fast until it has settled, then so slowly that no jitter comes through.
constexpr double bandaIniziale = 3;
constexpr double bandaDiRegime = 0.2;
constexpr double assestamento = 0.5;
/// Seconds off the expected instant: at once a jump, or one when it lasts.
constexpr double saltoCerto = 0.2;
constexpr double saltoProbabile = 0.01;
constexpr double durataDelSalto = 0.25;

/// What a call may come early on a steady device, and what is kept in hand on any other.
constexpr double margine = 0.003;
constexpr double scorta = 0.001;
constexpr double ritardoMassimo = 0.08;

}  // namespace

double OrologioFlusso::Prossimo(double adesso, int frame) {
    if (!agganciato_ || Saltato(adesso, adesso - previsto_)) Aggancia(adesso);
    const double istante = previsto_;
    const double scarto = adesso - istante;
    const bool assestato = adesso - aggancio_ > assestamento;
    Segui(scarto, assestato ? bandaDiRegime : bandaIniziale, frame);
    const double durata = frame * durataNominale;
    const double anticipo = assestato ? std::max(margine, scorta - scarto) : margine;
    ritardo_ = std::max(ritardo_, std::min(durata + anticipo, ritardoMassimo));
    return istante;
}

void OrologioFlusso::Aggancia(double adesso) {
    agganciato_ = true;
    aggancio_ = vicino_ = previsto_ = adesso;
    ultimoScarto_ = 0;
    durataFrame_ = durataNominale;
}

bool OrologioFlusso::Saltato(double adesso, double scarto) {
    if (std::fabs(scarto) < saltoProbabile || scarto * ultimoScarto_ < 0) vicino_ = adesso;
    ultimoScarto_ = scarto;
    return std::fabs(scarto) > saltoCerto || adesso - vicino_ > durataDelSalto;
}

void OrologioFlusso::Segui(double scarto, double banda, int frame) {
    const double omega = 2 * std::numbers::pi * banda * frame * durataNominale;
    previsto_ += frame * durataFrame_ + std::numbers::sqrt2 * omega * scarto;
    durataFrame_ =
        std::clamp(durataFrame_ + omega * omega * scarto / frame,
                   durataNominale * (1 - derivaMassima), durataNominale * (1 + derivaMassima));
}

}  // namespace corvana
