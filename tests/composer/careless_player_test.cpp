// A careless user of the play. The seed is 1; for other seeds shuffle and repeat:
//   test_composer --gtest_filter='SuonatoreDistratto.*' --gtest_shuffle --gtest_repeat=50
// which starts from a seed of the clock, told with a failure, or from that of --gtest_random_seed.
#include "tests/composer/careless_player.h"

#include <gtest/gtest.h>

#include "tests/support/seed.h"

namespace corvana::prova {

TEST(SuonatoreDistratto, NothingFailsNothingHangsAndNothingSoundsWhenNothingIsUnderWay) {
    SuonatoreDistratto utente(Seme(), Eventi(40000));
    utente.Vivi();
    EXPECT_EQ(utente.guasto, "") << "seed " << Seme();
    // He did reach what he was to try.
    EXPECT_GT(utente.aperture, 20);
    EXPECT_GT(utente.play, 4000);
    EXPECT_GT(utente.fermo, 5000);
    EXPECT_GT(utente.caricate, 1000);
    EXPECT_GT(utente.salvate, 50);
    EXPECT_GT(utente.importi, 100);
    EXPECT_GT(utente.secondi, 8 * 3600);
}

TEST(SuonatoreDistratto, DoesTheSameForTheSameSeed) {
    SuonatoreDistratto uno(Seme(), 3000), altro(Seme(), 3000);
    uno.Vivi();
    altro.Vivi();
    EXPECT_EQ(uno.secondi, altro.secondi);
    EXPECT_EQ(uno.play, altro.play);
    EXPECT_EQ(uno.fermo, altro.fermo);
    EXPECT_EQ(uno.salvate, altro.salvate);
}

}  // namespace corvana::prova
