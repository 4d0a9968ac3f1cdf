#include <gtest/gtest.h>

#include "tests/outputs/rendering.h"

namespace corvana {
namespace {

using prova::Pacco;
using prova::Resa;

TEST(ResaOffline, OpensTheSynthesiserAndNothingElse) {
    Resa resa;
    HandleDispositivo handle = 0;
    EXPECT_EQ(resa.uscite.midiOutOpen(handle, 0), midiDispositivoErrato);
    EXPECT_EQ(handle, 0);
    std::string nome;
    EXPECT_EQ(resa.uscite.midiOutGetNumDevs(), 0);
    EXPECT_EQ(resa.uscite.midiOutGetDevCapsA(-1, nome), midiSenzaErrore);
    EXPECT_EQ(nome, "Corvana");
}

TEST(ResaOffline, RefusesHandlesThatNameNoOpenDevice) {
    Resa resa;
    EXPECT_EQ(resa.uscite.midiOutShortMsg(0, Pacco(0x90, 60, 100)), midiHandleErrato);
    EXPECT_EQ(resa.uscite.midiOutClose(resa.handle), midiSenzaErrore);
    EXPECT_EQ(resa.uscite.midiOutShortMsg(resa.handle, Pacco(0x90, 60, 100)), midiHandleErrato);
    EXPECT_EQ(resa.uscite.midiOutReset(resa.handle), midiHandleErrato);
    EXPECT_EQ(resa.uscite.midiOutClose(resa.handle), midiHandleErrato);
}

TEST(ResaOffline, ClosingSilencesWhatSounds) {
    Resa resa;
    resa.Nota(0, 60);
    resa.adesso = 0.2;
    resa.uscite.midiOutClose(resa.handle);
    EXPECT_EQ(prova::Picco(prova::Parte(resa.Ascolta(0.5), 0.25, 0.25)), 0);
}

TEST(ResaOffline, AMissingFontIsLackOfMemory) {
    ResaOffline uscite([] { return 0.0; }, {"/nowhere/at/all.sf2"});
    HandleDispositivo handle = 0;
    EXPECT_EQ(uscite.midiOutOpen(handle, dispositivoPredefinito), midiMemoria);
    EXPECT_EQ(handle, 0);
    EXPECT_EQ(prova::Picco(uscite.Rendi(0.1)), 0);
}

TEST(ResaOffline, ALongPieceSentAheadIsRenderedWhole) {
    Resa resa;
    for (int i = 0; i < 3000; ++i) {
        resa.Nota(0.01 * i, 60);
        resa.Nota(0.01 * i + 0.009, 60, 0);
    }
    const auto suono = resa.Ascolta(32);
    for (int i = 0; i < 29; ++i)
        EXPECT_GT(prova::Picco(prova::Parte(suono, i, 1)), 0.001);
    EXPECT_EQ(prova::Picco(prova::Parte(suono, 31.5, 0.5)), 0);
}

TEST(ResaOffline, ACueSoundsAndANewOneCutsIt) {
    Resa resa;
    resa.uscite.sndPlaySoundA(CORVANA_CUES "/rok.wav", sndAsincrono);
    resa.adesso = 0.05;
    resa.uscite.sndPlaySoundA(CORVANA_CUES "/rko.wav", sndSenzaPredefinito);
    const auto suono = resa.Ascolta(0.4);
    EXPECT_GT(prova::Forza(prova::Parte(suono, 0.01, 0.04), 1318.5), 0.02);
    EXPECT_LT(prova::Forza(prova::Parte(suono, 0.06, 0.1), 1318.5), 0.002);
    EXPECT_GT(prova::Forza(prova::Parte(suono, 0.06, 0.1), 147), 0.01);
}

TEST(ResaOffline, AMissingCueIsSilentUnderEitherFlag) {
    Resa resa;
    for (const unsigned flags : {sndAsincrono, sndSenzaPredefinito})
        resa.uscite.sndPlaySoundA("/nowhere/rok.wav", flags);
    EXPECT_EQ(prova::Picco(resa.Ascolta(0.3)), 0);
}

TEST(ResaOffline, ACueAndANoteSoundTogether) {
    Resa nota;
    Resa insieme;
    insieme.uscite.sndPlaySoundA(CORVANA_CUES "/rok.wav", sndAsincrono);
    for (Resa* resa : {&nota, &insieme})
        resa->Nota(0, 60);
    const auto onda = CaricaOnda(CORVANA_CUES "/rok.wav");
    const auto a = nota.Ascolta(0.1);
    const auto b = insieme.Ascolta(0.1);
    for (std::size_t i = 0; i < a.size(); ++i)
        ASSERT_NEAR(b[i], a[i] + onda->campioni[i], 1e-5) << i;
}

}  // namespace
}  // namespace corvana
