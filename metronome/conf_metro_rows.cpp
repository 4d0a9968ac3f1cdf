#include "metronome/conf_metro_rows.h"

#include <array>

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

Bersagli BersagliConfMetro() {
    return bersagliConfMetro;
}

}  // namespace corvana
