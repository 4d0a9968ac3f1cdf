#include <array>

#include "composer/composer_rows.h"

namespace corvana {

namespace {

constexpr std::array bersagliCopyFromA = {
    Testo(375, "frmCopyFromA"),
    Testo(376, "Label1"),
    Testo(377, "cmdCopia"),
    Consiglio(378, "cmdChiudi"),
};

}  // namespace

Bersagli BersagliCopyFromA() {
    return bersagliCopyFromA;
}

}  // namespace corvana
