#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <vector>

#include "sound/outputs/font_loading.h"
#include "tests/outputs/process.h"

namespace corvana {
namespace {

TEST(CaricamentoFont, GivesTheMixerItsVoice) {
    auto motore = std::make_shared<MotoreSonoro>();
    CaricamentoFont caricamento(motore, {});
    ASSERT_TRUE(caricamento.Pronto());
    motore->mescolatore.PonAttivo(true);
    motore->mescolatore.Accoda({0, 0x643C90});
    std::vector<float> stereo(9600);
    motore->mescolatore.Rendi(stereo.data(), 4800, 0);
    EXPECT_GT(*std::max_element(stereo.begin(), stereo.end()), 0.001F);
}

TEST(CaricamentoFont, ReadsTheCuesAhead) {
    const prova::CartellaPropria cartella;
    const std::string percorso = (cartella.Percorso() / "rko.wav").string();
    std::filesystem::copy_file(CORVANA_CUES "/rko.wav", percorso);
    auto motore = std::make_shared<MotoreSonoro>();
    CaricamentoFont caricamento(motore, {"", cartella.Percorso().string()});
    EXPECT_FALSE(caricamento.Pronto());
    std::filesystem::remove(percorso);
    EXPECT_NE(motore->onde.Trova(percorso), nullptr);
}

}  // namespace
}  // namespace corvana
