// The names of melodies: how a file bears one, and which characters it may not hold, nor those of
// folders and bookmarks. Each of the four places where a name is asked for has a set of its own.
// Any thread.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace corvana {

constexpr std::string_view rifiutatiMelodia = ",.-;:|\\/!%&()='^+*°§<>?";
constexpr std::string_view rifiutatiNuovoNome = ",.-;:|\\/!%&()='^+*°§<>";
constexpr std::string_view rifiutatiCartella = ",.-;:|\\/!%&()='^+*°<>?";
constexpr std::string_view rifiutatiRiferimento = ",.;:|\\/!%&()='^+*°§<>";

/// True when `nome` holds a character of the set. Both in UTF-8.
bool NomeRifiutato(std::string_view nome, std::string_view rifiutati);

constexpr std::string_view estensioneMelodia = ".mel";

/// The melody's name when a file called `file` is one, by its extension in whatever case.
std::optional<std::string> NomeDaFile(std::string_view file);

}  // namespace corvana
