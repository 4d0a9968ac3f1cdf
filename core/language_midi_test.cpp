#include <array>

#include "core/language_targets.h"

namespace corvana {

namespace {

constexpr std::array bersagliMidiTest = {
    Testo(75, "Label2"),
    Testo(76, "Label1"),
    Testo(77, "cmdTest"),
};

}  // namespace

std::span<const Bersaglio> BersagliMidiTest() {
    return bersagliMidiTest;
}

}  // namespace corvana
