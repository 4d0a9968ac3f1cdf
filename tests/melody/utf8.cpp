#include "tests/melody/utf8.h"

#include <algorithm>
#include <array>
#include <bit>

namespace corvana::prova {

namespace {

/// The least character that takes so many bytes.
constexpr std::array<unsigned, 5> minimi = {0, 0, 0x80, 0x800, 0x10000};

/// The bytes of the character at the beginning; 0 when there is no valid one.
std::size_t PrimoLungo(std::string_view testo) {
    const auto primo = static_cast<unsigned char>(testo.front());
    const auto uni = static_cast<std::size_t>(std::countl_one(primo));
    if (uni == 0) return 1;
    if (uni == 1 || uni > 4 || uni > testo.size()) return 0;
    unsigned carattere = primo & (0x7FU >> uni);
    for (const char c : testo.substr(1, uni - 1)) {
        if (std::countl_one(static_cast<unsigned char>(c)) != 1) return 0;
        carattere = carattere * 64 + (static_cast<unsigned char>(c) & 0x3FU);
    }
    const bool surrogato = carattere >= 0xD800 && carattere < 0xE000;
    return carattere < minimi[uni] || surrogato || carattere > 0x10FFFF ? 0 : uni;
}

}  // namespace

bool EUtf8(std::string_view testo) {
    while (!testo.empty()) {
        const std::size_t lungo = PrimoLungo(testo);
        if (lungo == 0) return false;
        testo.remove_prefix(lungo);
    }
    return true;
}

}  // namespace corvana::prova
