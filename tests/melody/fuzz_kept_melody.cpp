// The entry of scripts/fuzz: bytes of the file of a melody that isn't saved that no one has thought
// of.
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "tests/melody/kept_check.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* byte, std::size_t quanti) {
    const std::string_view contenuto(reinterpret_cast<const char*>(byte), quanti);
    const std::string guasto = corvana::prova::ControllaTenuta(contenuto);
    if (guasto.empty()) return 0;
    std::fprintf(stderr, "%s\n", guasto.c_str());
    std::abort();
}
