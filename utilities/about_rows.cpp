#include <array>

#include "utilities/utility_rows.h"

namespace corvana {

namespace {

using T = TestiLingua;

constexpr std::array bersagliAbout = {
    Stringa(79, &T::TxtVersione),
    Stringa(80, &T::TxtMotto),
    Stringa(81, &T::TxtLicenza),
    Testo(82, "Text2"),
};

}  // namespace

Bersagli BersagliAbout() {
    return bersagliAbout;
}

}  // namespace corvana
