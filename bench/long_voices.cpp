#include "bench/long_voices.h"

#include <string>

namespace corvana::misura {

namespace {

constexpr std::array<std::string_view, 10> durateMiste = {"1",
                                                          "0.5",
                                                          "0.333333333333333",
                                                          "0.333333333333333",
                                                          "0.333333333333333",
                                                          "0.75",
                                                          "0.25",
                                                          "1.5",
                                                          "0.125",
                                                          "2"};
constexpr std::array<std::string_view, 3> durateFitte = {"0.125", "0.09375", "0.15625"};

constexpr long unaPausaOgni = 11;
constexpr long passoNote = 7;
constexpr long tasti = 60;
constexpr long primoTasto = 36;

void Aggiungi(std::string& testo, std::string_view token) {
    testo.append(token).append(";");
}

template <class Elementi>
auto Turno(const Elementi& elementi, long i) {
    return elementi[static_cast<std::size_t>(i) % elementi.size()];
}

}  // namespace

const StileVoce stileMisto{durateMiste, "nsta"};
const StileVoce stileFitto{durateFitte, "na"};

void Riempi(VoceMelodia& voce, long note, const StileVoce& stile, int variante) {
    voce.testoNote.clear();
    voce.testoDurate.clear();
    voce.testoAttributi.clear();
    for (long i = 0; i < note; ++i) {
        const bool pausa = i % unaPausaOgni == unaPausaOgni - 1;
        const long nota = primoTasto + (i + variante) * passoNote % tasti;
        Aggiungi(voce.testoNote, pausa ? "00" : std::to_string(nota));
        Aggiungi(voce.testoDurate, Turno(stile.durate, i));
        Aggiungi(voce.testoAttributi, pausa ? "p" : std::string(1, Turno(stile.attributi, i)));
    }
}

void Riempi(Melodia& melodia, long note, const StileVoce& stile, int variante) {
    for (std::size_t voce = 0; voce < numeroVoci; ++voce)
        Riempi(melodia.voci[voce], note, stile, variante + static_cast<int>(voce));
}

}  // namespace corvana::misura
