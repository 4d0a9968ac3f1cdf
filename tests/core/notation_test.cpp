#include "core/notation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string_view>

#include "tests/support/rig.h"

namespace corvana::prova {

namespace {

constexpr std::array<std::string_view, 12> latini = {"Do",  "Do#", "Re",   "Re#", "Mi",  "Fa",
                                                     "Fa#", "Sol", "Sol#", "La",  "La#", "Si"};
constexpr std::array<std::string_view, 12> anglo = {"C",  "C#", "D",  "D#", "E",  "F",
                                                    "F#", "G",  "G#", "A",  "A#", "B"};

std::string Atteso(int midi, bool nomiAnglo) {
    const auto& nomi = nomiAnglo ? anglo : latini;
    if (midi == 0) return nomiAnglo ? "R" : "P";
    if (midi == 532) return std::string(nomi[7]);
    if (midi == 534) return std::string(nomi[9]);
    if (midi == 536) return std::string(nomi[11]);
    if (midi < 36 || midi > 95) return "";
    return std::string(nomi.at(static_cast<std::size_t>(midi) % 12));
}

std::string NomeDi(int midi, bool nomiAnglo = false) {
    return NomeNota(static_cast<std::int16_t>(midi), nomiAnglo);
}

}  // namespace

TEST(NomeNota, EveryNumberFromMinus600To600HasTheNameOfTheRule) {
    for (int midi = -600; midi <= 600; ++midi) {
        EXPECT_EQ(NomeDi(midi), Atteso(midi, false)) << midi;
        EXPECT_EQ(NomeDi(midi, true), Atteso(midi, true)) << midi;
    }
}

TEST(NomeNota, ARestIsPAndInAngloNamingR) {
    EXPECT_EQ(NomeDi(0), "P");
    EXPECT_EQ(NomeDi(0, true), "R");
}

TEST(NomeNota, TheTableEndsAtBothSidesOfItsFiveOctaves) {
    EXPECT_EQ(NomeDi(35), "");
    EXPECT_EQ(NomeDi(36), "Do");
    EXPECT_EQ(NomeDi(95), "Si");
    EXPECT_EQ(NomeDi(96), "");
}

TEST(NomeNota, TheThreeLowCodesHaveNamesAndTheirNeighboursNone) {
    EXPECT_EQ(NomeDi(532), "Sol");
    EXPECT_EQ(NomeDi(533), "");
    EXPECT_EQ(NomeDi(534), "La");
    EXPECT_EQ(NomeDi(535), "");
    EXPECT_EQ(NomeDi(536, true), "B");
}

TEST(NomeNota, TellsNoOctave) {
    for (const int midi : {60, 72, 84})
        EXPECT_EQ(NomeDi(midi), "Do") << midi;
}

TEST(NomeNota, ExtremeNumbersHaveNoName) {
    EXPECT_EQ(NomeDi(32767), "");
    EXPECT_EQ(NomeDi(-32768, true), "");
}

TEST(CasualeIntero, EqualBoundsDrawNoNumber) {
    CasualeDaLista casuale;
    EXPECT_EQ(CasualeIntero(casuale, 5, 5), 5);
    EXPECT_EQ(casuale.estratti, 0);
}

TEST(CasualeIntero, EqualBoundsDontShiftTheLaterDraws) {
    CasualeFisso uno, due;
    CasualeIntero(uno, 5, 5);
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(CasualeIntero(uno, 0, 59), CasualeIntero(due, 0, 59));
}

TEST(CasualeIntero, IsTheFloorOfTheDrawTimesTheWidthPlusTheLowerBound) {
    CasualeDaLista casuale;
    casuale.numeri = {0, 0.25, 0.5, 0.999999};
    EXPECT_EQ(CasualeIntero(casuale, 10, 13), 10);
    EXPECT_EQ(CasualeIntero(casuale, 10, 13), 11);
    EXPECT_EQ(CasualeIntero(casuale, 10, 13), 12);
    EXPECT_EQ(CasualeIntero(casuale, 10, 13), 13);
    EXPECT_EQ(casuale.estratti, 4);
}

TEST(CasualeIntero, NegativeBoundsAreFlooredNotTruncated) {
    CasualeDaLista casuale;
    casuale.numeri = {0.1, 0.9};
    EXPECT_EQ(CasualeIntero(casuale, -3, -1), -3);
    EXPECT_EQ(CasualeIntero(casuale, -3, -1), -1);
}

TEST(CasualeIntero, BoundsInTheWrongOrderYieldSomethingBetweenThem) {
    CasualeFisso casuale;
    for (int i = 0; i < 1000; ++i) {
        const int tratto = CasualeIntero(casuale, 20, 10);
        EXPECT_GE(tratto, 10);
        EXPECT_LE(tratto, 20);
    }
}

TEST(EstraiIntero, DrawsANumberForEqualBoundsToo) {
    CasualeDaLista casuale;
    EXPECT_EQ(EstraiIntero(casuale, 5, 5), 5);
    EXPECT_EQ(casuale.estratti, 1);
}

TEST(CasualeFisso, TwoRunsDrawTheSameNumbersInTheSameOrder) {
    CasualeFisso uno, due;
    for (int i = 0; i < 1000; ++i)
        ASSERT_EQ(uno.Estrai(), due.Estrai());
}

TEST(CasualeFisso, BeginsWithTheSameNumbersAtEachStart) {
    CasualeFisso casuale;
    // What the generator gives without a seed, of which a draw has the upper 24 bits.
    for (const std::uint32_t bit : {3499211612U, 581869302U, 3890346734U, 3586334585U, 545404204U})
        EXPECT_EQ(casuale.Estrai(), (bit >> 8U) / 16777216.0);
}

TEST(CasualeFisso, DrawsFrom0IncludedTo1ExcludedInSinglePrecisionToo) {
    CasualeFisso casuale;
    double minimo = 1, massimo = 0;
    for (int i = 0; i < 100000; ++i) {
        const double r = casuale.Estrai();
        ASSERT_GE(r, 0);
        ASSERT_LT(static_cast<float>(r), 1.0F);
        minimo = std::min(minimo, r);
        massimo = std::max(massimo, r);
    }
    EXPECT_LT(minimo, 0.001);
    EXPECT_GT(massimo, 0.999);
}

}  // namespace corvana::prova
