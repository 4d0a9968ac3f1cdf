#include <array>

#include "tests/language/expected_rows.h"

namespace corvana::prova {

namespace {

constexpr auto righeMidiTest = std::to_array<RigaAttesa>({
    {75, "Label2", "Uscite", "outputs"},
    {76, "Label1", "Strumento", "Instrument"},
    {77, "cmdTest", "Test (La)", "Test (A)"},
});

}  // namespace

RigheAttese RigheMidiTest() {
    return righeMidiTest;
}

}  // namespace corvana::prova
