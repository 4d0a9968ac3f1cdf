// Which characters the names of melodies, folders and bookmarks may not hold. Each of the four
// places where a name is asked for has a set of its own. Any thread.
#pragma once

#include <string_view>

namespace corvana {

constexpr std::string_view rifiutatiMelodia = ",.-;:|\\/!%&()='^+*°§<>?";
constexpr std::string_view rifiutatiNuovoNome = ",.-;:|\\/!%&()='^+*°§<>";
constexpr std::string_view rifiutatiCartella = ",.-;:|\\/!%&()='^+*°<>?";
constexpr std::string_view rifiutatiRiferimento = ",.;:|\\/!%&()='^+*°§<>";

/// True when `nome` holds a character of the set. Both in UTF-8.
bool NomeRifiutato(std::string_view nome, std::string_view rifiutati);

}  // namespace corvana
