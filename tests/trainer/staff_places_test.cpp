#include "trainer/staff_places.h"

#include <gtest/gtest.h>

#include <set>

namespace corvana::prova {

namespace {

TestiLingua Parole() {
    TestiLingua testi;
    testi.LuogoChiaveSol = "treble";
    testi.LuogoChiaveFa = "bass";
    testi.LuogoLinea = "line";
    testi.LuogoSpazio = "space";
    testi.LuogoSopra = "above";
    testi.LuogoSotto = "below";
    testi.LuogoTaglio = "ledger";
    testi.LuogoOltreTaglio = "beyond";
    return testi;
}

std::string Luogo(int numero) {
    return LuogoSulRigo(*CercaPosizione(numero), Parole());
}

}  // namespace

TEST(LuogoSulRigo, LinesAndSpacesAreCountedFromTheLowest) {
    EXPECT_EQ(Luogo(46), "treble, line 1");
    EXPECT_EQ(Luogo(47), "treble, space 1");
    EXPECT_EQ(Luogo(48), "treble, line 2");
    EXPECT_EQ(Luogo(53), "treble, space 4");
    EXPECT_EQ(Luogo(54), "treble, line 5");
    EXPECT_EQ(Luogo(18), "bass, line 1");
    EXPECT_EQ(Luogo(24), "bass, line 4");
    EXPECT_EQ(Luogo(25), "bass, space 4");
    EXPECT_EQ(Luogo(26), "bass, line 5");
}

TEST(LuogoSulRigo, BeyondTheStaffTheLedgerLinesAreCountedFromIt) {
    EXPECT_EQ(Luogo(55), "treble, above");
    EXPECT_EQ(Luogo(56), "treble, above, ledger 1");
    EXPECT_EQ(Luogo(57), "treble, above, beyond 1");
    EXPECT_EQ(Luogo(64), "treble, above, ledger 5");
    EXPECT_EQ(Luogo(45), "treble, below");
    EXPECT_EQ(Luogo(44), "treble, below, ledger 1");
    EXPECT_EQ(Luogo(41), "treble, below, beyond 2");
    EXPECT_EQ(Luogo(40), "treble, below, ledger 3");
    EXPECT_EQ(Luogo(27), "bass, above");
    EXPECT_EQ(Luogo(28), "bass, above, ledger 1");
    EXPECT_EQ(Luogo(31), "bass, above, beyond 2");
    EXPECT_EQ(Luogo(17), "bass, below");
    EXPECT_EQ(Luogo(11), "bass, below, beyond 3");
}

TEST(LuogoSulRigo, NoTwoPositionsAreTheSame) {
    std::set<std::string> luoghi;
    for (const Posizione& posizione : Posizioni())
        EXPECT_TRUE(luoghi.insert(LuogoSulRigo(posizione, Parole())).second) << posizione.numero;
}

TEST(LuogoSulRigo, WithoutALanguageNothingIsSaid) {
    EXPECT_EQ(LuogoSulRigo(Posizioni().front(), TestiLingua()), "");
}

}  // namespace corvana::prova
