// A careless user of the real windows, for the thread sanitizer above all: scripts/careless makes
// him do more.
#include <gtest/gtest.h>

#include "tests/desktop/careless_hand.h"
#include "tests/support/seed.h"

namespace corvana::prova {

TEST(ManoDistratta, OpensAndClosesEveryWindowAndNothingFails) {
    ManoDistratta mano(Seme(), Eventi(5000));
    mano.Vivi();
    EXPECT_EQ(mano.guasto, "") << "seed " << Seme();
    // He did reach what he was to try.
    for (const char* nome : {"CorvanaMainF", "frmInto", "frmComposer", "frmStrum"})
        EXPECT_GT(mano.gesti[QLatin1String(nome)], 20) << nome;
    EXPECT_GT(mano.gesti.size(), 4U);
}

}  // namespace corvana::prova
