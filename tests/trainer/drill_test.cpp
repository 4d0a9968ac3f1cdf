#include <gtest/gtest.h>

#include "tests/trainer/main_window_rig.h"

namespace corvana::prova {

TEST(NormalMode, AWrongKeyThreeTimesThenTheRightOneGives25Percent) {
    BancoPrincipale b;  // draws 0: the lowest position of row 0, n43, SI
    b.Clicca(3, "Start");
    for (int i = 0; i < 3; ++i)
        b.Tasto(4 + i, 'D');
    b.Tasto(8, 'H');
    b.Fine(9);
    EXPECT_TRUE(b.Avvia());
    EXPECT_EQ(b.finestra.Errate, 3);
    EXPECT_EQ(b.finestra.Esatte, 1);
    EXPECT_EQ(b.finestra.PercEs.Text(), "25.00%");
}

}  // namespace corvana::prova
