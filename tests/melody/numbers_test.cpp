#include "melody/numbers.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <limits>

#include "tests/melody/fault_number.h"

namespace corvana::prova {

namespace {

int GuastoDelNumero(const std::string& testo) {
    return NumeroDelGuasto([&] { NumeroReale(testo); });
}

}  // namespace

TEST(TestoNumero, AWholeNumberHasNoSeparator) {
    EXPECT_EQ(TestoNumero(4, '.'), "4");
    EXPECT_EQ(TestoNumero(0, ','), "0");
    EXPECT_EQ(TestoNumero(1200, ','), "1200");
    EXPECT_EQ(TestoNumero(-30, '.'), "-30");
}

TEST(TestoNumero, AFractionStandsBehindTheSeparatorWithoutTrailingZeros) {
    EXPECT_EQ(TestoNumero(0.75, '.'), "0.75");
    EXPECT_EQ(TestoNumero(0.75, ','), "0,75");
    EXPECT_EQ(TestoNumero(1.5, ','), "1,5");
    EXPECT_EQ(TestoNumero(0.0625, '.'), "0.0625");
    EXPECT_EQ(TestoNumero(-0.1875, ','), "-0,1875");
}

TEST(TestoNumero, HasAtMostFifteenSignificantDigitsAndTheLastIsRounded) {
    EXPECT_EQ(TestoNumero(1.0 / 3, '.'), "0.333333333333333");
    EXPECT_EQ(TestoNumero(8.0 / 3, ','), "2,66666666666667");
    EXPECT_EQ(TestoNumero(0.1 + 0.2, '.'), "0.3");
    EXPECT_EQ(TestoNumero(123456789012345, '.'), "123456789012345");
}

TEST(TestoNumero, VeryLargeAndVerySmallNumbersHaveAnExponentWithACapitalLetter) {
    EXPECT_EQ(TestoNumero(1e15, '.'), "1E+15");
    EXPECT_EQ(TestoNumero(1234567890123456, ','), "1,23456789012346E+15");
    EXPECT_EQ(TestoNumero(1e300, '.'), "1E+300");
    EXPECT_EQ(TestoNumero(0.0001, ','), "0,0001");
    EXPECT_EQ(TestoNumero(0.00001, '.'), "1E-05");
    EXPECT_EQ(TestoNumero(std::numeric_limits<double>::denorm_min(), ','), "4,94065645841247E-324");
    EXPECT_EQ(TestoNumero(std::numeric_limits<double>::lowest(), ','), "-1,79769313486232E+308");
}

RC_GTEST_PROP(TestoNumero, ReadAndWrittenAgainIsTheSameText, (double numero, bool virgola)) {
    const char separatore = virgola ? ',' : '.';
    const std::string testo = TestoNumero(numero, separatore);
    RC_ASSERT(TestoNumero(NumeroReale(testo), separatore) == testo);
    RC_ASSERT(std::abs(NumeroReale(testo) - numero) <= std::abs(numero) * 1e-14);
}

TEST(NumeroReale, TakesAPointOrACommaBeforeTheFraction) {
    EXPECT_EQ(NumeroReale("0.75"), 0.75);
    EXPECT_EQ(NumeroReale("0,75"), 0.75);
    EXPECT_EQ(NumeroReale("4"), 4);
    EXPECT_EQ(NumeroReale("1.50"), 1.5);
    EXPECT_EQ(NumeroReale(".5"), 0.5);
    EXPECT_EQ(NumeroReale("5,"), 5);
    EXPECT_EQ(NumeroReale("0,333333333333333"), 0.333333333333333);
}

TEST(NumeroReale, TakesSignsAndExponents) {
    EXPECT_EQ(NumeroReale("-1,5"), -1.5);
    EXPECT_EQ(NumeroReale("+1.5"), 1.5);
    EXPECT_EQ(NumeroReale("1E+15"), 1e15);
    EXPECT_EQ(NumeroReale("1e-05"), 0.00001);
    EXPECT_EQ(NumeroReale("1,5E3"), 1500);
}

TEST(NumeroReale, IgnoresBlanksAndTabsAroundTheNumberAndNowhereElse) {
    EXPECT_EQ(NumeroReale(" 60 "), 60);
    EXPECT_EQ(NumeroReale("   0,5"), 0.5);
    EXPECT_EQ(NumeroReale("\t60 \t"), 60);
    for (const char* testo : {"6 0", "- 6", "6\t0", "6\r", "0, 5", "\t"})
        EXPECT_EQ(GuastoDelNumero(testo), guastoTipo) << testo;
}

TEST(NumeroReale, RefusesWhatIsNoNumber) {
    for (const char* testo :
         {"",   " ",  "x",   "4x",  "x4",  "n",   "-",     "+",     ".",     ",",
          "e5", "1e", "1e+", "--4", "+-4", "++4", "1.2.3", "1,2,3", "1.2,3", "÷"})
        EXPECT_EQ(GuastoDelNumero(testo), guastoTipo) << testo;
    EXPECT_EQ(GuastoDelNumero(std::string("4\0", 2)), guastoTipo);
}

TEST(NumeroReale, RefusesTheWordsForInfinityAndHexadecimalDigits) {
    for (const char* testo : {"inf", "-inf", "INF", "infinity", "nan", "NAN", "-nan", "nan(1)",
                              "0x10", "0x1p3", "1p3", "&H10", "1d5"})
        EXPECT_EQ(GuastoDelNumero(testo), guastoTipo) << testo;
}

TEST(NumeroReale, ANumberThatNoDoubleHoldsIsAnOverflow) {
    EXPECT_EQ(GuastoDelNumero("1E+309"), guastoTraboccamento);
    EXPECT_EQ(GuastoDelNumero("-1,5E999"), guastoTraboccamento);
    EXPECT_EQ(GuastoDelNumero(" " + std::string(400, '9') + " "), guastoTraboccamento);
}

TEST(NumeroReale, WhatIsNoNumberIsAMismatchAlsoBehindDigitsThatNoDoubleHolds) {
    for (const char* testo : {"1e999x", "1e999;", "1e999,5", "1e999 1", "-1e999-"})
        EXPECT_EQ(GuastoDelNumero(testo), guastoTipo) << testo;
}

RC_GTEST_PROP(NumeroReale, AnyTextGivesAFiniteNumberOrAFault, ()) {
    const auto testo = *rc::gen::container<std::string>(rc::gen::oneOf(
        rc::gen::elementOf(std::string("0123456789+-.,eE ")), rc::gen::arbitrary<char>()));
    try {
        RC_ASSERT(std::isfinite(NumeroReale(testo)));
    } catch (const Guasto& guasto) {
        RC_ASSERT(guasto.Numero() == guastoTipo || guasto.Numero() == guastoTraboccamento);
    }
}

TEST(CampoNumero, HasABlankOrTheMinusBeforeTheDigitsAndABlankBehindThem) {
    EXPECT_EQ(CampoNumero(60), " 60 ");
    EXPECT_EQ(CampoNumero(0), " 0 ");
    EXPECT_EQ(CampoNumero(127), " 127 ");
    EXPECT_EQ(CampoNumero(-5), "-5 ");
}

TEST(ArrotondaAlPari, RoundsToTheNearestAndAHalfToTheEvenNumber) {
    EXPECT_EQ(ArrotondaAlPari(10.667), 11);
    EXPECT_EQ(ArrotondaAlPari(1.333), 1);
    EXPECT_EQ(ArrotondaAlPari(0.5), 0);
    EXPECT_EQ(ArrotondaAlPari(1.5), 2);
    EXPECT_EQ(ArrotondaAlPari(2.5), 2);
    EXPECT_EQ(ArrotondaAlPari(3.5), 4);
    EXPECT_EQ(ArrotondaAlPari(-0.5), 0);
    EXPECT_EQ(ArrotondaAlPari(-1.5), -2);
    EXPECT_EQ(ArrotondaAlPari(-2.5), -2);
}

TEST(ArrotondaAlPari, EndsAtItsLimitsBeyondThem) {
    constexpr std::int64_t limite = 1LL << 46;
    EXPECT_EQ(ArrotondaAlPari(1e300), limite);
    EXPECT_EQ(ArrotondaAlPari(-1e300), -limite);
    EXPECT_EQ(ArrotondaAlPari(std::numeric_limits<double>::infinity()), limite);
    EXPECT_EQ(ArrotondaAlPari(static_cast<double>(limite) - 1), limite - 1);
}

RC_GTEST_PROP(ArrotondaAlPari, IsNeverFurtherThanAHalfAndAtAHalfEven, ()) {
    const double numero = *rc::gen::inRange(-1000000, 1000000) / 4.0;
    const std::int64_t intero = ArrotondaAlPari(numero);
    const double lontano = std::abs(static_cast<double>(intero) - numero);
    RC_ASSERT(lontano <= 0.5);
    RC_ASSERT(lontano < 0.5 || intero % 2 == 0);
}

TEST(NumeroLetto, IsTheNearestWholeNumberOfTheText) {
    for (const auto& [testo, atteso] : {std::pair{" 60 ", 60},
                                        {"60.5", 60},
                                        {"61,5", 62},
                                        {"-1", -1},
                                        {"2147483647", 2147483647}})
        EXPECT_EQ(NumeroLetto(testo), atteso) << testo;
    for (const auto& [testo, numero] :
         {std::pair{"", 13}, {"sixty", 13}, {"2147483648", 6}, {"-2147483649", 6}, {"1e400", 6}})
        EXPECT_EQ(NumeroDelGuasto([t = testo] { NumeroLetto(t); }), numero) << testo;
}

}  // namespace corvana::prova
