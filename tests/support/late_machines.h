// Machines that wake the logic late, and what no lateness may change.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <random>
#include <vector>

#include "sound/recorder.h"

namespace corvana::prova {

/// How late the next wait ends, in seconds.
using Ritardo = std::function<double()>;

/// Late by 1, 30 and 240 ms, and by chance, always by the same numbers.
inline std::vector<Ritardo> MacchineTarde() {
    std::vector<Ritardo> macchine;
    for (const double sempre : {0.001, 0.03, 0.24})
        macchine.emplace_back([sempre] { return sempre; });
    macchine.emplace_back([caso = std::mt19937(1)]() mutable {
        return std::uniform_real_distribution(0.0, 0.24)(caso);
    });
    return macchine;
}

inline void AspettatiUguali(const std::vector<Registratore::Voce>& puntuali,
                            const std::vector<Registratore::Voce>& tardi) {
    ASSERT_EQ(puntuali.size(), tardi.size());
    for (std::size_t i = 0; i < puntuali.size(); ++i) {
        ASSERT_EQ(puntuali[i].messaggio, tardi[i].messaggio) << i;
        ASSERT_NEAR(puntuali[i].istante, tardi[i].istante, 1e-9) << i;
    }
}

}  // namespace corvana::prova
