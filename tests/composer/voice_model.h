// A slow and plain model of what a play sends: for each note the tick in which it is struck and the
// one in which it is released, worked out from the notes before it.
#pragma once

#include <array>
#include <vector>

#include "tests/composer/composer_rig.h"

namespace corvana::prova {

/// How a duration reads in a melody and how many ticks it is, rounded; a tuplet note is counted in
/// the tally.
struct DurataModello {
    const char* token = "";
    int tick = 0;
    bool tuplet = false;
};

struct NotaModello {
    DurataModello durata;
    int nota = 0;  ///< 0 for a rest
    char attributo = 'n';
};
using VoceModello = std::vector<NotaModello>;

struct MelodiaModello {
    std::array<VoceModello, numeroVoci> voci;
    std::array<int, numeroVoci> volumi{};
    bool conMetronomo = false;
    int pulsazioni = 2;
    int primoPulso = 1;             ///< from 1
    const char* durataPulsi = "4";  ///< the denominator that is chosen
    int tickPulso = 32;             ///< and what it makes
    int prima = 0;                  ///< range of the soprano, from 0
    int ultima = 0;

    bool Intera() const;
};

/// Draws a number of that range, both ends included, within a property.
int Tra(int minimo, int massimo);
/// Draws a voice of whole and open triplets, dotted notes, multiples, ties, and rests.
VoceModello EstraiVoce(bool anchePrivaDiNote);
/// Draws a melody with at least a note in the soprano, and a range, which may be all of it.
MelodiaModello EstraiMelodia();

/// Puts the melody into the window.
void Scrivi(BancoComposer& banco, const MelodiaModello& melodia);

/// Ticks of a play.
int TickAttesi(const MelodiaModello& melodia);
/// All that it sends up to its end procedure.
Mandati MandatiAttesi(const MelodiaModello& melodia);

}  // namespace corvana::prova
