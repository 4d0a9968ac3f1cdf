// The staff positions of the note trainer: the numbers in the names of the note controls, which
// count the white notes of a staff upwards. Positions 11 to 31 lie on the bass staff, 40 to 64 on
// the treble staff; 32 to 39 are no positions. Stateless; any thread.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace corvana {

/// How a note of that position comes to be seen.
enum class Specie : std::uint8_t {
    maschera,  ///< stands on ledger lines of the staff and shows when its mask is hidden
    testa,     ///< a head on the staff's lines that shows when it is visible
    acuta,     ///< a head with ledger lines of its own, the same way
};

struct Posizione {
    int numero;
    std::int16_t valore;  ///< `IndiceNota`, or a low code
    int fasciaDa;         ///< band on the ruler, twips from its top, both ends included
    int fasciaA;
    Specie specie;
    int left, top, width, height;  ///< of its control, twips on the picture of the staves
};

constexpr int posizioneMinima = 11;
constexpr int posizioneMassima = 64;

/// All 46, in ascending order.
std::span<const Posizione> Posizioni();

/// The position of that number, or null.
const Posizione* CercaPosizione(int numero);

/// The position whose band on the ruler holds `y` (twips from the ruler's top), or null.
const Posizione* PosizioneDaRegolo(int y);

/// At least one position lies from `basso` to `alto`.
bool HaPosizioni(int basso, int alto);

/// The answer, 1 for DO to 7 for SI, that is right for a position.
int RispostaDi(const Posizione& posizione);

}  // namespace corvana
