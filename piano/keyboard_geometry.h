// Where the keys of the five octaves lie, their marks, and what MIDI numbers they are. In twips
// from the picture's upper left corner. Pure; any thread.
#pragma once

#include <array>
#include <cstdint>

#include "core/octaves.h"

namespace corvana {

constexpr int tastoCentrale = 24;  ///< middle C

/// A place on the picture, in twips.
struct Rettangolo {
    int left = 0, top = 0, width = 0, height = 0;
    bool operator==(const Rettangolo&) const = default;
};

constexpr int larghezzaOttava = 1545;
constexpr Rettangolo postoTastiera{300, 1935, 7770,
                                   900};  ///< of the picture, where nothing else is said

/// The same place on a picture that is `larga` wide: all of it grows in proportion.
constexpr Rettangolo SuFigura(const Rettangolo& posto, int larga) {
    constexpr auto misura = [](int twips, int nuova) {
        return (twips * nuova + postoTastiera.width / 2) / postoTastiera.width;
    };
    const int left = misura(posto.left, larga), top = misura(posto.top, larga);
    return {left, top, misura(posto.left + posto.width, larga) - left,
            misura(posto.top + posto.height, larga) - top};
}

/// What of a key lights up: the lower part of a white one, the upper part of a black one.
constexpr Rettangolo PostoTasto(int tasto) {
    // Of the first octave. The white keys are one seventh of it apart, the black ones drawn to the
    // edges of their group as on any piano.
    constexpr std::array sinistre = {30, 150, 251, 411, 471, 692, 801, 913, 1053, 1134, 1305, 1354};
    const int left = sinistre[static_cast<std::size_t>(tasto % 12)] + tasto / 12 * larghezzaOttava;
    return TastoNero(tasto) ? Rettangolo{left, 90, 135, 300} : Rettangolo{left, 435, 195, 300};
}

/// All that is to be seen of a key, but for what the black keys cover.
constexpr Rettangolo TastoIntero(int tasto) {
    constexpr int alto = 90, bordo = 735, bordoNeri = 425;
    const Rettangolo posto = PostoTasto(tasto);
    if (TastoNero(tasto)) return {posto.left, alto, posto.width, bordoNeri - alto};
    // White keys meet in the middle between their labels.
    constexpr auto confine = [](int bianco) { return 17 + (bianco * larghezzaOttava + 3) / 7; };
    constexpr std::array bianchi = {0, 0, 1, 1, 2, 3, 3, 4, 4, 5, 5, 6};
    const int bianco = tasto / 12 * 7 + bianchi[static_cast<std::size_t>(tasto % 12)];
    return {confine(bianco), alto, confine(bianco + 1) - confine(bianco), bordo - alto};
}

/// The mark of a key: under a white one, above a black one.
constexpr Rettangolo PostoBarra(int tasto) {
    constexpr int larghezza = 165;
    const Rettangolo posto = PostoTasto(tasto);
    return {posto.left + (posto.width - larghezza) / 2, TastoNero(tasto) ? 15 : 720, larghezza, 75};
}

/// The mark of middle C, below those of the keys.
constexpr Rettangolo PostoDoCentrale() {
    const Rettangolo barra = PostoBarra(tastoCentrale);
    return {barra.left + 45, 810, 75, 75};
}

}  // namespace corvana
