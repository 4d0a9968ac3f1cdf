// A bookmark: a range of the soprano with a name. Its text is the record, in the list as in the
// file: "5 ÷ 8 ÷ name". Any thread.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace corvana {

/// What a bookmark's name may not hold when it is added, beyond what its text is split at.
constexpr std::string_view rifiutatiInAggiunta = ";÷";

class Riferimento {
public:
    /// One that the user names; both notes count from 1.
    Riferimento(long prima, long ultima, std::string_view nome);
    /// That of a whole melody of `note` notes: no blank stands before its name.
    static Riferimento Intero(long note, std::string_view nome);
    /// Any text: `Testo` gives it back as it was.
    static Riferimento Leggi(std::string_view testo);

    /// Its notes, as indices from 0, and its name without outer blanks. Throw `Guasto` 9 when the
    /// text has no such field, 13 or 6 when it is no number of 16 bits.
    std::int16_t PrimaNota() const;
    std::int16_t UltimaNota() const;
    std::string Nome() const;

    /// The notes stay as they are spelled. Throws `Guasto` 9 when the text has no such fields.
    void Rinomina(std::string_view nome);

    std::string Testo() const;

private:
    Riferimento() = default;
    std::vector<std::string> campi_;
};

/// All of a list's texts as a file has them: each followed by ';'.
std::string TestoRiferimenti(std::span<const std::string> riferimenti);

/// What of an answer becomes the name of a new bookmark: outer blanks go, 12 characters are kept.
std::string NomeRiferimento(std::string_view risposta);

}  // namespace corvana
