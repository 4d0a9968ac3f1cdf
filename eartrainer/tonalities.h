// The 24 keys of the tonality drill, major ones first: how they are spelt and from which tonic they
// sound. Pure; any thread.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace corvana {

constexpr std::size_t tonalita = 24;
constexpr std::size_t tonalitaMaggiori = 12;

constexpr bool Maggiore(std::size_t indice) {
    return indice < tonalitaMaggiori;
}

/// Two spellings stand on two lines; the major ones are in capitals in Latin notation.
std::string NomeTonalita(std::size_t indice, bool anglo);

/// MIDI number that the key sounds from.
std::int16_t Tonica(std::size_t indice);

/// One note of the figure that states a key.
struct NotaFigura {
    std::int16_t nota;
    double durata;
    double pausa;
};

/// The tuning A, the tonic, the broken triad.
std::array<NotaFigura, 6> FiguraTonalita(std::int16_t tonica, bool maggiore);

}  // namespace corvana
