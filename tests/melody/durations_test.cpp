#include "melody/durations.h"

#include <gtest/gtest.h>

#include <string>

namespace corvana::prova {

namespace {

struct Riga {
    const char* parola;
    double valore;
    const char* conPunto;
    const char* conVirgola;
};
constexpr Riga righe[] = {{"4/4", 4, "4", "4"},
                          {"(4/4).", 6, "6", "6"},
                          {"2/4", 2, "2", "2"},
                          {"(2/4).", 3, "3", "3"},
                          {"1/4", 1, "1", "1"},
                          {"(1/4).", 1.5, "1.5", "1,5"},
                          {"1/8", 0.5, "0.5", "0,5"},
                          {"(1/8).", 0.75, "0.75", "0,75"},
                          {"1/16", 0.25, "0.25", "0,25"},
                          {"(1/16).", 0.375, "0.375", "0,375"},
                          {"1/32", 0.125, "0.125", "0,125"},
                          {"(1/32).", 0.1875, "0.1875", "0,1875"},
                          {"1/64", 0.0625, "0.0625", "0,0625"}};

}  // namespace

TEST(Durate, AreTheThirteenOfTheListInItsOrder) {
    ASSERT_EQ(durate.size(), std::size(righe));
    for (std::size_t i = 0; i < durate.size(); ++i) {
        EXPECT_EQ(durate[i].parola, righe[i].parola);
        EXPECT_EQ(durate[i].valore, righe[i].valore) << righe[i].parola;
    }
}

TEST(ParolaDurata, IsFoundForEachValueAsTheSeparatorSpellsIt) {
    for (const Riga& riga : righe) {
        EXPECT_EQ(ParolaDurata(riga.conPunto, '.'), riga.parola);
        EXPECT_EQ(ParolaDurata(riga.conVirgola, ','), riga.parola);
    }
}

TEST(ParolaDurata, IsNaForAValueThatTheListHasNoWordFor) {
    for (const char* token : {"0.333333333333333", "0.09375", "0.03125", "5", "8", "12", "0", "-1"})
        EXPECT_EQ(ParolaDurata(token, '.'), "na") << token;
}

TEST(ParolaDurata, IsNaForAValueThatIsSpelledOtherwise) {
    for (const char* token : {"1.50", "1,5", "4.0", "04", "+4", " 4", "4 ", "1E0", ".5", "0.5;"})
        EXPECT_EQ(ParolaDurata(token, '.'), "na") << token;
    for (const char* token : {"1,50", "1.5", "0.75", ",5"})
        EXPECT_EQ(ParolaDurata(token, ','), "na") << token;
}

TEST(ParolaDurata, IsNaForWhatIsNoNumber) {
    for (const char* token : {"", "na", "1/4", "x", ";"})
        EXPECT_EQ(ParolaDurata(token, '.'), "na") << token;
}

TEST(ValoreParola, IsThatOfTheWord) {
    for (const Riga& riga : righe)
        EXPECT_EQ(ValoreParola(riga.parola), riga.valore) << riga.parola;
}

TEST(ValoreParola, IsOneForNaAndForAnyTextThatIsNoWord) {
    for (const char* parola : {"na", "", "1/128", "(1/64).", "2/4 ", "(2/4)", "4", "0.5"})
        EXPECT_EQ(ValoreParola(parola), 1) << parola;
}

}  // namespace corvana::prova
