// A careless user of the main window. The seed is 1; for other seeds shuffle and repeat:
//   test_trainer --gtest_filter='UtenteDistratto.*' --gtest_shuffle --gtest_repeat=50
// which starts from a seed of the clock, told with a failure, or from that of --gtest_random_seed.
#include <gtest/gtest.h>

#include "tests/support/seed.h"
#include "tests/trainer/careless_user.h"

namespace corvana::prova {

TEST(UtenteDistratto, NothingFailsNothingHangsAndNoNoteSoundsWhenTheWindowIsClosed) {
    UtenteDistratto utente(Seme(), Eventi(100000));
    utente.Vivi();
    EXPECT_EQ(utente.guasto, "") << "seed " << Seme();
    // He did reach what he was to try.
    EXPECT_GT(utente.chiusure, 20);
    EXPECT_GT(utente.corse, 5000);
    EXPECT_GT(utente.secondi, 24 * 3600);
}

TEST(UtenteDistratto, DoesTheSameForTheSameSeed) {
    UtenteDistratto uno(Seme(), 3000), altro(Seme(), 3000);
    uno.Vivi();
    altro.Vivi();
    EXPECT_EQ(uno.secondi, altro.secondi);
    EXPECT_EQ(uno.corse, altro.corse);
    EXPECT_EQ(uno.chiusure, altro.chiusure);
}

}  // namespace corvana::prova
