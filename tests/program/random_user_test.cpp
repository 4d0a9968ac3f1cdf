// A careless user of the whole program. Seed 1; for others shuffle and repeat, as with the main
// window's.
#include <gtest/gtest.h>

#include "tests/program/careless_visitor.h"
#include "tests/support/seed.h"

namespace corvana::prova {

TEST(Vagabondo, OpensAndClosesEveryWindowAndNothingFails) {
    Vagabondo utente(Seme(), Eventi(100000));
    utente.Vivi();
    EXPECT_EQ(utente.guasto, "") << "seed " << Seme();
    // He did reach what he was to try.
    for (const char* nome : {"CorvanaMainF", "frmInto", "frmComposer", "frmCopyFromA",
                             "frmConfMetro", "frmOptions", "frmStrum", "frmMidiTest", "frmAbout"})
        EXPECT_GT(utente.viste[nome], 200) << nome;
    EXPECT_GT(utente.chiusure, 5);
    EXPECT_GT(utente.pulsi, 1000);
    EXPECT_GT(utente.corse, 1000);
    EXPECT_GT(utente.attese, 100);
    EXPECT_GT(utente.suonate, 100);
    EXPECT_GT(utente.cambi, 10);
    EXPECT_GT(utente.secondi, 24 * 3600);
}

TEST(Vagabondo, DoesTheSameForTheSameSeed) {
    Vagabondo uno(Seme(), 3000), altro(Seme(), 3000);
    uno.Vivi();
    altro.Vivi();
    EXPECT_EQ(uno.secondi, altro.secondi);
    EXPECT_EQ(uno.pulsi, altro.pulsi);
    EXPECT_EQ(uno.corse, altro.corse);
}

}  // namespace corvana::prova
