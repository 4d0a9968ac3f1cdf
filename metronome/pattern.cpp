#include "metronome/pattern.h"

#include <algorithm>

namespace corvana {

const Metro& MetroDopo(std::string_view tempo) {
    const auto metro =
        std::find_if(metri.begin(), metri.end(), [=](const Metro& m) { return m.tempo == tempo; });
    if (metro == metri.end() || metro + 1 == metri.end()) return metri.front();
    return *(metro + 1);
}

bool SequenzaFissa(std::string_view sequenza) {
    return std::any_of(metri.begin(), metri.end(),
                       [=](const Metro& m) { return m.sequenza == sequenza; });
}

void PrendiLettera(StatoMetronomo& stato, char lettera) {
    const auto prende = [&](std::int16_t nota, Colore colore) {
        stato.MetroNota = nota;
        stato.MetroColore = colore;
    };
    if (lettera == 'a') prende(stato.MetroNotaA, coloreA);
    if (lettera == 'b') prende(stato.MetroNotaB, coloreB);
    if (lettera == 'c') prende(stato.MetroNotaC, coloreC);
}

double Battito(int valore, int molt) {
    return 60.0 / valore / molt;
}

}  // namespace corvana
