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
/// Seconds; a call that a busy machine delays by more says nothing more about the device's clock.
constexpr double scartoCredibile = 0.0005;
/// Seconds off the expected instant: at once a new stream, or a jump of this one when it lasts.
constexpr double saltoCerto = 0.2;
constexpr double saltoProbabile = 0.002;
constexpr double durataDelSalto = 0.25;

/// What a call may come early on a steady device, and what is kept in hand on any other.
constexpr double margine = 0.003;
constexpr double scorta = 0.001;
constexpr double ritardoMassimo = 0.08;

}  // namespace

double OrologioFlusso::Prossimo(double adesso, int frame) {
    if (!agganciato_ || std::fabs(adesso - previsto_) > saltoCerto) Aggancia(adesso);
    const double durata = frame * durataNominale;
    // What a device's bursts are known to differ by is no jump.
    const double raffica = std::max(0.0, ritardo_ - durata - margine);
    SeguiSalto(adesso, adesso - previsto_, saltoProbabile + raffica);
    const double istante = previsto_;
    const double scarto = adesso - istante;
    const bool assestato = adesso - aggancio_ > assestamento;
    const double credibile = scartoCredibile + raffica;
    if (assestato)
        Segui(std::clamp(scarto, -credibile, credibile), bandaDiRegime, frame);
    else
        Segui(scarto, bandaIniziale, frame);
    const double anticipo = assestato ? std::max(margine, scorta - scarto) : margine;
    ritardo_ = std::max(ritardo_, std::min(durata + anticipo, ritardoMassimo));
    return istante;
}

void OrologioFlusso::Aggancia(double adesso) {
    agganciato_ = true;
    aggancio_ = vicino_ = previsto_ = adesso;
    salto_ = 0;
    durataFrame_ = durataNominale;
}

void OrologioFlusso::SeguiSalto(double adesso, double scarto, double soglia) {
    if (std::fabs(scarto) < soglia || scarto * salto_ < 0) {
        vicino_ = adesso;
        salto_ = 0;
        return;
    }
    // What all calls of the while were off by; any more is the machine's own delay.
    if (salto_ == 0 || std::fabs(scarto) < std::fabs(salto_)) salto_ = scarto;
    if (adesso - vicino_ < durataDelSalto) return;
    previsto_ += salto_;
    vicino_ = adesso;
    salto_ = 0;
}

void OrologioFlusso::Segui(double scarto, double banda, int frame) {
    const double omega = 2 * std::numbers::pi * banda * frame * durataNominale;
    previsto_ += frame * durataFrame_ + std::numbers::sqrt2 * omega * scarto;
    durataFrame_ =
        std::clamp(durataFrame_ + omega * omega * scarto / frame,
                   durataNominale * (1 - derivaMassima), durataNominale * (1 + derivaMassima));
}

}  // namespace corvana
