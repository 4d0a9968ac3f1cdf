// The exercises' table, the ranges that the ruler marks, and the draw from a range.
#include "trainer/exercises.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>

#include "core/random.h"
#include "trainer/positions.h"

namespace corvana::prova {

namespace {

struct RigaAttesa {
    const char* testo;
    int basso, alto;
};

constexpr std::array<RigaAttesa, 11> righeAttese = {{
    {"Chiave di Sol: SI - MI", 43, 53},
    {"Chiave di Sol: Sol - Sol", 41, 55},
    {"Chiave di Sol: Fa - Do", 40, 58},
    {"Chiave di Sol: Fa - Sol", 40, 62},
    {"---------------------------", 0, 0},
    {"Chiave di Fa: Sol - La", 18, 26},
    {"Chiave di Fa: Mi - Do", 16, 28},
    {"Chiave di Fa: Do - Mi", 14, 30},
    {"Chiave di Fa: Sol - Fa", 11, 31},
    {"----------------------------", 0, 0},
    {"5 Ottave Do - Si", 14, 64},
}};

const double quasiUno = 1 - std::ldexp(1.0, -53);

std::uint8_t Byte(int numero) {
    return static_cast<std::uint8_t>(numero);
}

}  // namespace

TEST(RigheEsercizio, AreTheElevenOfTheList) {
    for (std::size_t i = 0; i < righeAttese.size(); ++i) {
        EXPECT_EQ(righeEsercizio.at(i).testo, righeAttese.at(i).testo);
        EXPECT_EQ(righeEsercizio.at(i).limiteBasso, righeAttese.at(i).basso) << i;
        EXPECT_EQ(righeEsercizio.at(i).limiteAlto, righeAttese.at(i).alto) << i;
    }
}

TEST(RigaDaLimiti, FindsEachRowByItsLimitsAndNoSeparator) {
    for (std::size_t i = 0; i < righeAttese.size(); ++i) {
        const bool separatore = righeAttese.at(i).basso == 0;
        const auto riga = RigaDaLimiti(righeAttese.at(i).basso, righeAttese.at(i).alto);
        EXPECT_EQ(riga.value_or(-1), separatore ? -1 : static_cast<int>(i));
    }
}

TEST(RigaDaLimiti, KnowsNoOtherPair) {
    int trovate = 0;
    for (int basso = 0; basso <= 255; ++basso)
        for (int alto = 0; alto <= 255; ++alto)
            trovate += RigaDaLimiti(basso, alto).has_value();
    EXPECT_EQ(trovate, 9);
}

TEST(RigaDiPartenza, IsTheRowOfTheLimitsElseTheFirstUnlessTheRulerMadeTheRange) {
    struct Caso {
        int basso, alto;
        std::optional<int> riga;
    };
    constexpr std::optional<int> dalRegolo;
    for (const Caso& caso : {
             Caso{43, 53, 0},
             Caso{40, 62, 3},
             Caso{18, 26, 5},
             Caso{14, 64, 10},
             Caso{0, 0, 0},
             Caso{0, 43, 0},
             Caso{10, 12, 0},
             Caso{11, 11, 0},
             Caso{11, 12, dalRegolo},
             Caso{31, 40, dalRegolo},
             Caso{44, 45, dalRegolo},
             Caso{63, 64, dalRegolo},
             // Between the staves, and the wrong way round: no note lies there.
             Caso{32, 39, 0},
             Caso{50, 45, 0},
             Caso{65, 255, 0},
         })
        EXPECT_EQ(RigaDiPartenza(caso.basso, caso.alto), caso.riga)
            << caso.basso << " to " << caso.alto;
}

TEST(ConSegno, PutsTheFirstThenTheSecondAndKeepsBoth) {
    const SegniRegolo vuoti;
    EXPECT_TRUE(vuoti.Nessuno());
    EXPECT_FALSE(vuoti.Completi());
    const SegniRegolo uno = ConSegno(vuoti, 20);
    EXPECT_EQ(uno, (SegniRegolo{20, 0}));
    EXPECT_FALSE(uno.Nessuno());
    EXPECT_FALSE(uno.Completi());
    const SegniRegolo due = ConSegno(uno, 15);
    EXPECT_EQ(due, (SegniRegolo{20, 15}));
    EXPECT_FALSE(due.Nessuno());
    EXPECT_TRUE(due.Completi());
    EXPECT_EQ(ConSegno(due, 30), due);
    EXPECT_EQ(ConSegno(uno, 20), (SegniRegolo{20, 20}));
}

TEST(PosizioneEstratta, IsTheWholePartOfTheDrawTimesTheWidthPlusTheLowerLimit) {
    EXPECT_EQ(PosizioneEstratta(0, 43, 53), 43);
    EXPECT_EQ(PosizioneEstratta(0.0909, 43, 53), 43);
    EXPECT_EQ(PosizioneEstratta(0.091, 43, 53), 44);
    EXPECT_EQ(PosizioneEstratta(0.5, 43, 53), 48);
    EXPECT_EQ(PosizioneEstratta(0.999, 43, 53), 53);
}

TEST(PosizioneEstratta, NeverExceedsTheUpperLimitForTheLargestDrawThereIs) {
    for (int basso = 0; basso <= 255; ++basso)
        for (int alto = basso; alto <= 255; ++alto)
            ASSERT_EQ(PosizioneEstratta(quasiUno, Byte(basso), Byte(alto)), alto)
                << basso << " to " << alto;
}

RC_GTEST_PROP(PosizioneEstratta, LiesInTheRangeForAnyDraw, ()) {
    const int basso = *rc::gen::inRange(0, 256);
    const int alto = *rc::gen::inRange(basso, 256);
    // Any multiple of 2^-53 below 1.
    const auto numeratore = *rc::gen::inRange<std::int64_t>(0, std::int64_t{1} << 53);
    const double r = std::ldexp(static_cast<double>(numeratore), -53);
    const int posizione = PosizioneEstratta(r, Byte(basso), Byte(alto));
    RC_ASSERT(posizione >= basso);
    RC_ASSERT(posizione <= alto);
}

TEST(PosizioneEstratta, TheProgramsOwnDrawsReachEveryPositionOfARow) {
    CasualeFisso casuale;
    std::array<int, 256> volte{};
    for (int i = 0; i < 10000; ++i)
        ++volte.at(PosizioneEstratta(casuale.Estrai(), 14, 64));
    for (int numero = 14; numero <= 64; ++numero)
        EXPECT_GT(volte.at(static_cast<std::size_t>(numero)), 100) << numero;
}

}  // namespace corvana::prova
