#include "forms/real_clock.h"

#include <gtest/gtest.h>

#include <future>
#include <limits>

namespace corvana::prova {

TEST(OrologioReale, NeverTurnsBack) {
    const OrologioReale orologio;
    double prima = orologio.Adesso();
    for (int i = 0; i < 1000; ++i) {
        const double dopo = orologio.Adesso();
        ASSERT_GE(dopo, prima);
        prima = dopo;
    }
}

TEST(OrologioReale, AWaitDoesntEndBeforeItsInstant) {
    OrologioReale orologio;
    for (int i = 0; i < 20; ++i) {
        const double fino = orologio.Adesso() + 0.0005;
        orologio.AspettaFino(fino);
        // One nanosecond: the instant passes through whole nanoseconds.
        ASSERT_GE(orologio.Adesso(), fino - 1e-9);
    }
}

TEST(OrologioReale, AnInstantThatHasPassedIsntWaitedFor) {
    OrologioReale orologio;
    CodaEventi coda;
    orologio.AspettaFino(0);
    orologio.AspettaEvento(coda, orologio.Adesso() - 1);
    EXPECT_TRUE(coda.Vuota());
}

TEST(OrologioReale, TheEndOfTheProgramEndsALongWait) {
    OrologioReale orologio;
    CodaEventi coda;
    auto attesa = std::async(std::launch::async, [&] {
        orologio.AspettaFine(coda, std::numeric_limits<double>::infinity());
        orologio.AspettaEvento(coda, std::numeric_limits<double>::infinity());
    });
    coda.ChiediFine();
    attesa.get();
    EXPECT_TRUE(coda.FineChiesta());
}

TEST(OrologioReale, AnEventOfAnotherThreadEndsTheWaitForIt) {
    OrologioReale orologio;
    CodaEventi coda;
    const auto aggiunta = std::async(std::launch::async, [&] { coda.Aggiungi({}); });
    orologio.AspettaEvento(coda, std::numeric_limits<double>::infinity());
    EXPECT_FALSE(coda.Vuota());
}

TEST(OrologioReale, TheTimeOfDayLiesWithinADay) {
    const OrologioReale orologio;
    EXPECT_GE(orologio.OraDelGiorno(), 0);
    EXPECT_LT(orologio.OraDelGiorno(), 86400);
}

TEST(OrologioReale, AWaitComputesNextToNothing) {
    OrologioReale orologio;
    const double prima = orologio.Calcolato();
    orologio.AspettaFino(orologio.Adesso() + 0.05);
    EXPECT_LT(orologio.Calcolato() - prima, 0.05);
    EXPECT_GE(orologio.Calcolato(), prima);
}

}  // namespace corvana::prova
