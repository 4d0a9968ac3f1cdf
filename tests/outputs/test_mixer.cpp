#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "sound/outputs/mixer.h"
#include "tests/outputs/rendering.h"

namespace corvana {
namespace {

using prova::Pacco;
using prova::Parte;
using prova::PrimoSuono;
using prova::Resa;

constexpr double Istante(int frame) {
    return static_cast<double>(frame) / frequenza;
}

/// The sound of one woodblock pulse struck at a frame of its own.
std::vector<float> Battito(int frame) {
    Resa resa;
    resa.Messaggio(Istante(frame), 0x99, 76, 127);
    return resa.Ascolta(0.3);
}

TEST(Mescolatore, OutOfSilenceANoteStartsOnItsOwnFrame) {
    const std::size_t ritardo = PrimoSuono(Battito(0));
    for (const int frame : {1, 63, 64, 65, 255, 256, 1000, 1023})
        EXPECT_EQ(PrimoSuono(Battito(frame)) - ritardo, static_cast<std::size_t>(frame)) << frame;
}

TEST(Mescolatore, PulsesThatFollowAResetAreAlikeToTheSample) {
    Resa resa;
    const std::vector<int> frame = {100, 12345, 24501, 37777};
    for (const int f : frame) {
        resa.Azzera(Istante(f));
        resa.Messaggio(Istante(f), 0x99, 76, 127);
    }
    const auto suono = resa.Ascolta(1);
    const auto primo = std::span(suono).subspan(100 + frameDiSfumatura, 8000);
    for (const int f : frame) {
        const auto altro =
            std::span(suono).subspan(static_cast<std::size_t>(f + frameDiSfumatura), 8000);
        EXPECT_TRUE(std::equal(primo.begin(), primo.end(), altro.begin())) << f;
    }
}

TEST(Mescolatore, WhileSomethingSoundsANoteWaitsForOneBlockAtMost) {
    const std::size_t ritardo = PrimoSuono(Battito(0));
    for (const int frame : {4801, 4833, 4863, 4864, 4865}) {
        Resa solo;
        Resa insieme;
        for (Resa* resa : {&solo, &insieme})
            resa->Nota(0, 60);
        insieme.Messaggio(Istante(frame), 0x99, 76, 127);
        const auto a = solo.Ascolta(0.3);
        const auto b = insieme.Ascolta(0.3);
        const auto diverso = std::mismatch(a.begin(), a.end(), b.begin()).first - a.begin();
        const auto inizio = static_cast<int>(diverso) - static_cast<int>(ritardo);
        EXPECT_GE(inizio, frame);
        EXPECT_LE(inizio, frame + frameDiBlocco);
    }
}

TEST(Mescolatore, AResetSilencesWithinItsShortFade) {
    Resa resa;
    resa.Nota(0, 60, 127);
    resa.Nota(0, 67, 127);
    resa.Azzera(0.25);
    const auto suono = resa.Ascolta(1);
    EXPECT_GT(prova::Livello(Parte(suono, 0.2, 0.05)), 0.02);
    EXPECT_EQ(prova::Picco(std::span(suono).subspan(12000 + frameDiSfumatura)), 0);
}

double SaltoMassimo(std::span<const float> suono) {
    double salto = 0;
    for (std::size_t i = 1; i < suono.size(); ++i)
        salto = std::max(salto, std::fabs(static_cast<double>(suono[i]) - suono[i - 1]));
    return salto;
}

TEST(Mescolatore, AResetDoesNotClick) {
    Resa resa;
    resa.Nota(0, 45, 127);
    resa.Azzera(0.3);
    const auto suono = resa.Ascolta(0.4);
    EXPECT_LT(SaltoMassimo(Parte(suono, 0.295, 0.02)), 1.2 * SaltoMassimo(Parte(suono, 0.2, 0.09)));
}

TEST(Mescolatore, ASecondResetRightAfterTheFirstKeepsTheFadeSmooth) {
    Resa una;
    Resa due;
    for (Resa* resa : {&una, &due}) {
        resa->Nota(0, 45, 127);
        resa->Azzera(0.3);
    }
    due.Azzera(0.301);
    EXPECT_EQ(una.Ascolta(0.4), due.Ascolta(0.4));
}

TEST(Mescolatore, TwoRenderingsOfTheSameAreTheSameToTheBit) {
    const auto suona = [] {
        Resa resa;
        for (int i = 0; i < 40; ++i) {
            resa.Nota(0.07 * i, 40 + (i * 7) % 40);
            resa.Nota(0.07 * i + 0.05, 40 + (i * 7) % 40, 0);
        }
        resa.Azzera(2.9);
        return resa.uscite.Rendi(3.2);
    };
    EXPECT_EQ(suona(), suona());
}

TEST(Mescolatore, TheSizeOfTheBuffersDoesNotChangeTheSound) {
    const auto suona = [](int frame) {
        Resa resa;
        for (int i = 0; i < 10; ++i)
            resa.Nota(0.0213 * i, 50 + i);
        std::vector<float> tutto;
        for (int fatti = 0; fatti < 24000; fatti += frame) {
            const auto parte = resa.Ascolta(Istante(frame));
            tutto.insert(tutto.end(), parte.begin(), parte.end());
        }
        return tutto;
    };
    EXPECT_EQ(suona(100), suona(240));
}

TEST(Mescolatore, DataBeyondAByteIsCutToSevenBits) {
    Resa debole;
    Resa altra;
    debole.Messaggio(0, 0x90, 532, 0);
    altra.Messaggio(0, 0x90, 20, 2);
    const auto suono = debole.Ascolta(0.5);
    EXPECT_GT(prova::Picco(suono), 0);
    EXPECT_EQ(suono, altra.Ascolta(0.5));
}

TEST(Mescolatore, MessagesThatAreNotOfAChannelAreDropped) {
    Resa resa;
    resa.Nota(0, 60);
    for (const int stato : {0x00, 0x3C, 0x7F, 0xF0, 0xF8, 0xFF})
        resa.Messaggio(0.1, stato, 60, 90);
    Resa sola;
    sola.Nota(0, 60);
    EXPECT_EQ(resa.Ascolta(0.5), sola.Ascolta(0.5));
}

TEST(Mescolatore, TheLoudestChordStaysWithinFullScale) {
    Resa resa;
    for (int canale = 0; canale < 16; ++canale)
        for (const int nota : {36, 48, 60, 64})
            resa.Messaggio(0, 0x90 + canale, nota, 127);
    const auto suono = resa.uscite.Rendi(0.5);
    EXPECT_GT(prova::Picco(suono), 0.9);
    EXPECT_LE(prova::Picco(suono), 1);
}

std::unique_ptr<Mescolatore> Pronto() {
    auto mescolatore = std::make_unique<Mescolatore>();
    mescolatore->PonSintetizzatore(Sintetizzatore::Carica(ImpostazioniUscite{}.font));
    return mescolatore;
}

std::vector<float> Rendi(Mescolatore& mescolatore, int frame, double istante) {
    std::vector<float> stereo(static_cast<std::size_t>(2 * frame));
    mescolatore.Rendi(stereo.data(), frame, istante);
    return stereo;
}

TEST(Mescolatore, WithoutARendererProgramsTakeEffectAndNotesDoNotPileUp) {
    const auto mescolatore = Pronto();
    for (int i = 0; i < 5000; ++i)
        mescolatore->Accoda({Istante(i), Pacco(0x90, 40 + i % 40, 100)});
    mescolatore->Accoda({0, Pacco(0xC0, 16, 0)});
    mescolatore->PonAttivo(true);
    EXPECT_EQ(prova::Picco(Rendi(*mescolatore, 4800, 1)), 0);

    Resa organo;
    organo.Messaggio(0, 0xC0, 16);
    organo.Nota(0, 69);
    mescolatore->Accoda({0, Pacco(0x90, 69, 100)});
    EXPECT_EQ(Rendi(*mescolatore, 256, 1), organo.uscite.Rendi(Istante(256)));
}

TEST(Mescolatore, ARendererThatStallsMakesNothingPileUpAndNothingHang) {
    const auto mescolatore = Pronto();
    mescolatore->PonAttivo(true);
    for (int i = 0; i < 5000; ++i)
        mescolatore->Accoda({Istante(i), Pacco(0x90, 40 + i % 40, 100)});
    mescolatore->Accoda({1, 0, true});
    Rendi(*mescolatore, 256, 2);
    EXPECT_EQ(prova::Picco(Rendi(*mescolatore, 4800, 2.1)), 0);
}

TEST(Mescolatore, WhenTheStreamComesBackWhatSoundedBeforeDoesNot) {
    const auto mescolatore = Pronto();
    mescolatore->PonAttivo(true);
    mescolatore->Accoda({0, Pacco(0x90, 60, 100)});
    EXPECT_GT(prova::Picco(Rendi(*mescolatore, 4800, 0)), 0.01);
    mescolatore->PonAttivo(false);
    mescolatore->PonAttivo(true);
    EXPECT_EQ(prova::Picco(Rendi(*mescolatore, 4800, 1)), 0);
}

TEST(Mescolatore, AMessageWhoseInstantHasPassedStartsAtOnce) {
    const auto mescolatore = Pronto();
    mescolatore->PonAttivo(true);
    mescolatore->Accoda({0, Pacco(0x99, 76, 127)});
    EXPECT_GT(prova::Picco(Rendi(*mescolatore, 2400, 5)), 0.01);
}

TEST(Mescolatore, AStampFromAClockThatHasJumpedDoesNotHoldTheQueue) {
    const auto mescolatore = Pronto();
    mescolatore->PonAttivo(true);
    mescolatore->Accoda({1e6, Pacco(0x99, 76, 127)});
    EXPECT_GT(prova::Picco(Rendi(*mescolatore, 2400, 5)), 0.01);
}

TEST(Mescolatore, WithoutAFontTheStreamIsSilentAndCuesStillSound) {
    Mescolatore mescolatore;
    mescolatore.PonAttivo(true);
    mescolatore.Accoda({0, Pacco(0x90, 60, 100)});
    mescolatore.Accoda({0, 0, true});
    EXPECT_EQ(prova::Picco(Rendi(mescolatore, 4800, 0)), 0);
    const Onda onda{std::vector<float>(100, 0.25F)};
    mescolatore.AvviaSegnale(&onda);
    EXPECT_EQ(prova::Picco(Rendi(mescolatore, 256, 1)), 0.25);
}

}  // namespace
}  // namespace corvana
