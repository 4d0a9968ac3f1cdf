#include "eartrainer/range_steps.h"

#include "core/octaves.h"

namespace corvana {

namespace {

constexpr int larghezzaMinima = 2;
/// The highest root of which the widest chord, eight semitones, ends on the last key.
constexpr std::int16_t ultimaFondamentale = 51;

}  // namespace

bool Estensione::HaDaChiedere(bool soloBianchi) const {
    if (basso < 0 || basso > alto) return false;
    // No two black keys are neighbours.
    return !soloBianchi || basso < alto || !TastoNero(basso);
}

ClicEstensione ClicSuEstensione(Estensione prima, std::int16_t tasto) {
    if (prima.Vuota()) return {{-1, tasto}, EsitoClic::Primo};
    const std::int16_t primo = prima.alto;
    if (tasto >= primo) {
        if (tasto - primo < larghezzaMinima) return {{primo, primo}, EsitoClic::StrettoSopra};
        return {{primo, tasto}, EsitoClic::Completa};
    }
    const bool stretto = primo - tasto < larghezzaMinima;
    return {{tasto, primo}, stretto ? EsitoClic::StrettoSotto : EsitoClic::Completa};
}

ClicEstensione ClicSuFondamentali(Estensione prima, std::int16_t tasto) {
    const std::int16_t primo = prima.alto;
    const bool sotto = !prima.Vuota() && tasto < primo;
    if (tasto > ultimaFondamentale && !sotto) return {prima, EsitoClic::TroppoAlto};
    if (prima.Vuota()) return {{-1, tasto}, EsitoClic::Primo};
    if (sotto) return {{tasto, primo}, EsitoClic::Completa};
    return {{primo, tasto}, EsitoClic::Completa};
}

}  // namespace corvana
