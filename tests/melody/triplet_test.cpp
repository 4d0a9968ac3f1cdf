// How the notes of a triplet are counted: once when they are inserted, and once more when they are
// sounded, unless only to be heard.
#include <gtest/gtest.h>

#include "melody/entry.h"
#include "tests/melody/edited_voice.h"

namespace corvana::prova {

namespace {

constexpr const char* terzo = "0.333333333333333;";

std::string Terzi(int volte) {
    std::string testo;
    for (int i = 0; i < volte; ++i)
        testo += terzo;
    return testo;
}

/// An eighth and the triplet are lit.
struct Terzina {
    StatoInserimento stato;
    VoceMelodia voce;
    OpzioniInserimento opzioni;
    Anteprima sentita;

    Terzina() {
        ScegliFigura(stato, 3);
        PremiAttributo(stato, attributoTerzina);
    }
    /// By the button, which sounds what it inserts.
    void Bottone() {
        InserisciNota(stato, voce, opzioni);
        sentita = PreparaAnteprima(stato, 1, 60);
    }
    /// By a key: heard at the press, inserted in silence by the double click.
    void DoppioClick() {
        stato.soloAscolto = true;
        sentita = PreparaAnteprima(stato, 1, 60);
        InserisciNota(stato, voce, opzioni);
    }
    void Pausa() { InserisciPausa(stato, voce, opzioni); }
};

using Luci = std::array<int, 4>;  ///< attribute, count, accent visible, accent on

Luci LuciDi(const StatoInserimento& stato) {
    return {stato.attributoAttivo, stato.contaTerzina, stato.accentoVisibile, stato.accentoAcceso};
}

}  // namespace

TEST(Terzina, ThreeDoubleClicksMakeATripletWithItsFirstNoteAccented) {
    Terzina t;
    EXPECT_EQ(LuciDi(t.stato), (Luci{3, 0, 1, 1}));
    t.DoppioClick();
    EXPECT_EQ(LuciDi(t.stato), (Luci{3, 1, 1, 0}));
    t.DoppioClick();
    EXPECT_EQ(LuciDi(t.stato), (Luci{3, 2, 1, 0}));
    t.DoppioClick();
    EXPECT_EQ(LuciDi(t.stato), (Luci{6, 0, 0, 0}));
    EXPECT_EQ(TestiDellaVoce(t.voce), (TestiVoce{"60;60;60;", Terzi(3), "a;n;n;"}));
}

TEST(Terzina, ByTheButtonItEndsWithTheSecondNoteWhichIsHeardAtItsPlainValue) {
    Terzina t;
    t.Bottone();
    EXPECT_EQ(LuciDi(t.stato), (Luci{3, 2, 1, 0}));
    EXPECT_EQ(t.sentita.millisecondi, 333);
    t.Bottone();
    EXPECT_EQ(LuciDi(t.stato), (Luci{6, 0, 0, 0}));
    EXPECT_EQ(t.sentita.millisecondi, 500);
    t.Bottone();
    EXPECT_EQ(TestiDellaVoce(t.voce), (TestiVoce{"60;60;60;", Terzi(2) + "0.5;", "a;n;n;"}));
}

TEST(Terzina, ADoubleClickAndTwoPressesOfTheButtonNeverMeetTheCountOfThree) {
    Terzina t;
    t.DoppioClick();
    EXPECT_EQ(LuciDi(t.stato), (Luci{3, 1, 1, 0}));
    t.Bottone();
    EXPECT_EQ(LuciDi(t.stato), (Luci{3, 3, 1, 0}));
    t.Bottone();
    EXPECT_EQ(LuciDi(t.stato), (Luci{6, 4, 1, 0}));
    EXPECT_EQ(t.voce.testoDurate, Terzi(3));
    t.Bottone();
    EXPECT_EQ(LuciDi(t.stato), (Luci{6, 4, 1, 0}));
    PremiAttributo(t.stato, attributoTerzina);
    EXPECT_EQ(LuciDi(t.stato), (Luci{3, 4, 1, 1}));
    PremiAttributo(t.stato, attributoTerzina);
    EXPECT_EQ(LuciDi(t.stato), (Luci{6, 0, 0, 1}));
}

TEST(Terzina, WithTheAttributeKeptAMissedThreeLeavesItOnForGoodAndTheCountStopsAt255) {
    Terzina t;
    t.opzioni.conserva = true;
    t.DoppioClick();
    for (int nota = 0; nota < 140; ++nota)
        t.Bottone();
    EXPECT_EQ(LuciDi(t.stato), (Luci{3, 255, 1, 0}));
    EXPECT_EQ(t.voce.testoDurate, Terzi(141));
}

TEST(Terzina, EndsAlsoWithTheAttributeKept) {
    Terzina t;
    t.opzioni.conserva = true;
    for (int nota = 0; nota < 3; ++nota)
        t.DoppioClick();
    EXPECT_EQ(LuciDi(t.stato), (Luci{6, 0, 0, 0}));
}

TEST(Terzina, ARestCountsOnceAlsoWhenAKeyWasHeardAndLeavesTheAccent) {
    Terzina t;
    t.stato.soloAscolto = true;
    t.Pausa();
    EXPECT_EQ(LuciDi(t.stato), (Luci{3, 1, 1, 1}));
    t.DoppioClick();
    t.Pausa();
    EXPECT_EQ(LuciDi(t.stato), (Luci{6, 0, 1, 0}));
    EXPECT_EQ(TestiDellaVoce(t.voce), (TestiVoce{"00;60;00;", Terzi(3), "p;a;p;"}));
}

TEST(Terzina, AKeyThatIsOnlyHeardCountsNothing) {
    Terzina t;
    t.stato.soloAscolto = true;
    for (int volta = 0; volta < 5; ++volta)
        PreparaAnteprima(t.stato, 1, 60);
    EXPECT_EQ(t.stato.contaTerzina, 0);
}

TEST(Terzina, AnotherAttributeInItsMidstLeavesCountAndAccent) {
    Terzina t;
    t.DoppioClick();
    PremiAttributo(t.stato, attributoStaccato);
    EXPECT_EQ(LuciDi(t.stato), (Luci{1, 1, 1, 0}));
    t.Bottone();
    EXPECT_EQ(LuciDi(t.stato), (Luci{6, 1, 1, 0}));
    EXPECT_EQ(t.voce.testoAttributi, "a;s;");
}

TEST(PremiAttributo, LightsOneOfSixAndPutsItOutAgain) {
    for (int Index = 0; Index < 6; ++Index) {
        StatoInserimento stato;
        PremiAttributo(stato, (Index + 1) % 6);
        PremiAttributo(stato, Index);
        EXPECT_EQ(stato.attributoAttivo, Index);
        PremiAttributo(stato, Index);
        EXPECT_EQ(stato.attributoAttivo, 6);
    }
}

TEST(PremiAttributo, OutsideOfTheSixItDoesNothing) {
    for (const int Index : {-1, 6, 7, 259}) {
        Terzina t;
        t.stato.contaTerzina = 2;
        PremiAttributo(t.stato, Index);
        EXPECT_EQ(LuciDi(t.stato), (Luci{3, 2, 1, 1}));
    }
}

TEST(PreparaAnteprima, LastsTheValueAtTheTempoByEachAttribute) {
    struct Caso {
        std::uint8_t attributo;
        std::int64_t millisecondi;
        std::int16_t velocita;
        const char* lettera;
    };
    for (const Caso& caso : {Caso{6, 1000, 90, "n"},
                             {0, 1500, 90, "n"},
                             {1, 200, 90, "s"},
                             {2, 1000, 90, "n"},
                             {3, 667, 90, "n"},
                             {4, 500, 90, "t"},
                             {5, 1000, 127, "a"}}) {
        StatoInserimento stato;
        stato.attributoAttivo = caso.attributo;
        stato.accentoAcceso = true;
        const Anteprima anteprima = PreparaAnteprima(stato, 1, 60);
        EXPECT_EQ(anteprima.millisecondi, caso.millisecondi) << int(caso.attributo);
        EXPECT_EQ(anteprima.velocita, caso.velocita) << int(caso.attributo);
        EXPECT_EQ(stato.letteraAttributo, caso.lettera);
    }
}

TEST(PreparaAnteprima, RoundsToTheEvenMillisecondAndThenCutsOff) {
    StatoInserimento stato;
    ScegliFigura(stato, 6);
    EXPECT_EQ(PreparaAnteprima(stato, 1, 60).millisecondi, 62);
    EXPECT_EQ(PreparaAnteprima(stato, 3, 60).millisecondi, 188);
    stato.attributoAttivo = attributoStaccato;
    EXPECT_EQ(PreparaAnteprima(stato, 1, 60).millisecondi, 12);
    stato.attributoAttivo = senzaAttributo;
    ScegliFigura(stato, 0);
    EXPECT_EQ(PreparaAnteprima(stato, 1, 20).millisecondi, 12000);
    EXPECT_EQ(PreparaAnteprima(stato, 0, 20).millisecondi, 0);
}

}  // namespace corvana::prova
