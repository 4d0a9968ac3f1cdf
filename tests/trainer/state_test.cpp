#include "trainer/state.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "forms/fault.h"

namespace corvana::prova {

namespace {

int NumeroDelGuasto(const std::string& testo) {
    try {
        LeggiStato(testo);
    } catch (const Guasto& guasto) {
        return guasto.Numero();
    }
    return 0;
}

}  // namespace

TEST(ComponiStato, WritesFiveFieldsWithNothingAfterTheLast) {
    EXPECT_EQ(ComponiStato({43, 53, 16, 30, false}), "43;53;16;30;n");
    EXPECT_EQ(ComponiStato({11, 64, 0, 140, true}), "11;64;0;140;a");
}

TEST(ComponiStato, LimitsThatAreNoRangeBecomeThoseOfTheFirstRow) {
    EXPECT_EQ(ComponiStato({40, 40, 16, 30, false}), "43;53;16;30;n");
    EXPECT_EQ(ComponiStato({0, 50, 16, 30, false}), "43;53;16;30;n");
    EXPECT_EQ(ComponiStato({50, 40, 16, 30, false}), "43;53;16;30;n");
    EXPECT_EQ(ComponiStato({0, 0, 16, 30, false}), "43;53;16;30;n");
    EXPECT_EQ(ComponiStato({40, 0, 16, 30, false}), "43;53;16;30;n");
}

TEST(ComponiStato, AnInstrumentOutsideOf0To127IsWrittenAs16) {
    EXPECT_EQ(ComponiStato({43, 53, 200, 30, false}), "43;53;16;30;n");
    EXPECT_EQ(ComponiStato({43, 53, 128, 30, false}), "43;53;16;30;n");
    EXPECT_EQ(ComponiStato({43, 53, -1, 30, false}), "43;53;16;30;n");
    EXPECT_EQ(ComponiStato({43, 53, 127, 30, false}), "43;53;127;30;n");
    EXPECT_EQ(ComponiStato({43, 53, 0, 30, false}), "43;53;0;30;n");
}

TEST(LeggiStato, ReadsItsFiveFields) {
    const auto stato = LeggiStato("11;64;40;90;a");
    ASSERT_TRUE(stato);
    EXPECT_EQ(stato->limiteBasso, 11);
    EXPECT_EQ(stato->limiteAlto, 64);
    EXPECT_EQ(stato->strumento, 40);
    EXPECT_EQ(stato->noteAlMinuto, 90);
    EXPECT_TRUE(stato->automatico);
}

TEST(LeggiStato, AnEmptyInstrumentIs16) {
    EXPECT_EQ(LeggiStato("11;64;;90;a")->strumento, 16);
}

TEST(LeggiStato, AnyLastFieldButAIsNormalMode) {
    for (const char* testo : {"1;2;3;30;n", "1;2;3;30;A", "1;2;3;30;", "1;2;3;30;aa", "1;2;3;30"})
        EXPECT_FALSE(LeggiStato(testo)->automatico) << testo;
}

TEST(LeggiStato, FieldsBeyondTheFifthAreIgnored) {
    EXPECT_TRUE(LeggiStato("1;2;3;30;a;x;y")->automatico);
}

TEST(LeggiStato, FewerThanTwoFieldsHoldNoState) {
    EXPECT_FALSE(LeggiStato(""));
    EXPECT_FALSE(LeggiStato("43"));
    EXPECT_FALSE(LeggiStato("x"));
}

TEST(LeggiStato, AFieldThatIsNoNumberIsAMismatch) {
    for (const char* testo : {"x;53;16;30;n", "43;x;16;30;n", "43;53;x;30;n", "43;53;16;x;n",
                              "43;53;16;;n", ";", "43;", ";53", "43;53", "43;53;16"})
        EXPECT_EQ(NumeroDelGuasto(testo), guastoTipo) << testo;
}

TEST(LeggiStato, ANumberThatDoesntFitIsAnOverflow) {
    for (const char* testo :
         {"-1;53;16;30;n", "256;53;16;30;n", "43;-1;16;30;n", "43;256;16;30;n",
          "43;99999999999999999999;16;30;n", "43;53;2147483648;30;n", "43;53;16;-99999999999;n"})
        EXPECT_EQ(NumeroDelGuasto(testo), guastoTraboccamento) << testo;
}

RC_GTEST_PROP(LeggiStato, WhatWasWrittenIsRead, ()) {
    const StatoTrainer stato{*rc::gen::inRange(1, 64), 64, *rc::gen::inRange(0, 128),
                             *rc::gen::inRange(20, 141), *rc::gen::arbitrary<bool>()};
    const auto letto = LeggiStato(ComponiStato(stato));
    RC_ASSERT(letto.has_value());
    RC_ASSERT(letto->limiteBasso == stato.limiteBasso);
    RC_ASSERT(letto->limiteAlto == stato.limiteAlto);
    RC_ASSERT(letto->strumento == stato.strumento);
    RC_ASSERT(letto->noteAlMinuto == stato.noteAlMinuto);
    RC_ASSERT(letto->automatico == stato.automatico);
}

RC_GTEST_PROP(LeggiStato, AnyBytesGiveAStateNoneOrAFault, (const std::string& testo)) {
    const int numero = NumeroDelGuasto(testo);
    RC_ASSERT(numero == 0 || numero == guastoTipo || numero == guastoTraboccamento);
}

}  // namespace corvana::prova
