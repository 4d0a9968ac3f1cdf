// Figures that several of the melody window's routines share. Any thread.
#pragma once

#include <cstdint>

#include "piano/keyboard_geometry.h"

namespace corvana {

constexpr int tempoMinimo = 20;  ///< quarter notes a minute
constexpr int tempoMassimo = 250;
constexpr int tempoIniziale = 60;

constexpr std::uint8_t attributoLegatura = 2;  ///< place of the tie among the attribute buttons
constexpr std::uint8_t senzaAttributo = 6;

constexpr int sinistraRigaCur = 2190;  ///< left end of the cursor's way, in twips
constexpr int corsaCursore = 1770;

constexpr std::int16_t canalePulsi = 10;
constexpr int forzaPulsi = 120;  ///< velocity of a pulse, less the volume bar's value
constexpr int pulsiMassimi = 9;

/// The last letters of a voice's note names that its display has room for.
constexpr std::size_t lettereNomi = 40;

}  // namespace corvana
