#include "melody/ticks.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "forms/granularity.h"
#include "melody/numbers.h"
#include "melody/tokens.h"

namespace corvana {

namespace {

/// Sums of three rounded notes, and what the third of them is too short.
struct Correzione {
    Tick somma;
    Tick manca;
};
constexpr std::array<Correzione, 7> correzioni = {
    {{255, 1}, {129, -1}, {63, 1}, {33, -1}, {15, 1}, {9, -1}, {3, 1}}};

/// A whole number of ticks, to five digits: then it is no note of a tuplet.
bool TickInteri(double durata) {
    constexpr double finezza = 100000;
    return std::fmod(std::nearbyint(durata * finezza), quartiPerTick * finezza) == 0;
}

Tick Manca(Tick somma) {
    const auto* trovata = std::find_if(correzioni.begin(), correzioni.end(),
                                       [&](const Correzione& c) { return c.somma == somma; });
    return trovata == correzioni.end() ? 0 : trovata->manca;
}

}  // namespace

Tick TickNota(double durata, ContoTuplet& conto) {
    const Tick tick = ArrotondaAlPari(durata / quartiPerTick);
    if (TickInteri(durata)) return tick;
    conto.sommaTuplet += tick;
    if (++conto.contaTuplet < 3) return tick;
    const Tick corretti = tick + Manca(conto.sommaTuplet);
    conto = {};
    return corretti;
}

int MsPerTick(int tempo) {
    constexpr double msAlMinuto = 60000;
    return static_cast<int>(msAlMinuto / tempo * quartiPerTick) - granularitaSleep;
}

Tick TickToken(const std::vector<std::string>& durate, long indice, ContoTuplet& conto) {
    return TickNota(NumeroReale(Elemento(durate, indice)), conto);
}

Tick SommaTick(const std::vector<std::string>& durate, long indice) {
    ContoTuplet conto;
    Tick somma = 0;
    for (long i = 0; i <= indice; ++i)
        somma += TickToken(durate, i, conto);
    return somma;
}

PuntoVoce CercaPunto(const std::vector<std::string>& durate, long note, Tick tick) {
    ContoTuplet conto;
    for (long i = 0; i < note; ++i) {
        // A note of no length takes a tick to go by, as it does when it is played.
        const Tick lunghezza = std::max<Tick>(TickToken(durate, i, conto), 1);
        if (tick < lunghezza) return {static_cast<std::int16_t>(i), tick};
        tick -= lunghezza;
    }
    return {static_cast<std::int16_t>(note), 0};
}

}  // namespace corvana
