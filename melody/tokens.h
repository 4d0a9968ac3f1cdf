// Token texts: their split into arrays, and what a token means. Logic thread.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "melody/melody.h"

namespace corvana {

/// A voice counts its notes in 16 bits.
constexpr long noteMassime = 32767;

/// The element; throws `Guasto` 9 when there is none.
const std::string& Elemento(const std::vector<std::string>& elementi, long indice);

/// `testo` with token `indice`, from 0, replaced by `nuovo`. Throws `Guasto` 9 when there is none.
std::string SostituisciToken(std::string_view testo, long indice, std::string_view nuovo);

/// Splits the voice's three texts into its arrays and counts its notes. Throws `Guasto` 6, with the
/// voice as it was, when there are more than `noteMassime`.
void Spezza(VoceMelodia& voce);

/// Notes that have a token in each of the three arrays: what of the voice can be played.
long NoteIntere(const VoceMelodia& voce);

/// The number of a note token. Throws `Guasto` 13 or 6 when 16 bits can't hold it as one.
std::int16_t NumeroNota(std::string_view token);

/// The index of a note that a text counts from 1. Throws as `NumeroNota`.
std::int16_t IndiceNota(std::string_view testo);

}  // namespace corvana
