// What the fuzzers' entries have in common.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace corvana::prova {

/// Ends the process when the check says that something doesn't hold of these bytes.
template <class Controllo>
int Prova(const std::uint8_t* byte, std::size_t quanti, const Controllo& controllo) {
    const std::string guasto =
        controllo(std::string_view(reinterpret_cast<const char*>(byte), quanti));
    if (guasto.empty()) return 0;
    std::fprintf(stderr, "%s\n", guasto.c_str());
    std::abort();
}

}  // namespace corvana::prova
