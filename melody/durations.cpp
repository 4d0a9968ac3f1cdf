#include "melody/durations.h"

#include <algorithm>

#include "melody/numbers.h"

namespace corvana {

std::string_view ParolaDurata(std::string_view token, char separatore) {
    const auto trovata = std::find_if(durate.begin(), durate.end(), [&](const Durata& durata) {
        return TestoNumero(durata.valore, separatore) == token;
    });
    return trovata == durate.end() ? altraDurata : trovata->parola;
}

double ValoreParola(std::string_view parola) {
    const auto trovata = std::find_if(durate.begin(), durate.end(), [&](const Durata& durata) {
        return durata.parola == parola;
    });
    return trovata == durate.end() ? 1 : trovata->valore;
}

}  // namespace corvana
