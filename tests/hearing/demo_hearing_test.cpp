// The melodies that come with the program, as they are heard.
#include "tests/composer/demo_files.h"
#include "tests/hearing/heard.h"

namespace corvana::prova {

namespace {

constexpr std::size_t noteSoprano = 16;
constexpr std::size_t noteAltre = 8;
constexpr const char* cartella = CORVANA_DEMO "/";

/// The first notes of a voice, played alone.
struct PrimeNote {
    std::string_view voce;
    std::vector<NotaAttesa> attese;
    std::vector<float> suono;
};

/// Those of each voice that has notes, with the instrument `programma`, or with its own when that
/// is negative.
std::vector<PrimeNote> UnaPerVolta(const std::string& nome, int programma) {
    constexpr double almeno = 0.1;  // of the last note, which may be very short
    std::vector<PrimeNote> udite;
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        Ascolto a;
        if (!a.Carica(cartella, nome) || a.melodia.voci[voce].Vuota()) continue;
        if (programma >= 0) a.Strumento(programma);
        auto attese = a.Attese(voce);
        attese.resize(std::min(attese.size(), voce == soprano ? noteSoprano : noteAltre));
        a.Solo(voce);
        a.Suona();
        auto suono = a.Senti(std::max(attese.back().fine, attese.back().inizio + almeno));
        udite.push_back({nomiVoci[voce], std::move(attese), std::move(suono)});
    }
    return udite;
}

class DemoUdita : public testing::TestWithParam<std::string> {};

}  // namespace

TEST_P(DemoUdita, EachVoiceAloneSoundsItsFirstNotesAtTheirPitches) {
    const auto udite = UnaPerVolta(GetParam(), clavicembalo);
    ASSERT_FALSE(udite.empty());
    for (const PrimeNote& voce : udite) {
        SCOPED_TRACE(voce.voce);
        EXPECT_GE(voce.attese.size(), 8U);
        EsigiAltezze(voce.suono, voce.attese);
    }
}

TEST_P(DemoUdita, EachVoiceAloneStrikesItsFirstNotesOnTheirTicks) {
    const auto udite = UnaPerVolta(GetParam(), xilofono);
    ASSERT_FALSE(udite.empty());
    for (const PrimeNote& voce : udite) {
        SCOPED_TRACE(voce.voce);
        EsigiAttacchi(voce.suono, voce.attese);
    }
}

TEST_P(DemoUdita, EachVoiceAloneIsHeardWithItsOwnInstrument) {
    constexpr int suo = -1;
    const auto udite = UnaPerVolta(GetParam(), suo);
    ASSERT_FALSE(udite.empty());
    for (const PrimeNote& voce : udite)
        for (const NotaAttesa& nota : voce.attese)
            EXPECT_GT(Picco(Parte(voce.suono, nota.inizio, nota.fine - nota.inizio)), 0.003)
                << voce.voce << " at " << nota.inizio << " s";
}

TEST_P(DemoUdita, TheWholeMelodySoundsToItsLastNoteAndFallsSilent) {
    Ascolto a;
    ASSERT_TRUE(a.Carica(cartella, GetParam()));
    a.Suona();
    constexpr double quiete = 6;
    const double ultima = a.Attese(soprano).back().inizio;
    const auto suono = a.Senti(a.Fine() + quiete);
    EXPECT_GT(Picco(Parte(suono, ultima, 0.3)), 0.02);
    EXPECT_LT(Picco(Parte(suono, a.Fine() + quiete - 0.5, 0.5)), 1e-5);
}

INSTANTIATE_TEST_SUITE_P(Melodie, DemoUdita, testing::ValuesIn(MelodieDemo()), NomeDiProva);

}  // namespace corvana::prova
