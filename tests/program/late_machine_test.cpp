// A machine that wakes the logic late shows the same messages at the same instants as one that
// wakes it in time, and one that stood still for seconds makes nothing up.
#include <gtest/gtest.h>

#include <limits>
#include <utility>

#include "tests/program/program_rig.h"
#include "tests/support/late_machines.h"

namespace corvana::prova {

namespace {

using Messaggi = std::vector<Registratore::Voce>;

/// All that the program sends, from its first message on, while a user makes it `fare`.
Messaggi Mandati(const Ritardo& ritardo, const std::function<void(BancoProgramma&)>& fare,
                 double fine) {
    BancoProgramma b;
    if (ritardo) b.orologio.PonRitardo(ritardo);
    fare(b);
    EXPECT_TRUE(b.Vai(fine));
    return b.uscita.messaggi;
}

void NonCambiaNulla(const std::function<void(BancoProgramma&)>& fare, double fine) {
    const Messaggi puntuali = Mandati({}, fare, fine);
    ASSERT_GT(puntuali.size(), 20U);
    for (const Ritardo& macchina : MacchineTarde())
        AspettatiUguali(puntuali, Mandati(macchina, fare, fine));
}

void AvviaMetronomo(BancoProgramma& b) {
    b.Clicca(3, "mnuMetro");
    b.Slitta(3.2, "MetroTempoS", 137);
    b.Clicca(4, "cmdSSmetro");
}

void AvviaAutomatico(BancoProgramma& b) {
    b.impostazioni.ScriviValore("CorvanaLastS", "43;53;16;30;a");
    b.Clicca(3, "Start");
}

/// The shortest time between two pulses.
double MinimoFraPulsi(const BancoProgramma& b) {
    double minimo = std::numeric_limits<double>::infinity();
    const auto pulsi = b.Pulsi();
    for (std::size_t i = 1; i < pulsi.size(); ++i)
        minimo = std::min(minimo, pulsi[i].first - pulsi[i - 1].first);
    return minimo;
}

}  // namespace

TEST(MacchinaTarda, TheMetronomeTicksAtTheSameInstants) {
    NonCambiaNulla(AvviaMetronomo, 63.95);
}

TEST(MacchinaTarda, TheAutomaticDrillsNotesComeAtTheSameInstants) {
    NonCambiaNulla(AvviaAutomatico, 124);
}

TEST(MacchinaTarda, OneThatStandsStillForTwoSecondsGetsNoBurstOfPulses) {
    BancoProgramma b;
    bool ferma = false;
    b.orologio.PonRitardo([&] { return std::exchange(ferma, false) ? 2.0 : 0.0; });
    AvviaMetronomo(b);
    for (const double quando : {10.0, 20.0, 30.0})
        b.Quando(quando, [&] { ferma = true; });
    EXPECT_TRUE(b.Vai(40));
    EXPECT_GT(b.Pulsi().size(), 60U);
    EXPECT_NEAR(MinimoFraPulsi(b), 60.0 / 137, 1e-9);
}

}  // namespace corvana::prova
