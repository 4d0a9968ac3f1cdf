#include <array>

#include "core/language_targets.h"

namespace corvana {

namespace {

using T = TestiLingua;

constexpr std::array bersagliConfMetro = {
    Testo(69, "frmConfMetro"),
    Testo(70, "Label3"),
    Testo(71, "Label1"),
    Testo(72, "Label2"),
    Stringa(73, &T::TxtSpiegaSequenza),
    Stringa(74, &T::TxtSpiegaTempo),
    Seguito(74, "Text1", &T::TxtSpiegaSequenza),
};

}  // namespace

std::span<const Bersaglio> BersagliConfMetro() {
    return bersagliConfMetro;
}

}  // namespace corvana
