#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>

#include "tests/outputs/rendering.h"

namespace corvana {
namespace {

using prova::Altezza;
using prova::Livello;
using prova::Parte;
using prova::Resa;

TEST(Sintetizzatore, APianoNoteSixtyNineSoundsWithinOnePercentOf440Hz) {
    Resa resa;
    resa.Nota(0, 69);
    const auto suono = resa.Ascolta(0.5);
    EXPECT_NEAR(Altezza(Parte(suono, 0.1, 0.2)), 440, 4.4);
}

TEST(Sintetizzatore, NotesOfThePianoSoundAtTheirPitch) {
    for (const int nota : {31, 48, 60, 76, 88}) {
        Resa resa;
        resa.Nota(0, nota);
        const auto suono = resa.Ascolta(0.5);
        EXPECT_NEAR(prova::NotaMidi(Altezza(Parte(suono, 0.1, 0.2))), nota, 0.2) << nota;
    }
}

TEST(Sintetizzatore, ANoteFallsSilentAfterItsEnd) {
    Resa resa;
    resa.Nota(0, 60);
    resa.Nota(0.3, 60, 0);
    const auto suono = resa.Ascolta(3);
    EXPECT_GT(Livello(Parte(suono, 0.1, 0.2)), 0.01);
    EXPECT_EQ(prova::Picco(Parte(suono, 2.5, 0.5)), 0);
}

TEST(Sintetizzatore, ANoteOffMessageEndsANoteAsVelocityZeroDoes) {
    Resa resa;
    resa.Nota(0, 60);
    resa.Messaggio(0.3, 0x80, 60, 64);
    EXPECT_EQ(prova::Picco(Parte(resa.Ascolta(3), 2.5, 0.5)), 0);
}

TEST(Sintetizzatore, ALouderVelocityIsLouder) {
    Resa piano;
    Resa forte;
    piano.Nota(0, 60, 30);
    forte.Nota(0, 60, 120);
    EXPECT_GT(Livello(forte.Ascolta(0.3)), 2 * Livello(piano.Ascolta(0.3)));
}

double Brillantezza(const std::vector<float>& suono) {
    const auto parte = Parte(suono, 0.1, 0.2);
    return prova::Forza(parte, 3 * 440) / prova::Forza(parte, 440);
}

TEST(Sintetizzatore, AProgramChangeGivesAnotherTimbreAtTheSamePitch) {
    Resa piano;
    Resa flauto;
    piano.Nota(0, 69);
    flauto.Messaggio(0, 0xC0, 73);
    flauto.Nota(0, 69);
    const auto a = piano.Ascolta(0.4);
    const auto b = flauto.Ascolta(0.4);
    EXPECT_NEAR(Altezza(Parte(b, 0.1, 0.2)), 440, 4.4);
    EXPECT_GT(std::fabs(std::log(Brillantezza(a) / Brillantezza(b))), 0.5);
}

TEST(Sintetizzatore, ProgramsOutliveAReset) {
    Resa prima;
    Resa dopo;
    for (Resa* resa : {&prima, &dopo})
        resa->Messaggio(0, 0xC0, 16);
    dopo.Azzera(0);
    for (Resa* resa : {&prima, &dopo})
        resa->Nota(0.1, 69);
    EXPECT_EQ(prima.Ascolta(0.5), dopo.Ascolta(0.5));
}

TEST(Sintetizzatore, ControllersDoNotOutliveAReset) {
    Resa intatta;
    Resa piegata;
    piegata.Messaggio(0, 0xE0, 0, 127);
    piegata.Messaggio(0, 0xB0, 11, 20);
    piegata.Azzera(0);
    for (Resa* resa : {&intatta, &piegata})
        resa->Nota(0.1, 69);
    EXPECT_EQ(intatta.Ascolta(0.5), piegata.Ascolta(0.5));
}

TEST(Sintetizzatore, ThePitchWheelBendsByTwoSemitones) {
    Resa resa;
    resa.Messaggio(0, 0xE0, 127, 127);
    resa.Nota(0, 69);
    EXPECT_NEAR(prova::NotaMidi(Altezza(Parte(resa.Ascolta(0.5), 0.1, 0.2))), 71, 0.1);
}

TEST(Sintetizzatore, ChannelTenPlaysPercussionWithoutAProgramChange) {
    Resa resa;
    resa.Messaggio(0, 0x99, 76, 127);
    EXPECT_GT(prova::Picco(resa.Ascolta(0.2)), 0.02);
}

TEST(Sintetizzatore, AMissingFontIsReportedAndNothingElseHappens) {
    EXPECT_EQ(Sintetizzatore::Carica("/nowhere/at/all.sf2"), nullptr);
    EXPECT_EQ(Sintetizzatore::Carica("/"), nullptr);
    EXPECT_EQ(Sintetizzatore::Carica(""), nullptr);
}

TEST(Sintetizzatore, AFileThatIsNoFontIsReported) {
    const auto percorso = std::filesystem::path(testing::TempDir()) / "not_a_font.sf2";
    std::ofstream(percorso) << "RIFF but nothing of the kind";
    EXPECT_EQ(Sintetizzatore::Carica(percorso.string()), nullptr);
    std::filesystem::remove(percorso);
}

}  // namespace
}  // namespace corvana
