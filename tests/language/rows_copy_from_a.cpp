#include <array>

#include "tests/language/expected_rows.h"

namespace corvana::prova {

namespace {

constexpr auto righeCopyFromA = std::to_array<RigaAttesa>({
    {375, "frmCopyFromA", "supporto rimovibile", "removable medium"},
    {376, "Label1", "Seleziona i file", "Select the files"},
    {377, "cmdCopia", "Copia", "Copy"},
    {378, "cmdChiudi.tip", "Chiudi", "Close"},
});

}  // namespace

RigheAttese RigheCopyFromA() {
    return righeCopyFromA;
}

}  // namespace corvana::prova
