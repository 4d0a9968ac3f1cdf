#include "composer/key_steps.h"

#include "core/octaves.h"
#include "melody/entry.h"

namespace corvana {

namespace {

// The steps begin around middle C, whichever way they go.
constexpr std::int16_t primoASinistra = 24, primoADestra = 23;
constexpr std::int16_t basePrima = 36, baseUltima = 60, ottavaBase = 12;

}  // namespace

PassoTasto TastoASinistra(std::int16_t tastoCorrente) {
    const std::int16_t da = tastoCorrente == nessunTasto ? primoASinistra : tastoCorrente;
    if (da <= 0) return {da, false};
    return {static_cast<std::int16_t>(da - 1), true};
}

PassoTasto TastoADestra(std::int16_t tastoCorrente) {
    const std::int16_t da = tastoCorrente == nessunTasto ? primoADestra : tastoCorrente;
    if (da >= tastiTastiera - 1) return {da, false};
    return {static_cast<std::int16_t>(da + 1), true};
}

std::uint8_t FiguraPrecedente(std::uint8_t figura) {
    return static_cast<std::uint8_t>((figura + numeroFigure - 1) % numeroFigure);
}

std::uint8_t FiguraSeguente(std::uint8_t figura) {
    return static_cast<std::uint8_t>((figura + 1) % numeroFigure);
}

std::uint8_t BottoneAttributoSeguente(std::uint8_t attributo) {
    switch (attributo) {
        case attributoPunto: return attributoStaccato;
        case attributoStaccato: return attributoAppoggiato;
        case attributoAppoggiato: return attributoAccento;
        case attributoAccento: return attributoLegatura;
        case attributoLegatura:
        // Pressed again it goes out.
        case attributoTerzina: return attributoTerzina;
        default: return attributoPunto;
    }
}

std::int16_t BaseSeguente(std::int16_t base) {
    return base == baseUltima ? basePrima : static_cast<std::int16_t>(base + ottavaBase);
}

}  // namespace corvana
