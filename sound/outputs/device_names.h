// How devices are called in the list that the user picks from. Pure.
#pragma once

#include <string>
#include <string_view>

namespace corvana {

constexpr const char* nomeSintetizzatore = "Corvana";

/// At most 31 bytes of `nome`, cut between characters.
std::string NomeBreve(std::string_view nome);

}  // namespace corvana
