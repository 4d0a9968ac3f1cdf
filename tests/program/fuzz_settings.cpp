// The entry of scripts/fuzz: bytes of the settings' file that no one has thought of.
#include "tests/program/settings_check.h"
#include "tests/support/fuzz_entry.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* byte, std::size_t quanti) {
    return corvana::prova::Prova(byte, quanti, corvana::prova::ControllaImpostazioni);
}
