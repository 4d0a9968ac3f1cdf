// Surgery on the texts of a voice: they change together or, when a fault is thrown, not at all. The
// arrays stay as they were split unless told otherwise. Logic thread.
#pragma once

#include <string>

#include "melody/melody.h"

namespace corvana {

/// The tokens of one note, without their semicolons.
struct TokenNota {
    std::string nota;
    std::string durata;
    std::string attributo;
};
constexpr const char* tokenPausa = "00";

/// Puts a note behind the last one. Throws `Guasto` 6 when the voice has `noteMassime` already.
void Accoda(VoceMelodia& voce, const TokenNota& token);

/// Rewrites the texts from the arrays with a new note behind index `i`, which may be -1. Throws
/// `Guasto` 9 when `i` is no note, 6 as `Accoda`.
void InserisciDopo(VoceMelodia& voce, long i, const TokenNota& token);

/// Rewrites the texts from the arrays without the token behind index `i`, which may be -1.
void TogliTokenDopo(VoceMelodia& voce, long i);

/// Takes the last token off each text. Throws `Guasto` 5 when one of them has no two tokens.
void TogliUltimi(VoceMelodia& voce);

void SvuotaTesti(VoceMelodia& voce);

enum class Taglio : std::uint8_t { Niente, Svuotata, Accorciata };

/// Drops the last note. How many there are is told by the length of the note text, three characters
/// a note: below that nothing happens. Throws as `TogliUltimi`.
Taglio TagliaUltima(VoceMelodia& voce);

/// Repeats the notes `da` to `a` of the arrays at the end of the texts; none when `a` lies before
/// `da`. Throws `Guasto` 9 when one of them isn't there, 6 as `Accoda`.
void Incolla(VoceMelodia& voce, long da, long a);

/// Moves all notes of all voices, in the arrays and in the note texts; rests stay. False, with
/// nothing changed, when one would leave the five octaves. Throws as `NumeroNota`.
bool Trasponi(std::array<VoceMelodia, numeroVoci>& voci, int semitoni);

}  // namespace corvana
