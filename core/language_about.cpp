#include <array>

#include "core/language_targets.h"

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

std::span<const Bersaglio> BersagliAbout() {
    return bersagliAbout;
}

}  // namespace corvana
