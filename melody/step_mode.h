// The step mode: which note comes under the step, and how the note under it is rewritten.
// Logic thread.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "melody/melody.h"

namespace corvana {

/// What the step walks over in a circle, as indices from 0. `fine` is where it lands when it goes
/// back from the start; the boxes and the fields of a voice may tell different ends.
struct TrattoPasso {
    std::int16_t da = 0;
    std::int16_t a = 0;
    std::int16_t fine = 0;
};

/// The range between what two boxes show, which count from 1. Throws `Guasto` 13 or 6 when 16 bits
/// can't hold it.
TrattoPasso TrattoDaCaselle(std::string_view prima, std::string_view ultima);

/// Where the step stands before the first one of a walk.
std::int16_t PrimaDelTratto(const TrattoPasso& tratto);
/// The index after a step. Throws `Guasto` 6 when it leaves 16 bits.
std::int16_t PassoAvanti(std::int16_t indice, const TrattoPasso& tratto);
std::int16_t PassoIndietro(std::int16_t indice, const TrattoPasso& tratto);

/// What is said of a step that leaves the voice, since the range's box holds more than it has.
std::string AvvisoPasso(std::int16_t indice, const TrattoPasso& tratto);

/// What the tools want a note to be.
struct NotaVoluta {
    std::int16_t nota = 0;  ///< MIDI number
    double valore = 1;      ///< in quarter notes
    bool terzina = false;   ///< two thirds of `valore`, if that is a new one
    std::string attributo;  ///< its letter
    char separatore = '.';  ///< the decimal one
};

struct EsitoModifica {
    bool cambiato = false;
    bool terzinaUsata = false;
    std::optional<std::int16_t> mostrata;  ///< the note whose name is to be shown, if that changed
};

/// Rewrites in the texts what differs from note `i` of the arrays. Throws `Guasto`, with nothing
/// changed, 9 when there is no such note, 13 or 6 when its tokens are no numbers.
EsitoModifica ModificaNota(VoceMelodia& voce, long i, const NotaVoluta& voluta);

/// Where step and range stand once the note under the step is taken out: on the note before.
struct DopoCancellata {
    std::int16_t indice = 0;
    std::int16_t primaNota = 0;
    bool primaCambiata = false;  ///< its box is written anew
    bool carica = true;          ///< the tools take the note under the step
};
DopoCancellata CancellataSotto(std::int16_t indice, std::int16_t primaNota);

}  // namespace corvana
