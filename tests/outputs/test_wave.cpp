#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <numbers>

#include "sound/outputs/wave.h"
#include "tests/outputs/hearing.h"
#include "tests/outputs/process.h"

namespace corvana {
namespace {

std::string Numero(std::uint32_t valore, int byte) {
    std::string testo;
    for (int i = 0; i < byte; ++i)
        testo += static_cast<char>((valore >> (8 * i)) & 0xFF);
    return testo;
}

std::string Wave(std::uint32_t canali, std::uint32_t hertz, const std::string& dati) {
    const std::string formato = Numero(1, 2) + Numero(canali, 2) + Numero(hertz, 4) +
                                Numero(hertz * 2 * canali, 4) + Numero(2 * canali, 2) +
                                Numero(16, 2);
    return "RIFF" + Numero(static_cast<std::uint32_t>(36 + dati.size()), 4) + "WAVEfmt " +
           Numero(16, 4) + formato + "data" + Numero(static_cast<std::uint32_t>(dati.size()), 4) +
           dati;
}

std::string Tono(std::uint32_t canali, std::uint32_t hertz, double altezza) {
    std::string dati;
    for (std::uint32_t i = 0; i < hertz / 4; ++i) {
        const double valore = 8000 * std::sin(2 * std::numbers::pi * altezza * i / hertz);
        for (std::uint32_t c = 0; c < canali; ++c)
            dati += Numero(static_cast<std::uint32_t>(static_cast<std::int32_t>(valore)), 2);
    }
    return Wave(canali, hertz, dati);
}

class FileOnda : public testing::Test {
protected:
    std::optional<Onda> Leggi(const std::string& contenuto) {
        std::ofstream(file, std::ios::binary) << contenuto;
        return CaricaOnda(file.string());
    }

    prova::CartellaPropria cartella;
    std::filesystem::path file = cartella.Percorso() / "onda.wav";
};

TEST_F(FileOnda, IsReadSampleBySample) {
    const auto onda = Leggi(Wave(1, 48000, Numero(0, 2) + Numero(16384, 2) + Numero(0x8000, 2)));
    ASSERT_TRUE(onda);
    ASSERT_EQ(onda->campioni.size(), 3U);
    EXPECT_FLOAT_EQ(onda->campioni[0], 0);
    EXPECT_NEAR(onda->campioni[1], 0.5, 0.001);
    EXPECT_FLOAT_EQ(onda->campioni[2], -1);
}

TEST_F(FileOnda, OfOtherRatesAndChannelsKeepsItsPitchAndLength) {
    for (const std::uint32_t hertz : {22050U, 44100U, 48000U})
        for (const std::uint32_t canali : {1U, 2U}) {
            const auto onda = Leggi(Tono(canali, hertz, 440));
            ASSERT_TRUE(onda);
            EXPECT_NEAR(static_cast<double>(onda->campioni.size()), 12000, 100);
            EXPECT_NEAR(prova::Altezza(prova::Parte(onda->campioni, 0.05, 0.1)), 440, 2);
        }
}

TEST_F(FileOnda, ThatIsMissingIsNone) {
    EXPECT_FALSE(CaricaOnda(file.string()));
    EXPECT_FALSE(CaricaOnda(""));
    EXPECT_FALSE(CaricaOnda(cartella.Percorso().string()));
}

TEST_F(FileOnda, ThatIsCutOrWrongAnywhereDoesNoHarm) {
    const std::string buono = Tono(1, 48000, 440).substr(0, 200);
    for (std::size_t lungo = 0; lungo < 60; ++lungo)
        Leggi(buono.substr(0, lungo));
    for (std::size_t i = 0; i < 44; ++i)
        for (const char byte : {'\0', '\x01', '\x7F', '\xFF'}) {
            std::string guasto = buono;
            guasto[i] = byte;
            const auto onda = Leggi(guasto);
            EXPECT_LT(onda ? onda->campioni.size() : 0, 5'000'000U);
        }
    EXPECT_FALSE(Leggi(""));
    EXPECT_FALSE(Leggi("not a wave at all, but long enough to hold a header of one"));
}

TEST_F(FileOnda, ThatIsHugeIsNone) {
    std::ofstream(file, std::ios::binary) << Tono(1, 48000, 440);
    std::filesystem::resize_file(file, 9'000'000);
    EXPECT_FALSE(CaricaOnda(file.string()));
}

}  // namespace
}  // namespace corvana
