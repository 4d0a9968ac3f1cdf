#include "trainer/answer_keys.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace corvana::prova {

TEST(RispostaDaTasto, TheHomeRowAndTheKeypadGiveTheSevenAnswersAndNoOtherKeyDoes) {
    const std::map<int, int> attese = {{68, 1}, {97, 2}, {70, 3}, {98, 4},
                                       {71, 5}, {99, 6}, {72, 7}};
    for (int codice = -10; codice <= 400; ++codice) {
        const auto attesa = attese.find(codice);
        EXPECT_EQ(RispostaDaTasto(codice).value_or(0), attesa == attese.end() ? 0 : attesa->second)
            << codice;
    }
}

TEST(RispostaDaTasto, TheFiguresOfTheMainKeyboardAreNoAnswers) {
    for (int codice = '0'; codice <= '9'; ++codice)
        EXPECT_FALSE(RispostaDaTasto(codice)) << codice;
}

TEST(RispostaDaTasto, TheUpperFiguresOfTheKeypadAreNoAnswersInNormalMode) {
    for (const int codice : {100, 102, 103, 104})
        EXPECT_FALSE(RispostaDaTasto(codice)) << codice;
}

TEST(RigaDaTasto, NineKeysSelectTheRowsAndNoOtherKeyDoes) {
    const std::map<int, int> attese = {{90, 0}, {88, 1}, {67, 2},  {86, 3},  {66, 5},
                                       {78, 6}, {77, 7}, {188, 8}, {190, 10}};
    for (int codice = -10; codice <= 400; ++codice) {
        const auto attesa = attese.find(codice);
        EXPECT_EQ(RigaDaTasto(codice).value_or(-1), attesa == attese.end() ? -1 : attesa->second)
            << codice;
    }
}

TEST(TastiAutomatici, AreTestedInTheirOrderWithTheirKeypadKeys) {
    struct Attesa {
        int risposta, tasto, tastierino;
    };
    constexpr std::array<Attesa, 7> attese = {{{1, 68, 100},
                                               {3, 70, 102},
                                               {5, 71, 103},
                                               {7, 72, 104},
                                               {2, 97, 0},
                                               {4, 98, 0},
                                               {6, 99, 0}}};
    for (std::size_t i = 0; i < attese.size(); ++i) {
        EXPECT_EQ(tastiAutomatici.at(i).risposta, attese.at(i).risposta) << i;
        EXPECT_EQ(tastiAutomatici.at(i).tasto, attese.at(i).tasto) << i;
        EXPECT_EQ(tastiAutomatici.at(i).tastierino, attese.at(i).tastierino) << i;
    }
}

}  // namespace corvana::prova
