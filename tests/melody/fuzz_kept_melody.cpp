// The entry of scripts/fuzz: bytes of the file of an unsaved melody that no one has thought of.
#include "tests/melody/kept_check.h"
#include "tests/support/fuzz_entry.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* byte, std::size_t quanti) {
    return corvana::prova::Prova(byte, quanti, corvana::prova::ControllaTenuta);
}
