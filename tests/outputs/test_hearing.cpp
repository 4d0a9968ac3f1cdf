#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "tests/outputs/hearing.h"

namespace corvana::prova {
namespace {

/// Tones at the given frequencies together, the k-th at `1 / k` of the first's strength.
std::vector<float> Accordo(const std::vector<double>& hertz, double durata) {
    std::vector<float> onda(static_cast<std::size_t>(durata * frequenzaUdito));
    for (std::size_t i = 0; i < onda.size(); ++i)
        for (std::size_t k = 0; k < hertz.size(); ++k)
            onda[i] += static_cast<float>(0.3 / static_cast<double>(k + 1) *
                                          std::sin(2 * std::numbers::pi * hertz[k] *
                                                   static_cast<double>(i) / frequenzaUdito));
    return onda;
}

TEST(Udito, HearsTheFundamentalAndNotItsOvertones) {
    for (const double hertz : {55.0, 110.0, 246.94, 440.0, 987.77, 2093.0})
        EXPECT_NEAR(Altezza(Accordo({hertz, 2 * hertz, 3 * hertz}, 0.1)), hertz, 0.003 * hertz);
}

TEST(Udito, HearsAMissingFundamental) {
    EXPECT_NEAR(Altezza(Accordo({660, 880, 1100}, 0.1)), 220, 1);
}

TEST(Udito, HearsNoPitchInSilenceOrNoise) {
    EXPECT_EQ(Altezza(std::vector<float>(4800)), 0);
    std::vector<float> rumore(4800);
    std::uint32_t caso = 1;
    for (float& c : rumore) {
        caso = caso * 1664525U + 1013904223U;
        c = static_cast<float>(caso >> 8) / 8388608.0F - 1;
    }
    EXPECT_EQ(Altezza(rumore), 0);
}

TEST(Udito, NumbersNotesFromTheirFrequency) {
    EXPECT_DOUBLE_EQ(NotaMidi(440), 69);
    EXPECT_NEAR(NotaMidi(261.6256), 60, 1e-4);
}

TEST(Udito, TellsNotesInTheirOrderAcrossSilenceAndHum) {
    std::vector<float> onda;
    for (const double hertz : {440.0, 0.0, 440.0, 523.25, 329.63, 1.0, 440.0}) {
        const auto parte = Accordo({hertz, 2 * hertz}, 0.3);
        onda.insert(onda.end(), parte.begin(), parte.end());
    }
    EXPECT_EQ(NoteUdite(onda), (std::vector<int>{69, 72, 64, 69}));
    EXPECT_TRUE(NoteUdite(std::vector<float>(48000)).empty());
}

TEST(Udito, FindsStrokesWithinTwoMilliseconds) {
    std::vector<float> onda(48000);
    for (const double inizio : {0.1, 0.45, 0.8})
        for (auto i = static_cast<std::size_t>(inizio * frequenzaUdito); i < onda.size(); ++i) {
            const double t = static_cast<double>(i) / frequenzaUdito - inizio;
            onda[i] += static_cast<float>(0.4 * std::exp(-t / 0.08) * std::sin(3000 * t));
        }
    const auto attacchi = Attacchi(onda);
    ASSERT_EQ(attacchi.size(), 3U);
    EXPECT_NEAR(attacchi[0], 0.1, 0.002);
    EXPECT_NEAR(attacchi[1], 0.45, 0.002);
    EXPECT_NEAR(attacchi[2], 0.8, 0.002);
    EXPECT_TRUE(Attacchi(std::vector<float>(48000)).empty());
}

TEST(Udito, FindsAKnownSoundAmongOthers) {
    auto modello = Accordo({523, 777}, 0.2);
    for (std::size_t i = 0; i < modello.size(); ++i)
        modello[i] *= static_cast<float>(std::exp(-static_cast<double>(i) / 2000));
    auto onda = Accordo({180}, 1);
    for (std::size_t i = 0; i < modello.size(); ++i)
        onda[20'000 + i] += 0.5F * modello[i];
    EXPECT_NEAR(Ritrova(onda, modello, 0.4, 0.1), 20'000 / frequenzaUdito, 0.001);
}

TEST(Udito, MeasuresOneFrequencyAlone) {
    const auto onda = Accordo({500}, 0.1);
    EXPECT_NEAR(Forza(onda, 500), 0.3, 0.001);
    EXPECT_LT(Forza(onda, 900), 0.01);
}

}  // namespace
}  // namespace corvana::prova
