#include "forms/virtual_clock.h"

#include <gtest/gtest.h>

#include <limits>

namespace corvana::prova {

namespace {
constexpr double mai = std::numeric_limits<double>::infinity();
}

TEST(OrologioVirtuale, JumpsFromInstantToInstantInTheirOrder) {
    OrologioVirtuale orologio;
    std::vector<double> istanti;
    for (const double t : {3.0, 1.0, 2.0})
        orologio.Quando(t, [&] { istanti.push_back(orologio.Adesso()); });
    orologio.AspettaFino(10);
    EXPECT_EQ(istanti, (std::vector{1.0, 2.0, 3.0}));
    EXPECT_DOUBLE_EQ(orologio.Adesso(), 10);
}

TEST(OrologioVirtuale, OfStepsAtOneInstantTheOlderRunsFirst) {
    OrologioVirtuale orologio;
    std::string ordine;
    for (const char c : {'a', 'b', 'c'})
        orologio.Quando(1, [&ordine, c] { ordine += c; });
    orologio.AspettaFino(1);
    EXPECT_EQ(ordine, "abc");
}

TEST(OrologioVirtuale, AStepMayAddStepsForItsOwnInstantAndForLater) {
    OrologioVirtuale orologio;
    std::string ordine;
    orologio.Quando(1, [&] {
        ordine += 'a';
        orologio.Quando(1, [&] { ordine += 'c'; });
        orologio.Quando(5, [&] { ordine += 'd'; });
    });
    orologio.Quando(1, [&] { ordine += 'b'; });
    orologio.AspettaFino(2);
    EXPECT_EQ(ordine, "abc");
    orologio.AspettaFino(5);
    EXPECT_EQ(ordine, "abcd");
}

TEST(OrologioVirtuale, AWaitRunsTheStepsOfItsLastInstantAndNoneBeyond) {
    OrologioVirtuale orologio;
    int passi = 0;
    orologio.Quando(2, [&] { ++passi; });
    orologio.Quando(2.001, [&] { ++passi; });
    orologio.AspettaFino(2);
    EXPECT_EQ(passi, 1);
}

TEST(OrologioVirtuale, NeverTurnsBack) {
    OrologioVirtuale orologio;
    orologio.AspettaFino(10);
    double vista = 0;
    orologio.Quando(1, [&] { vista = orologio.Adesso(); });
    orologio.AspettaFino(5);
    EXPECT_DOUBLE_EQ(vista, 10);
    EXPECT_DOUBLE_EQ(orologio.Adesso(), 10);
}

TEST(OrologioVirtuale, AWaitForAnEventEndsAtTheInstantAtWhichItComes) {
    OrologioVirtuale orologio;
    CodaEventi coda;
    orologio.Quando(1, [] {});
    orologio.Quando(3, [&] { coda.Aggiungi({}); });
    orologio.Quando(4, [] { FAIL() << "past the event"; });
    orologio.AspettaEvento(coda, mai);
    EXPECT_DOUBLE_EQ(orologio.Adesso(), 3);
    EXPECT_FALSE(coda.Vuota());
}

TEST(OrologioVirtuale, AWaitForAnEventEndsAtItsInstantWhenNoneComes) {
    OrologioVirtuale orologio;
    CodaEventi coda;
    orologio.Quando(9, [] {});
    orologio.AspettaEvento(coda, 2);
    EXPECT_DOUBLE_EQ(orologio.Adesso(), 2);
}

TEST(OrologioVirtuale, AnEventThatWaitsAlreadyTakesNoTimeAndRunsNoStep) {
    OrologioVirtuale orologio;
    CodaEventi coda;
    coda.Aggiungi({});
    orologio.Quando(0, [] { FAIL() << "no step is due"; });
    orologio.AspettaEvento(coda, mai);
    EXPECT_DOUBLE_EQ(orologio.Adesso(), 0);
}

TEST(OrologioVirtuale, AWaitForAnEventPastTheScriptsEndUnwinds) {
    OrologioVirtuale orologio;
    CodaEventi coda;
    EXPECT_THROW(orologio.AspettaEvento(coda, mai), FineCopione);
    EXPECT_THROW(orologio.AspettaEvento(coda, 5), FineCopione);
}

TEST(OrologioVirtuale, AWaitForAnInstantNeedsNoScript) {
    OrologioVirtuale orologio;
    orologio.AspettaFino(1e6);
    EXPECT_DOUBLE_EQ(orologio.Adesso(), 1e6);
}

TEST(OrologioVirtuale, TheTimeOfDayGoesOnWithItsTimeAndStartsAnewAtMidnight) {
    OrologioVirtuale orologio;
    orologio.PonOraDelGiorno(23 * 3600 + 59 * 60 + 58);
    EXPECT_EQ(orologio.OraDelGiorno(), 86398);
    orologio.AspettaFino(1.5);
    EXPECT_EQ(orologio.OraDelGiorno(), 86399);
    orologio.AspettaFino(2);
    EXPECT_EQ(orologio.OraDelGiorno(), 0);
    orologio.AspettaFino(2 + 5 * 86400.0);
    EXPECT_EQ(orologio.OraDelGiorno(), 0);
}

TEST(OrologioVirtuale, EachHasATimeOfItsOwn) {
    OrologioVirtuale uno, due;
    uno.AspettaFino(5);
    EXPECT_DOUBLE_EQ(due.Adesso(), 0);
}

}  // namespace corvana::prova
