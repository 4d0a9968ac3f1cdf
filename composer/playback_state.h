// What the playback engine keeps in the melody window. Logic thread.
#pragma once

#include <array>

#include "composer/voice_state.h"
#include "melody/melody.h"

namespace corvana {

struct StatoRiproduzione {
    /// The lower voices play on their own range fields, which a play therefore overwrites; the
    /// soprano's range must outlast it.
    explicit StatoRiproduzione(Melodia& melodia)
        : voci{{{posizioneSoprano, ultimaSoprano},
                {melodia.voci[1].primaNota, melodia.voci[1].ultimaNota},
                {melodia.voci[2].primaNota, melodia.voci[2].ultimaNota},
                {melodia.voci[3].primaNota, melodia.voci[3].ultimaNota}}} {}

    std::int16_t posizioneSoprano = 0;
    std::int16_t ultimaSoprano = 0;
    std::array<StatoVoce, numeroVoci> voci;
    StatoPulso pulso;
    int pulsiContati = 0;  ///< shown while the counter is

    Tick tickTotali = -1;      ///< length of the longest voice; -1 when all are empty
    bool parziale = false;     ///< the play is a range of the soprano
    Tick tickPrimaInizio = 0;  ///< ticks of the soprano before the range
    Tick tickFineRange = 0;    ///< and up to its end
};

}  // namespace corvana
