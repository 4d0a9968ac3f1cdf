// The rules of the range boxes, each number tried.
#include "composer/range_boxes.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "melody/melody.h"

namespace corvana::prova {

namespace {

/// Ten notes, of which 3 to 8 are the range; what the voice's other box shows.
RegolaCasella Regola(std::size_t voce, bool ultima, long altra) {
    return RegolaDi({voce, ultima}, {3, 8, 10, [altra] { return altra; }});
}

/// Tries all numbers around the voice's: just those from `da` to `a` may pass.
void Prova(std::size_t voce, bool ultima, long altra, int da, int a, long rifiutato) {
    const RegolaCasella regola = Regola(voce, ultima, altra);
    for (int numero = -20; numero <= 40; ++numero)
        EXPECT_EQ(regola.Accetta(numero), numero >= da && numero <= a)
            << numero << (ultima ? " as the last note" : " as the first note") << " of voice "
            << voce << " beside " << altra;
    for (const std::int64_t numero : {-70368744177664LL, 32768LL, 65539LL, 70368744177664LL})
        EXPECT_FALSE(regola.Accetta(numero)) << numero;
    EXPECT_EQ(regola.rifiutato, rifiutato);
}

}  // namespace

TEST(CaselleTratto, TheSopranosFirstNoteLiesFrom1ToItsLastOrIsRestored) {
    for (const long altra : {1L, 8L, 40L})
        Prova(soprano, false, altra, 1, 8, 3);
}

TEST(CaselleTratto, TheSopranosLastNoteLiesFromItsFirstToTheVoicesEndOrIsRestored) {
    for (const long altra : {1L, 3L, 40L})
        Prova(soprano, true, altra, 3, 10, 8);
}

TEST(CaselleTratto, TheOthersFirstNoteLiesOneBelowTheLastBoxAtMostOrIsRestored) {
    for (std::size_t voce = contralto; voce < numeroVoci; ++voce) {
        Prova(voce, false, 8, 1, 7, 3);
        Prova(voce, false, 10, 1, 9, 3);
        Prova(voce, false, 2, 1, 1, 3);
        Prova(voce, false, 1, 1, 0, 3);
    }
}

TEST(CaselleTratto, TheOthersLastNoteLiesTwoAboveTheFirstBoxAtLeastOrTheVoicesLengthIsShown) {
    for (std::size_t voce = contralto; voce < numeroVoci; ++voce) {
        Prova(voce, true, 3, 5, 10, 10);
        Prova(voce, true, 1, 3, 10, 10);
        Prova(voce, true, 8, 10, 10, 10);
        Prova(voce, true, 9, 11, 10, 10);
    }
}

TEST(CaselleTratto, ARangeOfTwoNotesCanBeReachedThroughTheFirstBoxAndNotThroughTheLast) {
    EXPECT_TRUE(Regola(tenore, false, 8).Accetta(7));
    EXPECT_FALSE(Regola(tenore, true, 7).Accetta(8));
}

TEST(CaselleTratto, TheSopranosRulesDontAskForTheOtherBox) {
    const auto guasto = []() -> long { throw std::logic_error("asked"); };
    EXPECT_EQ(RegolaDi({soprano, false}, {3, 8, 10, guasto}), (RegolaCasella{1, 8, 3}));
    EXPECT_EQ(RegolaDi({soprano, true}, {3, 8, 10, guasto}), (RegolaCasella{3, 10, 8}));
    EXPECT_THROW(RegolaDi({basso, true}, {3, 8, 10, guasto}), std::logic_error);
}

}  // namespace corvana::prova
