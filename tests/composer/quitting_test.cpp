// The end of the program while a melody plays, waits to play, or isn't saved.
#include <gtest/gtest.h>

#include "tests/composer/composer_rig.h"

namespace corvana::prova {

namespace {

struct BancoUscita : BancoComposer {
    BancoUscita() {
        globali.percorsoCorrente = "/home/mine/";
        Voce(soprano, "60;62;64;65;", "1");
        Voce(contralto, "48;", "4");
    }
    /// Runs until the window is gone; the end is asked for `dopo` seconds from now.
    void Esci(double dopo) {
        const double t = orologio.Adesso() + dopo;
        Quando(t, [this] { coda.ChiediFine(); });
        Fine(t + 1000);
        EXPECT_FALSE(SvolgiCopione([this] { finestre.FinoAllUltima(); }));
        EXPECT_DOUBLE_EQ(orologio.Adesso(), t);
        EXPECT_TRUE(riquadri.messaggi.empty());
        EXPECT_EQ(uscita.NoteAccese(), (std::vector<std::pair<int, int>>{}));
        EXPECT_FALSE(globali.ComposerAperto);
        EXPECT_EQ(impostazioni.LeggiValore("LastDir"), "/home/mine/");
    }
};

}  // namespace

TEST(UscitaComposer, AMelodyThatPlaysStopsWithItsNotesReleased) {
    for (const bool giro : {false, true}) {
        BancoUscita b;
        b.finestra.play.chekLoop.Value = giro;
        b.Clicca(b.pompa.Adesso() + 0.1, "cmdPlay");
        b.Quando(b.pompa.Adesso() + 0.5, [&] { EXPECT_FALSE(b.uscita.NoteAccese().empty()); });
        b.Esci(0.6);
        EXPECT_FALSE(b.finestra.stato.inEsecuzione);
    }
}

TEST(UscitaComposer, InThePauseBetweenTwoRoundsItEndsToo) {
    BancoUscita b;
    b.Voce(soprano, "60;", "0.25");
    b.Voce(contralto, "", "1");
    b.finestra.play.chekLoop.Value = true;
    b.Clicca(b.pompa.Adesso() + 0.1, "cmdPlay");
    b.Esci(0.5);
}

TEST(UscitaComposer, ADelayedStartDoesntStart) {
    BancoUscita b;
    b.uscita.messaggi.clear();
    b.Clicca(b.pompa.Adesso() + 0.1, "mnuPlayRitardo");
    b.Esci(1.5);
    EXPECT_TRUE(b.Messaggi().empty());
}

TEST(UscitaComposer, AMelodyThatIsntSavedAsksNobody) {
    BancoUscita b;
    b.finestra.stato.lblModificato.Visible = true;
    b.Esci(1);
}

}  // namespace corvana::prova
