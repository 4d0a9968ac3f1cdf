// What a test demands of a sound.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>

#include "tests/hearing/listening.h"

namespace corvana::prova {

constexpr double intonazione = 0.3;   ///< semitones that a heard pitch may be off
constexpr double puntualita = 0.005;  ///< seconds that a heard stroke may be off

/// Every note sounds at its pitch.
inline void EsigiAltezze(std::span<const float> suono, const std::vector<NotaAttesa>& attese) {
    for (std::size_t i = 0; i < attese.size(); ++i) {
        const double hertz = Altezza(Cuore(suono, attese[i]));
        ASSERT_GT(hertz, 0) << "no pitch in note " << i << " at " << attese[i].inizio << " s";
        EXPECT_NEAR(NotaMidi(hertz), attese[i].nota, intonazione)
            << "note " << i << " at " << attese[i].inizio << " s";
    }
}

/// Notes are struck when they should be, and at no other time.
inline void EsigiAttacchi(std::span<const float> suono, const std::vector<NotaAttesa>& attese) {
    const std::vector<double> attacchi = Attacchi(suono);
    ASSERT_EQ(attacchi.size(), attese.size());
    for (std::size_t i = 0; i < attese.size(); ++i)
        EXPECT_NEAR(attacchi[i], attese[i].inizio, puntualita) << "note " << i;
}

}  // namespace corvana::prova
