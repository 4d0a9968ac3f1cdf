#include "sound/outputs/device_names.h"

namespace corvana {

namespace {

constexpr std::size_t lunghezzaMassima = 31;

/// A byte within a UTF-8 character, not its first.
bool Seguito(char c) {
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

}  // namespace

std::string NomeBreve(std::string_view nome) {
    if (nome.size() <= lunghezzaMassima) return std::string(nome);
    std::size_t fine = lunghezzaMassima;
    while (fine > 0 && Seguito(nome[fine]))
        --fine;
    return std::string(nome.substr(0, fine));
}

}  // namespace corvana
