#include "composer/voice_state.h"

#include <algorithm>
#include <array>

namespace corvana {

namespace {

/// A plain note is the softest at one place of the bar; `parte` divides its sounding length.
struct Articolazione {
    std::string_view attributo;
    int forza;
    int parte;
};
constexpr std::array<Articolazione, 4> articolazioni = {
    {{"n", 98, 1}, {"a", 127, 1}, {"s", 120, 5}, {"t", 100, 2}}};

constexpr std::int16_t velocitaMuta = 2;  // 0 would be a note off
constexpr Tick senzaGate = -1;

/// The division that rounds down, also below zero.
Tick Parte(Tick tick, Tick parte) {
    return tick / parte - (tick % parte < 0 ? 1 : 0);
}

Messaggio Commuta(bool deve, bool& suona) {
    if (deve == suona) return Messaggio::Nessuno;
    suona = deve;
    return deve ? Messaggio::Accendi : Messaggio::Spegni;
}

}  // namespace

void Articola(StatoVoce& voce, std::string_view attributo, int vol) {
    const auto* trovata =
        std::find_if(articolazioni.begin(), articolazioni.end(),
                     [&](const Articolazione& a) { return a.attributo == attributo; });
    if (trovata != articolazioni.end()) {
        voce.velocita = static_cast<std::int16_t>(trovata->forza - vol);
        voce.tickGate = Parte(voce.tickNota, trovata->parte);
    } else if (attributo == "p") {
        voce.tickGate = senzaGate;
    }
    if (vol == volumeMuto) voce.velocita = velocitaMuta;
}

bool PassoVoce(StatoVoce& voce) {
    ++voce.tickCorrente;
    if (voce.tickCorrente <= voce.tickGate) voce.deveSuonare = voce.tickCorrente != voce.tickGate;
    if (voce.tickCorrente < voce.tickNota) return false;
    voce.notaAvviata = false;
    ++voce.posizione;
    voce.tickCorrente = 0;
    return true;
}

Messaggio EventoVoce(StatoVoce& voce) {
    if (voce.tickCorrente > voce.tickGate) return Messaggio::Nessuno;
    return Commuta(voce.deveSuonare, voce.staSuonando);
}

void PrendiPulso(StatoPulso& pulso, char lettera) {
    switch (lettera) {
        case 'a': pulso.notaPulso = 81; break;
        case 'b': pulso.notaPulso = 36; break;
        case 'c': pulso.notaPulso = 46; break;
        default: break;
    }
}

Messaggio PassoPulso(StatoPulso& pulso, std::uint8_t ultimoPulso, Tick tickPulso) {
    ++pulso.tickInPulso;
    if (pulso.tickInPulso <= tickPulso) pulso.pulsoDeveSuonare = pulso.tickInPulso != tickPulso;
    if (pulso.tickInPulso >= tickPulso) {
        pulso.tickInPulso = 0;
        ++pulso.pulsoCorrente;
        if (pulso.pulsoCorrente > ultimoPulso) pulso.pulsoCorrente = 0;
    }
    return Commuta(pulso.pulsoDeveSuonare, pulso.pulsoSuona);
}

StatoPulso PulsoDopo(std::uint8_t pulsoIniziale, std::uint8_t ultimoPulso, Tick tickPulso,
                     Tick tick) {
    const Tick passi = tick + 1;
    const Tick finiti = passi / tickPulso;
    StatoPulso pulso;
    pulso.pulsoCorrente =
        finiti == 0 ? pulsoIniziale
                    : static_cast<std::uint8_t>((std::min(pulsoIniziale, ultimoPulso) + finiti) %
                                                (ultimoPulso + 1));
    pulso.tickInPulso = passi % tickPulso - 1;
    return pulso;
}

}  // namespace corvana
