#include "eartrainer/stored_state.h"

#include <gtest/gtest.h>

#include "forms/fault.h"

namespace corvana::prova {

namespace {

int GuastoDi(const std::string& testo) {
    try {
        LeggiStatoInto(testo);
        return 0;
    } catch (const Guasto& guasto) {
        return guasto.Numero();
    }
}

}  // namespace

TEST(StatoMemorizzatoInto, WithNothingStoredItIsTheRangeFrom24To36AndTheReference69) {
    const StatoMemorizzato s;
    EXPECT_EQ(s.IntoBasso, 24);
    EXPECT_EQ(s.IntoAlto, 36);
    EXPECT_EQ(s.NotaRif, 69);
    EXPECT_FALSE(s.senzaRiferimento);
    EXPECT_FALSE(s.tuttiITasti);
    EXPECT_EQ(s.StrumentoInto, 0);
    EXPECT_EQ(ComponiStatoInto(s), "24;36;69;0;False;0");
}

TEST(ComponiStatoInto, WritesItsSixFields) {
    EXPECT_EQ(ComponiStatoInto({0, 59, 36, true, true, 127}), "0;59;36;1;True;127");
    EXPECT_EQ(ComponiStatoInto({58, 59, 95, false, true, 16}), "58;59;95;0;True;16");
}

TEST(ComponiStatoInto, LimitsThatAreNoRangeBecome24And36) {
    for (const auto& [basso, alto] : {std::pair{-1, -1}, {30, 30}, {31, 30}, {-1, 30}, {30, 60}})
        EXPECT_TRUE(ComponiStatoInto({static_cast<std::int16_t>(basso),
                                      static_cast<std::int16_t>(alto), 60, false, false, 0})
                        .starts_with("24;36;"))
            << basso << " " << alto;
}

TEST(ComponiStatoInto, WithTheRangeUnsetTheReferenceIs69UnlessItIsExactly35) {
    EXPECT_EQ(ComponiStatoInto({-1, -1, 35, false, false, 0}), "24;36;35;0;False;0");
    for (const std::int16_t rif : std::initializer_list<std::int16_t>{0, 34, 36, 69})
        EXPECT_EQ(ComponiStatoInto({-1, -1, rif, false, false, 0}), "24;36;69;0;False;0") << rif;
}

TEST(ComponiStatoInto, AReferenceOutsideOfTheRangeBecomes69) {
    EXPECT_EQ(ComponiStatoInto({10, 20, 45, false, false, 0}), "10;20;69;0;False;0");
    EXPECT_EQ(ComponiStatoInto({10, 20, 46, false, false, 0}), "10;20;46;0;False;0");
    EXPECT_EQ(ComponiStatoInto({10, 20, 56, false, false, 0}), "10;20;56;0;False;0");
    EXPECT_EQ(ComponiStatoInto({10, 20, 57, false, false, 0}), "10;20;69;0;False;0");
}

TEST(ComponiStatoInto, AnInstrumentThatThereIsNotBecomes0) {
    EXPECT_EQ(ComponiStatoInto({24, 36, 69, false, false, 128}), "24;36;69;0;False;0");
    EXPECT_EQ(ComponiStatoInto({24, 36, 69, false, false, -1}), "24;36;69;0;False;0");
}

TEST(LeggiStatoInto, ReadsWhatWasWritten) {
    const StatoMemorizzato s{7, 44, 60, true, true, 19};
    EXPECT_EQ(LeggiStatoInto(ComponiStatoInto(s)), s);
    EXPECT_EQ(LeggiStatoInto("24;36;69;0;False;0"), StatoMemorizzato{});
    EXPECT_EQ(LeggiStatoInto(" 24 ;36;69;0;FALSE;0"), StatoMemorizzato{});
}

TEST(LeggiStatoInto, NoFieldOrOneIsNothing) {
    EXPECT_EQ(LeggiStatoInto(""), std::nullopt);
    EXPECT_EQ(LeggiStatoInto("24"), std::nullopt);
    EXPECT_EQ(LeggiStatoInto("rubbish"), std::nullopt);
}

TEST(LeggiStatoInto, FieldsBehindTheSixthAreNothing) {
    EXPECT_EQ(LeggiStatoInto("7;44;60;1;True;19;x;"),
              (StatoMemorizzato{7, 44, 60, true, true, 19}));
}

TEST(LeggiStatoInto, WhatWasEditedByHandIsAFault) {
    for (const char* testo : {"24;36", "24;36;69;0;False", ";", ";;;;"})
        EXPECT_EQ(GuastoDi(testo), guastoIndice) << testo;
    for (const char* testo : {"a;36;69;0;False;0", "24;36;69;0;no;0", "24;36;69;0;0;0", ";;;;;",
                              "24;36;6 9;0;False;0", "24;36;69;0;False;x"})
        EXPECT_EQ(GuastoDi(testo), guastoTipo) << testo;
    for (const char* testo :
         {"-1;36;69;0;False;0", "24;60;69;0;False;0", "24;36;35;0;False;0", "24;36;96;0;False;0",
          "24;36;69;2;False;0", "24;36;69;0;False;128", "99999999999999999999;36;69;0;False;0"})
        EXPECT_EQ(GuastoDi(testo), guastoTraboccamento) << testo;
}

TEST(LeggiStatoInto, LimitsThatAreNoRangeAreAFaultSinceNothingMightBeThereToAsk) {
    EXPECT_EQ(GuastoDi("25;25;69;0;False;0"), guastoArgomento);
    EXPECT_EQ(GuastoDi("36;24;69;0;False;0"), guastoArgomento);
    EXPECT_EQ(GuastoDi("24;25;69;0;False;0"), 0);
}

}  // namespace corvana::prova
