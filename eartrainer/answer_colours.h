// The colours by which the ear trainer says something: its face paints a sign beside each, for who
// can't tell them apart. Pure; any thread.
#pragma once

#include "forms/value.h"

namespace corvana {

/// What says on a strip whether something may be asked.
constexpr Colore coloreAmmesso = Rgb(128, 255, 128);
constexpr Colore coloreEscluso = Rgb(255, 0, 0);
/// What says which answer is right, when the learner wants to see it.
constexpr Colore coloreSvelato = Rgb(255, 255, 255);

}  // namespace corvana
