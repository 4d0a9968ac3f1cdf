#include <gtest/gtest.h>

#include <filesystem>

#include "sound/outputs/wave_store.h"
#include "tests/outputs/process.h"

namespace corvana {
namespace {

TEST(MagazzinoOnde, ReadsAWaveOnceAndKeepsIt) {
    const prova::CartellaPropria cartella;
    const auto copia = cartella.Percorso() / "copia.wav";
    std::filesystem::copy_file(CORVANA_CUES "/rok.wav", copia);
    MagazzinoOnde magazzino;
    const Onda* onda = magazzino.Trova(copia.string());
    ASSERT_NE(onda, nullptr);
    std::filesystem::remove(copia);
    EXPECT_EQ(magazzino.Trova(copia.string()), onda);
}

TEST(MagazzinoOnde, AMissingWaveIsLookedForAgain) {
    const prova::CartellaPropria cartella;
    const auto copia = cartella.Percorso() / "copia.wav";
    MagazzinoOnde magazzino;
    EXPECT_EQ(magazzino.Trova(copia.string()), nullptr);
    std::filesystem::copy_file(CORVANA_CUES "/rok.wav", copia);
    EXPECT_NE(magazzino.Trova(copia.string()), nullptr);
}

TEST(MagazzinoOnde, HoldsSoManyAndNoMore) {
    MagazzinoOnde magazzino;
    std::string percorso = CORVANA_CUES;
    int trovate = 0;
    for (int i = 0; i < 100; ++i) {
        percorso += "/.";
        if (magazzino.Trova(percorso + "/rok.wav")) ++trovate;
    }
    EXPECT_EQ(trovate, 32);
}

}  // namespace
}  // namespace corvana
