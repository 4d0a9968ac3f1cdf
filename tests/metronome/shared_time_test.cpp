// The metronome beside the drills.
#include <gtest/gtest.h>

#include "tests/program/program_rig.h"

namespace corvana::prova {

TEST(MetronomoEdEsercizio, ANormalDrillIsServedOnceAPulse) {
    BancoProgramma b;
    b.Clicca(3, "mnuMetro");
    b.Clicca(4, "cmdSSmetro");
    b.Clicca(4.5, "Start");
    b.Tasto(5.2, 'D');  // a wrong answer: the draw is n43, SI
    b.Quando(5.9, [&] { EXPECT_EQ(b.punteggio.Errate, 0); });
    b.Vai(6.5);
    EXPECT_TRUE(b.finestra.esercizio.InCorso);
    EXPECT_EQ(b.punteggio.Errate, 1);
    EXPECT_EQ(b.Pulsi().size(), 2U);
}

TEST(MetronomoEdEsercizio, AnAutomaticDrillStartedOnTopSilencesItUntilTheDrillIsOver) {
    BancoProgramma b;
    b.Clicca(3, "mnuAutomatico");
    b.Clicca(3.1, "mnuMetro");
    b.Clicca(4, "cmdSSmetro");
    b.Clicca(5.5, "Start");
    b.Clicca(20.5, "Start");
    b.Vai(23.6);
    const std::vector<std::pair<double, int>> attesi = {
        {5, 76}, {6, 85}, {21.5, 76}, {22.5, 85}, {23.5, 76}};
    const auto pulsi = b.Pulsi();
    ASSERT_EQ(pulsi.size(), attesi.size());
    for (std::size_t i = 0; i < attesi.size(); ++i)
        EXPECT_NEAR(pulsi[i].first, attesi[i].first, 1e-9);
    EXPECT_FALSE(b.finestra.esercizio.InCorso);
}

TEST(MetronomoEdEsercizio, AMetronomeStartedInsideAnAutomaticDrillHoldsTheDrillUp) {
    BancoProgramma b;
    b.Clicca(3, "mnuAutomatico");
    b.Clicca(3.1, "mnuMetro");
    b.Clicca(4, "Start");
    b.Clicca(7, "cmdSSmetro");
    b.Quando(12, [&] { EXPECT_EQ(b.punteggio.Mostrate, 2); });
    b.Clicca(12.5, "cmdSSmetro");
    b.Vai(14.5);
    EXPECT_EQ(b.punteggio.Mostrate, 3);
    EXPECT_EQ(b.Pulsi().size(), 6U);
    EXPECT_TRUE(b.finestra.esercizio.InCorso);
}

TEST(MetronomoEdEsercizio, APanelThatTicksCantBeClosedThoughAStoppedDrillHasEnabledTheToolbar) {
    BancoProgramma b;
    b.Clicca(3, "mnuMetro");
    b.Clicca(4, "cmdSSmetro");
    b.Clicca(4.5, "Start");
    b.Clicca(5.5, "Start");
    b.Clicca(6.5, "ToolButton3");
    b.Quando(7.5, [&] {
        EXPECT_TRUE(b.finestra.menu.Risorse.Enabled());
        EXPECT_TRUE(b.finestra.frmMetro.Visible());
        EXPECT_EQ(b.finestra.HelpContextID(), 8);
    });
    b.Clicca(7.6, "cmdSSmetro");
    b.Clicca(9, "ToolButton3");
    b.Vai(10);
    EXPECT_FALSE(b.finestra.frmMetro.Visible());
    EXPECT_FALSE(b.stato.MetroAttivo);
}

}  // namespace corvana::prova
