#include "forms/pump.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/support/rig.h"

namespace corvana::prova {

namespace {

/// A clock that ends each wait late by what the test says.
class OrologioTardo final : public Orologio {
public:
    double adesso = 100;
    double ritardo = 0;
    double calcolato = 7;
    double Adesso() const override { return adesso; }
    double Calcolato() const override { return calcolato; }
    /// The logic computes for so long.
    void Calcola(double secondi) {
        adesso += secondi;
        calcolato += secondi;
    }
    int OraDelGiorno() const override { return 4711; }
    void AspettaFino(double fino) override { adesso = std::max(adesso, fino + ritardo); }
    void AspettaEvento(CodaEventi& coda, double fino) override {
        if (coda.Vuota()) AspettaFino(fino);
    }
};

struct BancoTardo {
    OrologioTardo orologio;
    CodaEventi coda;
    Pompa pompa{orologio, coda};
    std::vector<int> consegnati;
    BancoTardo() {
        pompa.PonConsegna([this](const Evento& e) { consegnati.push_back(e.valore); });
    }
    void Aggiungi(int valore) {
        Evento e;
        e.valore = valore;
        coda.Aggiungi(e);
    }
};

}  // namespace

TEST(Pompa, ALateWaitEndsAtTheInstantThatItAskedForUpToAQuarterOfASecond) {
    for (const double ritardo : {0.001, 0.03, 0.24}) {
        BancoTardo b;
        b.orologio.ritardo = ritardo;
        b.pompa.Attendi(1);
        EXPECT_DOUBLE_EQ(b.pompa.Adesso(), 101) << ritardo;
    }
}

TEST(Pompa, TwoHundredLateWaitsLoseNothing) {
    for (const double ritardo : {0.0015, 0.03, 0.24}) {
        BancoTardo b;
        b.orologio.ritardo = ritardo;
        for (int i = 0; i < 200; ++i)
            b.pompa.Attendi(0.1);
        EXPECT_NEAR(b.pompa.Adesso(), 120, 1e-9);
        EXPECT_NEAR(b.orologio.adesso, 120 + ritardo, 1e-9);
    }
}

TEST(Pompa, WhoIsStoppedForLongerGoesOnFromTheClocksInstant) {
    BancoTardo b;
    b.orologio.ritardo = 2;
    b.pompa.Attendi(1);
    EXPECT_DOUBLE_EQ(b.pompa.Adesso(), 103);
    b.orologio.ritardo = 0;
    b.pompa.Attendi(1);
    EXPECT_DOUBLE_EQ(b.pompa.Adesso(), 104);
    EXPECT_DOUBLE_EQ(b.orologio.adesso, 104);
}

TEST(Pompa, ABoxThatStandsForAWhileAfterAWaitTakesItsTime) {
    BancoTardo b;
    b.pompa.Attendi(1);
    b.orologio.adesso += 0.5;
    EXPECT_DOUBLE_EQ(b.pompa.Adesso(), 101.5);
}

TEST(Pompa, ComputingUpToTwoMillisecondsTakesNoTime) {
    BancoTardo b;
    b.orologio.ritardo = 0.03;
    b.pompa.Attendi(1);
    b.orologio.Calcola(0.0019);
    EXPECT_DOUBLE_EQ(b.pompa.Adesso(), 101);
}

TEST(Pompa, LongerComputingTakesItsTimeAndTheLatenessBeforeItIsStillMadeUp) {
    BancoTardo b;
    b.orologio.ritardo = 0.03;
    b.pompa.Attendi(1);
    b.orologio.Calcola(0.01);
    EXPECT_DOUBLE_EQ(b.pompa.Adesso(), 101.01);
    b.orologio.ritardo = 0;
    b.pompa.Attendi(1);
    EXPECT_DOUBLE_EQ(b.orologio.adesso, 102.01);
}

TEST(Pompa, WhatTheSystemWithholdsWhileItComputesIsMadeUpToo) {
    BancoTardo b;
    b.pompa.Attendi(1);
    b.orologio.Calcola(0.001);
    b.orologio.adesso += 0.1;
    EXPECT_DOUBLE_EQ(b.pompa.Adesso(), 101);
    b.pompa.Attendi(1);
    EXPECT_DOUBLE_EQ(b.orologio.adesso, 102);
}

TEST(Pompa, AWaitForAnEventThatEndsAtItsInstantLosesNothingEither) {
    BancoTardo b;
    b.orologio.ritardo = 0.03;
    for (int i = 1; i <= 200; ++i)
        b.pompa.AttendiEvento(b.pompa.Adesso() + 0.1);
    EXPECT_NEAR(b.pompa.Adesso(), 120, 1e-9);
}

TEST(Pompa, AnEventFoundAfterTheInstantOfTheWaitDoesntDelayThatInstant) {
    BancoTardo b;
    b.orologio.ritardo = 0.03;
    b.pompa.Attendi(1);
    b.Aggiungi(1);
    b.pompa.AttendiEvento(101.01);
    EXPECT_EQ(b.consegnati.size(), 1U);
    EXPECT_DOUBLE_EQ(b.pompa.Adesso(), 101.01);
}

TEST(Pompa, TimeNeverRunsBackThoughTheInstantOfAWaitHasPassed) {
    BancoTardo b;
    b.pompa.Attendi(1);
    b.pompa.AttendiEvento(100.5);
    EXPECT_DOUBLE_EQ(b.pompa.Adesso(), 101);
}

TEST(Pompa, AnEventCutsTheWaitAndTimeIsWhatTheClockSays) {
    BancoTardo b;
    b.Aggiungi(1);
    b.pompa.AttendiEvento(105);
    EXPECT_EQ(b.consegnati, (std::vector{1}));
    EXPECT_DOUBLE_EQ(b.pompa.Adesso(), 100);
}

TEST(Pompa, SleepLastsTwoMillisecondsMoreThanItsArgument) {
    BancoTardo b;
    b.pompa.Sleep(10);
    EXPECT_DOUBLE_EQ(b.pompa.Adesso(), 100.012);
    b.pompa.Sleep(0);
    EXPECT_DOUBLE_EQ(b.pompa.Adesso(), 100.014);
}

TEST(Pompa, AWaitOfNothingOrLessEndsAtOnce) {
    BancoTardo b;
    b.orologio.ritardo = 1;
    for (const double secondi : {0.0, -1.0, -perSempre, std::numeric_limits<double>::quiet_NaN()})
        b.pompa.Attendi(secondi);
    EXPECT_DOUBLE_EQ(b.orologio.adesso, 100);
}

TEST(Pompa, AWaitDeliversNothingAndTheNextPumpDeliversAllInOrder) {
    BancoTardo b;
    b.Aggiungi(1);
    b.pompa.Attendi(1);
    b.Aggiungi(2);
    b.pompa.Sleep(5);
    b.Aggiungi(3);
    EXPECT_TRUE(b.consegnati.empty());
    b.pompa.PompaEventi();
    EXPECT_EQ(b.consegnati, (std::vector{1, 2, 3}));
}

TEST(Pompa, PumpingTakesNoTime) {
    BancoTardo b;
    b.orologio.ritardo = 1;
    b.Aggiungi(1);
    b.pompa.PompaEventi();
    b.pompa.PompaEventi();
    EXPECT_DOUBLE_EQ(b.orologio.adesso, 100);
    EXPECT_EQ(b.consegnati.size(), 1U);
}

TEST(Pompa, WhatIsAddedWhileItDeliversIsDeliveredTooBeforeItReturns) {
    BancoTardo b;
    b.pompa.PonConsegna([&](const Evento& e) {
        b.consegnati.push_back(e.valore);
        if (e.valore < 3) b.Aggiungi(e.valore + 1);
    });
    b.Aggiungi(1);
    b.pompa.PompaEventi();
    EXPECT_EQ(b.consegnati, (std::vector{1, 2, 3}));
}

TEST(Pompa, APumpInsideOfADeliveryDeliversNestedOnTheSameStack) {
    BancoTardo b;
    int profondita = 0;
    std::vector<std::pair<int, int>> viste;  // value, depth
    b.pompa.PonConsegna([&](const Evento& e) {
        ++profondita;
        viste.emplace_back(e.valore, profondita);
        if (e.valore == 1) b.pompa.PompaEventi();
        --profondita;
    });
    for (const int valore : {1, 2, 3})
        b.Aggiungi(valore);
    b.pompa.PompaEventi();
    EXPECT_EQ(viste, (std::vector<std::pair<int, int>>{{1, 1}, {2, 2}, {3, 2}}));
}

TEST(Pompa, TellsTheTimeOfDayOfItsClock) {
    const BancoTardo b;
    EXPECT_EQ(b.pompa.OraDelGiorno(), 4711);
}

}  // namespace corvana::prova
