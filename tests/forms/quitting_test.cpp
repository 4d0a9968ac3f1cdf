// The end of the program as the runtime sees it: it ends whatever waits, and every window goes.
#include <gtest/gtest.h>

#include "forms/fault.h"
#include "tests/forms/form_rig.h"

namespace corvana::prova {

namespace {

using Diario = std::vector<std::string>;

struct BancoFine : BancoFinestra {
    BancoFine() { finestra.diario.clear(); }
    /// The end of the program is asked for at the instant `t` of the script.
    void ChiediFine(double t) {
        Quando(t, [this] { coda.ChiediFine(); });
    }
    /// Runs until the last window is gone. The script goes on long after that.
    void Vai() {
        Fine(1000);
        EXPECT_FALSE(SvolgiCopione([this] { finestre.FinoAllUltima(); }));
        EXPECT_EQ(finestre.Davanti(), nullptr);
    }
};

}  // namespace

TEST(FineProgramma, AnIdleProgramUnloadsItsWindowAndReturns) {
    BancoFine b;
    b.ChiediFine(2);
    b.Vai();
    EXPECT_EQ(b.finestra.diario, (Diario{"unload"}));
    EXPECT_EQ(b.specchio.chiuse, (Diario{"frmProva"}));
    EXPECT_DOUBLE_EQ(b.orologio.Adesso(), 2);
}

TEST(FineProgramma, AWindowThatRefusesGoesAllTheSame) {
    BancoFine b;
    b.finestra.rifiuta = true;
    b.ChiediFine(2);
    b.Vai();
    EXPECT_EQ(b.finestra.diario, (Diario{"unload"}));
    EXPECT_EQ(b.specchio.chiuse, (Diario{"frmProva"}));
    EXPECT_EQ(b.finestra.Identita(), 0U);
}

TEST(FineProgramma, EveryWayToWaitEndsAtThatInstantAndWhatWouldFollowIsntDone) {
    const std::vector<std::function<void(Pompa&)>> attese = {
        [](Pompa& p) { p.Attendi(9); }, [](Pompa& p) { p.Sleep(9000); },
        [](Pompa& p) { p.AttendiEvento(p.Adesso() + 9); },
        [](Pompa& p) { p.AttendiEvento(perSempre); }};
    for (const auto& attesa : attese) {
        BancoFine b;
        b.finestra.bottone.Click = [&] {
            attesa(b.pompa);
            b.finestra.diario.emplace_back("after");
        };
        b.Clicca(1, "bottone");
        b.ChiediFine(2);
        b.Vai();
        EXPECT_EQ(b.finestra.diario, (Diario{"unload"}));
        EXPECT_DOUBLE_EQ(b.orologio.Adesso(), 2);
    }
}

TEST(FineProgramma, ALoopThatOnlyComputesEndsWhereItPumps) {
    BancoFine b;
    int giri = 0;
    b.finestra.bottone.Click = [&] {
        for (;;) {
            if (++giri == 3) b.coda.ChiediFine();
            b.pompa.PompaEventi();
        }
    };
    b.Clicca(1, "bottone");
    b.Vai();
    EXPECT_EQ(giri, 3);
    EXPECT_EQ(b.finestra.diario, (Diario{"unload"}));
}

TEST(FineProgramma, ItOvertakesWhatWaitsToBeDelivered) {
    BancoFine b;
    b.Accoda(Fatto::Click, "bottone");
    b.coda.ChiediFine();
    b.Accoda(Fatto::Click, "bottone");
    b.Vai();
    EXPECT_EQ(b.finestra.diario, (Diario{"unload"}));
}

TEST(FineProgramma, AHandlerThatDoesntWaitIsRunToItsEndAndNoOtherFollows) {
    BancoFine b;
    b.finestra.dentro.Click = [&] {
        b.coda.ChiediFine();
        b.finestra.diario.emplace_back("to its end");
    };
    b.Accoda(Fatto::Click, "dentro");
    b.Accoda(Fatto::Click, "bottone");
    b.Vai();
    EXPECT_EQ(b.finestra.diario, (Diario{"to its end", "unload"}));
}

TEST(FineProgramma, WindowsGoFromTheFrontToTheBackAndNoneIsActivatedAnew) {
    BancoFine b;
    FinestraProva sopra("frmSopra"), cima("frmCima");
    Diario ordine;
    cima.rifiuta = true;
    b.finestra.bottone.Click = [&] { b.finestre.MostraModale(sopra); };
    sopra.bottone.Click = [&] { b.finestre.MostraModale(cima); };
    b.Clicca(1, "bottone");
    b.Clicca(2, "bottone");
    b.ChiediFine(3);
    b.Vai();
    EXPECT_EQ(b.specchio.chiuse, (Diario{"frmCima", "frmSopra", "frmProva"}));
    EXPECT_EQ(b.finestra.diario, (Diario{"unload"}));
    EXPECT_EQ(sopra.diario, (Diario{"load", "activate", "unload"}));
    EXPECT_EQ(cima.diario, (Diario{"load", "activate", "unload"}));
}

TEST(FineProgramma, AModalWindowIsUnloadedWhileItLives) {
    BancoFine b;
    Diario vissuta;
    b.finestra.bottone.Click = [&] {
        FinestraProva sopra("frmSopra");
        sopra.bottone.Click = [&] { b.pompa.Attendi(9); };
        struct Fine {
            FinestraProva& finestra;
            Diario& dove;
            ~Fine() { dove = finestra.diario; }
        } fine{sopra, vissuta};
        b.finestre.MostraModale(sopra);
    };
    b.Clicca(1, "bottone");
    b.Clicca(2, "bottone");
    b.ChiediFine(3);
    b.Vai();
    EXPECT_EQ(vissuta, (Diario{"load", "activate", "unload"}));
}

TEST(FineProgramma, NoWindowOpensAnyMore) {
    BancoFine b;
    FinestraProva sopra("frmSopra");
    b.finestra.bottone.Click = [&] {
        b.coda.ChiediFine();
        b.finestre.MostraModale(sopra);
    };
    b.Clicca(1, "bottone");
    b.Vai();
    EXPECT_TRUE(sopra.diario.empty());
    EXPECT_EQ(b.specchio.mostrate, (Diario{"frmProva"}));
}

TEST(FineProgramma, AWindowThatIsntLoadedYetIsntUnloaded) {
    BancoFine b;
    FinestraProva sopra("frmSopra");
    sopra.alCaricamento = [&] { b.pompa.Attendi(9); };
    b.finestra.bottone.Click = [&] { b.finestre.MostraModale(sopra); };
    b.Clicca(1, "bottone");
    b.ChiediFine(2);
    b.Vai();
    EXPECT_EQ(sopra.diario, (Diario{"load"}));
    EXPECT_EQ(b.specchio.chiuse, (Diario{"frmProva"}));
}

TEST(FineProgramma, WhatUnloadsOrPutsThingsBackMayWaitAndIsntHeldUp) {
    BancoFine b;
    b.finestra.allaChiusura = [&] {
        EXPECT_TRUE(b.finestre.InChiusura());
        b.Accoda(Fatto::Click, "bottone");
        b.pompa.Attendi(5);
        b.pompa.AttendiEvento(perSempre);
        b.pompa.PompaEventi();
        FinestraProva sopra("frmSopra");
        b.finestre.MostraModale(sopra);
        b.finestra.diario.emplace_back("unloaded");
    };
    b.finestra.dentro.Click = [&] {
        struct Guardia {
            Banco& banco;
            ~Guardia() { banco.pompa.Attendi(5); }
        } guardia{b};
        b.pompa.Attendi(9);
    };
    b.Clicca(1, "dentro");
    b.ChiediFine(2);
    b.Vai();
    EXPECT_EQ(b.finestra.diario, (Diario{"unload", "unloaded"}));
    EXPECT_DOUBLE_EQ(b.orologio.Adesso(), 2);
}

TEST(FineProgramma, AFaultAtUnloadingHoldsNothingUp) {
    BancoFine b;
    FinestraProva sopra("frmSopra");
    sopra.allaChiusura = [] { throw Guasto(61, "Disk full"); };
    b.finestra.bottone.Click = [&] { b.finestre.MostraModale(sopra); };
    b.Clicca(1, "bottone");
    b.ChiediFine(2);
    b.Vai();
    EXPECT_EQ(b.specchio.chiuse, (Diario{"frmSopra", "frmProva"}));
}

TEST(FineProgramma, ItIsAskedForWhileTheFirstWindowIsActivated) {
    Banco b;
    FinestraProva f;
    f.allAttivazione = [&] { b.pompa.Attendi(2); };
    b.Quando(1, [&] { b.coda.ChiediFine(); });
    b.Fine(1000);
    EXPECT_FALSE(b.SvolgiCopione([&] { b.finestre.FinoAllUltima([&] { b.finestre.Mostra(f); }); }));
    EXPECT_EQ(f.diario, (Diario{"load", "activate", "unload"}));
}

TEST(FineProgramma, NothingElseSetsIt) {
    BancoFine b;
    b.finestra.rifiuta = true;
    b.Fa(1, Fatto::Chiudi, "");
    b.Clicca(2, "bottone");
    b.Quando(3, [&] {
        EXPECT_FALSE(b.coda.FineChiesta());
        EXPECT_FALSE(b.finestre.InChiusura());
        b.finestra.rifiuta = false;
    });
    b.Fa(4, Fatto::Chiudi, "");
    b.Vai();
    EXPECT_EQ(b.finestra.diario, (Diario{"unload", "click", "unload"}));
    EXPECT_FALSE(b.coda.FineChiesta());
}

TEST(FineProgramma, TheLogicSaysWhenItHasSeenIt) {
    BancoFine b;
    b.coda.ChiediFine();
    EXPECT_FALSE(b.coda.FineVista());
    b.Vai();
    EXPECT_TRUE(b.coda.FineVista());
}

}  // namespace corvana::prova
