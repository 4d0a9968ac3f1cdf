// How long a note lasts in ticks, each a 32nd part of a quarter note. Any thread.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace corvana {

using Tick = std::int64_t;
constexpr double quartiPerTick = 0.03125;

/// The tally of the tuplet notes that one walk over one voice has met since the last whole group.
struct ContoTuplet {
    Tick sommaTuplet = 0;
    int contaTuplet = 0;  ///< 0 to 2
};

/// Ticks of a note of `durata` quarter notes. Rounding would let three notes of a triplet drift
/// from the beat: the third of them is corrected, so that the group lasts a power of two.
Tick TickNota(double durata, ContoTuplet& conto);

/// Milliseconds to hand to `Sleep` for a tick at `tempo` quarter notes a minute (20 to 250): what
/// `Sleep` takes on top of them is left out.
int MsPerTick(int tempo);

/// The duration token at `indice`, as ticks. Throws `Guasto` 9 when there is none, 13 or 6 when it
/// is no number.
Tick TickToken(const std::vector<std::string>& durate, long indice, ContoTuplet& conto);

/// Sum of the ticks of the tokens 0 to `indice`; 0 for a negative index. Throws as `TickToken`.
Tick SommaTick(const std::vector<std::string>& durate, long indice);

/// Where a walk over a voice of `note` notes stands after `tick` ticks from its beginning.
struct PuntoVoce {
    std::int16_t posizione = 0;  ///< the note; `note` when the voice has ended before
    Tick trascorsi = 0;          ///< ticks of that note that have gone by
};
PuntoVoce CercaPunto(const std::vector<std::string>& durate, long note, Tick tick);

}  // namespace corvana
