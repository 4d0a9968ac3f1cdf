// The system's regional settings, read from the environment. Called once, at the program's start.
#pragma once

namespace corvana {

/// What stands before the fraction of a number: a comma or a point.
char SeparatoreDiSistema();

}  // namespace corvana
