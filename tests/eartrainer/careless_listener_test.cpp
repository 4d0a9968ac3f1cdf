// A careless user of the ear trainer. The seed is 1; for other seeds shuffle and repeat.
#include "tests/eartrainer/careless_listener.h"

#include <gtest/gtest.h>

#include "tests/support/seed.h"

namespace corvana::prova {

TEST(AscoltatoreDistratto, NothingFailsNothingHangsAndNothingSoundsOnceTheWindowIsClosed) {
    AscoltatoreDistratto utente(Seme(), Eventi(100000));
    utente.Vivi();
    EXPECT_EQ(utente.guasto, "") << "seed " << Seme();
    // He did reach what he was to try.
    EXPECT_GT(utente.aperture, 100);
    EXPECT_GT(utente.chiuse, 100);
    EXPECT_GT(utente.esatte, 5000);
    for (const char* nome : {"IntoStart", "CmdIntStart", "ComdRacStart", "cmdRicTasto", "cmdT"})
        EXPECT_GT(utente.in[nome], 1000) << nome;
    EXPECT_GT(utente.secondi, 24 * 3600);
}

TEST(AscoltatoreDistratto, DoesTheSameForTheSameSeed) {
    AscoltatoreDistratto uno(Seme(), 3000), altro(Seme(), 3000);
    uno.Vivi();
    altro.Vivi();
    EXPECT_EQ(uno.secondi, altro.secondi);
    EXPECT_EQ(uno.chiuse, altro.chiuse);
    EXPECT_EQ(uno.esatte, altro.esatte);
}

}  // namespace corvana::prova
