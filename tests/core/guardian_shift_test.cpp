#include "core/guardian_shift.h"

#include <gtest/gtest.h>

namespace corvana::prova {

TEST(TurnoCustode, AtRestItWaitsForNothing) {
    TurnoCustode turno(2);
    EXPECT_FALSE(turno.Atteso());
    EXPECT_FALSE(turno.Scaduto(1e12));
}

TEST(TurnoCustode, ItSetsToWorkSomeTimeAfterTheFirstChangeHoweverManyFollow) {
    TurnoCustode turno(2);
    for (double adesso = 100; adesso < 102; adesso += 0.25) {
        turno.Cambia(adesso);
        EXPECT_FALSE(turno.Scaduto(adesso));
    }
    EXPECT_TRUE(turno.Scaduto(102));
    EXPECT_EQ(turno.Scadenza(), 102);
}

TEST(TurnoCustode, AChangeAfterItHasSetToWorkBeginsAnew) {
    TurnoCustode turno(2);
    turno.Cambia(100);
    turno.Prendi();
    EXPECT_FALSE(turno.Atteso());
    turno.Cambia(103);
    EXPECT_EQ(turno.Scadenza(), 105);
}

TEST(TurnoCustode, InHasteItSetsToWorkAtOnce) {
    TurnoCustode turno(2);
    turno.Cambia(100);
    turno.Affretta();
    EXPECT_TRUE(turno.Scaduto(100));
    turno.Cambia(101);
    EXPECT_TRUE(turno.Scaduto(100));
}

TEST(TurnoCustode, WhatFailedIsTriedAgainTenTimesLaterOrWithTheNextChange) {
    TurnoCustode turno(2);
    turno.Fallito(100);
    EXPECT_EQ(turno.Scadenza(), 120);
    turno.Cambia(103);
    EXPECT_EQ(turno.Scadenza(), 105);
    turno.Fallito(103);
    EXPECT_EQ(turno.Scadenza(), 105);
}

}  // namespace corvana::prova
