#include <array>

#include "tests/language/expected_rows.h"

namespace corvana::prova {

namespace {

using T = TestiLingua;

constexpr auto righeAbout = std::to_array<RigaAttesa>({
    {79, "", "edizione", "edition", &T::TxtVersione},
    {80, "", "Leggere, ascoltare", "Reading, listening", &T::TxtMotto},
    {81, "", "licenza MIT", "MIT License", &T::TxtLicenza},
    {82, "Text2", "Corvana insegna", "Corvana teaches"},
});

}  // namespace

RigheAttese RigheAbout() {
    return righeAbout;
}

}  // namespace corvana::prova
