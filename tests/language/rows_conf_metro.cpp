#include <array>

#include "tests/language/expected_rows.h"

namespace corvana::prova {

namespace {

using T = TestiLingua;

constexpr auto righeConfMetro = std::to_array<RigaAttesa>({
    {69, "frmConfMetro", "metronomo", "Metronome"},
    {70, "Label3", "Tempo", "Time signature"},
    {71, "Label1", "Suoni", "Sounds"},
    {72, "Label2", "Sequenza", "Pattern"},
    {73, "", "fino a un massimo di 20", "up to 20", &T::TxtSpiegaSequenza},
    {74, "Text1", "tempo corrispondente", "matching time signature", &T::TxtSpiegaTempo},
});

}  // namespace

RigheAttese RigheConfMetro() {
    return righeConfMetro;
}

}  // namespace corvana::prova
