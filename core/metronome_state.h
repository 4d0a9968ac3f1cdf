// The metronome's shared state. Logic thread.
#pragma once

#include <cstdint>
#include <string>

#include "forms/value.h"

namespace corvana {

struct StatoMetronomo {
    bool MetroAttivo = false;        ///< the loop is running
    std::int16_t MetroVolume = 127;  ///< velocity of the pulses
    std::int16_t MetroNotaA = 76;    ///< percussion note of each letter
    std::int16_t MetroNotaB = 85;
    std::int16_t MetroNotaC = 33;
    std::uint8_t MetroIndiceA = 8;  ///< list row of those notes
    std::uint8_t MetroIndiceB = 9;
    std::uint8_t MetroIndiceC = 1;
    std::int16_t MetroMolt = 1;        ///< tempo multiplier, 1 or 2
    double MetroBattito = 1;           ///< seconds for a pulse
    std::string MetroSequenza = "ab";  ///< 1 to 20 of the letters a, b, c
    std::string MetroTempo = "2/4";    ///< the time signature
    std::int16_t MetroNota = 0;        ///< note of the pulse at hand
    Colore MetroColore = 0;            ///< colour of the pulse at hand
};

}  // namespace corvana
