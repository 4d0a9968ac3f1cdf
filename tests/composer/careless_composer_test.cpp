// A careless user of the window's loop. The seed is 1; for others shuffle and repeat, as with the
// careless player.
#include "tests/composer/careless_composer.h"

#include <gtest/gtest.h>

#include "tests/support/seed.h"

namespace corvana::prova {

TEST(CompositoreDistratto, NoHoldOutlivesItsButtonAndClosedNothingSounds) {
    CompositoreDistratto utente(Seme(), Eventi(100000));
    utente.Vivi();
    EXPECT_EQ(utente.guasto, "") << "seed " << Seme();
    // He did reach what he was to try.
    EXPECT_GT(utente.chiuse, 100);
    EXPECT_GT(utente.play, 3000);
    EXPECT_GT(utente.prese, 2000);
    EXPECT_GT(utente.quieti, 200);
    EXPECT_GT(utente.trasporti, 10);
    EXPECT_GT(utente.riferimenti, 1000);
    EXPECT_GT(utente.incolla, 1000);
    EXPECT_GT(utente.nati, 1000);
    EXPECT_GT(utente.morti, 50);
    EXPECT_GT(utente.caricate, 1000);
    EXPECT_GT(utente.secondi, 8 * 3600);
}

TEST(CompositoreDistratto, DoesTheSameForTheSameSeed) {
    CompositoreDistratto uno(Seme(), 3000), altro(Seme(), 3000);
    uno.Vivi();
    altro.Vivi();
    EXPECT_EQ(uno.secondi, altro.secondi);
    EXPECT_EQ(uno.play, altro.play);
    EXPECT_EQ(uno.prese, altro.prese);
    EXPECT_EQ(uno.quieti, altro.quieti);
}

}  // namespace corvana::prova
