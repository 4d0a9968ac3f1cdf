// The entry of scripts/fuzz: bytes of a language file that no one has thought of.
#include "tests/core/language_check.h"
#include "tests/support/fuzz_entry.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* byte, std::size_t quanti) {
    return corvana::prova::Prova(byte, quanti, corvana::prova::ControllaLingua);
}
