#include <gtest/gtest.h>

#include <cmath>

#include "sound/outputs/cue_voice.h"

namespace corvana {
namespace {

std::vector<float> Prendi(VoceSegnale& voce, int frame) {
    std::vector<float> stereo(static_cast<std::size_t>(2 * frame));
    voce.Aggiungi(stereo.data(), frame);
    return stereo;
}

TEST(VoceSegnale, PlaysAWaveOnceOnBothChannels) {
    const Onda onda{{0.1F, 0.2F, 0.3F}};
    VoceSegnale voce;
    EXPECT_FALSE(voce.Suona());
    voce.Avvia(&onda);
    EXPECT_EQ(Prendi(voce, 2), (std::vector<float>{0.1F, 0.1F, 0.2F, 0.2F}));
    EXPECT_EQ(Prendi(voce, 3), (std::vector<float>{0.3F, 0.3F, 0, 0, 0, 0}));
    EXPECT_FALSE(voce.Suona());
}

TEST(VoceSegnale, AddsToWhatIsThere) {
    const Onda onda{{0.1F}};
    VoceSegnale voce;
    voce.Avvia(&onda);
    std::vector<float> stereo = {0.5F, -0.5F};
    voce.Aggiungi(stereo.data(), 1);
    EXPECT_FLOAT_EQ(stereo[0], 0.6F);
    EXPECT_FLOAT_EQ(stereo[1], -0.4F);
}

TEST(VoceSegnale, ANewWaveCutsTheOldOneWithoutAClick) {
    const Onda lunga{std::vector<float>(10'000, 0.5F)};
    const Onda silenzio{std::vector<float>(10'000, 0)};
    VoceSegnale voce;
    voce.Avvia(&lunga);
    Prendi(voce, 1000);
    voce.Avvia(&silenzio);
    const auto suono = Prendi(voce, 1000);
    float prima = 0.5F;
    for (std::size_t i = 0; i < suono.size(); i += 2) {
        EXPECT_LE(std::abs(suono[i] - prima), 0.5F / frameDiTaglio + 1e-6F);
        prima = suono[i];
        EXPECT_TRUE(i < 2 * frameDiTaglio || suono[i] == 0) << i;
    }
}

TEST(VoceSegnale, AWaveThatHasEndedLeavesNothingToCut) {
    const Onda corta{{0.5F}};
    const Onda altra{{0.25F, 0.25F}};
    VoceSegnale voce;
    voce.Avvia(&corta);
    Prendi(voce, 10);
    voce.Avvia(&altra);
    EXPECT_EQ(Prendi(voce, 2), (std::vector<float>{0.25F, 0.25F, 0.25F, 0.25F}));
}

}  // namespace
}  // namespace corvana
