#include <gtest/gtest.h>

#include "desktop/grid_steps.h"
#include "tests/desktop/stage.h"

namespace corvana::prova {
namespace {

/// Three columns with a wide answer each, and a low strip under the first and the last.
const std::vector<QRect> posti = {
    {0, 0, 30, 20}, {40, 0, 30, 20}, {80, 0, 30, 20}, {0, 25, 30, 10}, {80, 25, 30, 10}};

struct Passo {
    int da, tasto, a;
};

class OgniPasso : public testing::TestWithParam<Passo> {};

TEST_P(OgniPasso, LeadsToTheNeighbourOnThatSideAndStaysAtTheEdges) {
    const auto& [da, tasto, a] = GetParam();
    EXPECT_EQ(PassoNellaGriglia(posti, da, tasto), a);
}

INSTANTIATE_TEST_SUITE_P(Griglia, OgniPasso,
                         testing::Values(Passo{0, Qt::Key_Right, 1}, Passo{1, Qt::Key_Right, 2},
                                         Passo{2, Qt::Key_Right, 2}, Passo{2, Qt::Key_Left, 1},
                                         Passo{0, Qt::Key_Left, 0}, Passo{0, Qt::Key_End, 2},
                                         Passo{2, Qt::Key_Home, 0}, Passo{1, Qt::Key_Home, 0},
                                         Passo{0, Qt::Key_Down, 3}, Passo{2, Qt::Key_Down, 4},
                                         Passo{3, Qt::Key_Down, 3}, Passo{4, Qt::Key_Up, 2},
                                         Passo{0, Qt::Key_Up, 0}, Passo{3, Qt::Key_Right, 4},
                                         Passo{4, Qt::Key_Left, 3}, Passo{3, Qt::Key_End, 4},
                                         Passo{0, Qt::Key_Space, -1}, Passo{0, Qt::Key_Tab, -1}));

TEST(PassoNellaGriglia, FromBetweenTwoColumnsTheNearerOneIsTaken) {
    const std::vector<QRect> sfalsati = {{20, 0, 20, 20}, {0, 30, 30, 20}, {35, 30, 30, 20}};
    EXPECT_EQ(PassoNellaGriglia(sfalsati, 0, Qt::Key_Down), 1);
}

void PonGriglia(FormDiProva& form) {
    for (Controllo* c : std::initializer_list<Controllo*>{&form.scritta, &form.toccabile}) {
        c->stile = "griglia:prova";
        c->Click = [] {};
        c->MouseDown = c->MouseUp = nullptr;
    }
}

TEST(Griglia, ItIsOneStopOfTheTabKeyAndTheArrowsGoThroughIt) {
    Palco palco(PonGriglia);
    Scrivania& s = palco.scrivania;
    const Cosa prima = Trova(s, "scritta"), seconda = Trova(s, "toccabile");
    prima.setFocus(Qt::TabFocusReason);
    Batti(s, Qt::Key_Tab);
    EXPECT_FALSE(seconda.hasFocus());
    EXPECT_TRUE(Trova(s, "bottone").hasFocus());
    Batti(s, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(prima.hasFocus());
    Batti(s, Qt::Key_Down);
    EXPECT_TRUE(seconda.hasFocus());
}

TEST(Griglia, TheTabKeyComesBackToTheOneThatItLeft) {
    Palco palco(PonGriglia);
    Scrivania& s = palco.scrivania;
    const Cosa prima = Trova(s, "scritta"), seconda = Trova(s, "toccabile");
    seconda.setFocus(Qt::TabFocusReason);
    Trova(s, "combo").setFocus(Qt::TabFocusReason);
    for (int passi = 0; passi < 20 && !prima.hasFocus() && !seconda.hasFocus(); ++passi)
        Batti(s, Qt::Key_Tab);
    EXPECT_TRUE(seconda.hasFocus());
    palco.NellaLogica([](FormDiProva& form) { form.toccabile.Visible = false; });
    Trova(s, "combo").setFocus(Qt::TabFocusReason);
    for (int passi = 0; passi < 20 && !prima.hasFocus(); ++passi)
        Batti(s, Qt::Key_Tab);
    EXPECT_TRUE(prima.hasFocus()) << "the one that can't be used was waited for";
}

}  // namespace
}  // namespace corvana::prova
