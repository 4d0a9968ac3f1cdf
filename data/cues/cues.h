// The two cue sounds of the drills, made by formula: a soft bell for right and a low, short knock
// for wrong. Pure.
#pragma once

#include <vector>

namespace corvana {

constexpr int frequenzaSegnali = 48000;  ///< samples each second

/// One channel, -1 to 1, starting and ending at rest, under 0.3 s.
std::vector<double> Campana();
std::vector<double> Colpo();

}  // namespace corvana
