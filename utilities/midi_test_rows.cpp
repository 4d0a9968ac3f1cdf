#include <array>

#include "utilities/utility_rows.h"

namespace corvana {

namespace {

constexpr std::array bersagliMidiTest = {
    Testo(75, "Label2"),
    Testo(76, "Label1"),
    Testo(77, "cmdTest"),
};

}  // namespace

Bersagli BersagliMidiTest() {
    return bersagliMidiTest;
}

}  // namespace corvana
