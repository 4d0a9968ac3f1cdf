// Small text tools that the whole program shares. Any thread.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace corvana {

/// The fields between the separators: n separators give n + 1 fields, an empty text gives none.
std::vector<std::string> Dividi(std::string_view testo, char separatore);

/// `testo` without its outer blanks.
std::string_view SenzaBlanchi(std::string_view testo);

/// The whole number that the text means, outer blanks ignored. Throws `Guasto` 13 when it isn't a
/// number and `Guasto` 6 when it doesn't lie in `basso` to `alto`.
long NumeroIntero(std::string_view testo, long basso, long alto);

/// `parte` / `tutto` by the pattern "0.00%", halves rounded up. Both at least 0, `tutto` above 0.
std::string Percento(long parte, long tutto);

/// The text with one byte for each of its UTF-8 characters: those of ASCII as they are, '?' for any
/// other.
std::string UnBytePerCarattere(std::string_view testo);

/// Lower case of the ASCII letters.
std::string Minuscolo(std::string_view testo);

}  // namespace corvana
