// A soft limiter for the mix: what isn't loud passes unchanged, what is bends towards full scale
// and never reaches beyond it. Pure.
#pragma once

#include <cmath>

namespace corvana {

/// Up to here a sample passes as it is.
constexpr float ginocchio = 0.8F;

inline float Limita(float campione) {
    const float ampiezza = std::fabs(campione);
    if (ampiezza <= ginocchio) return campione;
    constexpr float spazio = 1 - ginocchio;
    const float curvo = ginocchio + spazio * std::tanh((ampiezza - ginocchio) / spazio);
    return std::copysign(curvo, campione);
}

}  // namespace corvana
