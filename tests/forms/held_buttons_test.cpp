// A button of the mouse that went down on a control comes up for it, whatever happens meanwhile.
#include "forms/held_buttons.h"

#include <gtest/gtest.h>

#include <array>

#include "forms/fault.h"
#include "tests/forms/form_rig.h"

namespace corvana::prova {

namespace {

using Diario = std::vector<std::string>;

struct BancoMouse : BancoFinestra {
    BancoMouse() { finestra.diario.clear(); }

    Evento Bottone(Fatto fatto, int bottone, int x = 0, int y = 0) {
        Evento e;
        e.fatto = fatto;
        e.codice = bottone;
        e.x = x;
        e.y = y;
        return e;
    }
    void Giu(const std::string& controllo, int bottone = bottoneSinistro) {
        coda.Aggiungi(Fatta(Bottone(Fatto::MouseDown, bottone), controllo));
    }
    void Su(const std::string& controllo, int bottone = bottoneSinistro) {
        coda.Aggiungi(Fatta(Bottone(Fatto::MouseUp, bottone), controllo));
    }
    /// The handler of a press that waits for the release, as one that repeats while it is held.
    void TieniPremuto() {
        finestra.bottone.MouseDown = [this](const Evento&) {
            premuto = true;
            finestra.diario.emplace_back("down");
            while (premuto) {
                pompa.PompaEventi();
                pompa.Attendi(0.1);
            }
            finestra.diario.emplace_back("held");
        };
        finestra.bottone.MouseUp = [this](const Evento&) {
            premuto = false;
            finestra.diario.emplace_back("up");
        };
    }
    /// Presses, lets `allora` happen while the button is down, and goes on for a minute at most.
    /// False when the wait for the release was still going on by then.
    bool FinisceDopo(std::function<void()> allora) {
        TieniPremuto();
        Quando(1, [this] { Giu("bottone"); });
        Quando(2, std::move(allora));
        // Not even the end of the script ends a wait for an instant.
        Quando(60, [] { throw FineCopione{}; });
        SvolgiCopione([this] { finestre.FinoAllUltima(); });
        return !premuto;
    }
    Diario& Visto() { return finestra.diario; }

    bool premuto = false;
};

}  // namespace

TEST(BottoniPremuti, AReleaseEndsTheLoopThatWaitsForIt) {
    BancoMouse b;
    EXPECT_TRUE(b.FinisceDopo([&] { b.Su("bottone"); }));
    EXPECT_EQ(b.Visto(), (Diario{"down", "up", "held"}));
}

TEST(BottoniPremuti, ItComesUpForTheControlOnWhichItWentDownWhereverThePointerIs) {
    for (const char* altrove : {"", "dentro", "voce"}) {
        BancoMouse b;
        EXPECT_TRUE(b.FinisceDopo([&] { b.Su(altrove); })) << altrove;
        EXPECT_EQ(b.Visto(), (Diario{"down", "up", "held"})) << altrove;
    }
}

TEST(BottoniPremuti, ItComesUpForAControlThatWasDisabledOrHidden) {
    const std::array<std::function<void(FinestraProva&)>, 3> cosi = {
        [](FinestraProva& f) { f.bottone.Enabled = false; },
        [](FinestraProva& f) { f.bottone.Visible = false; },
        [](FinestraProva& f) { f.Enabled = false; }};
    for (const auto& rendi : cosi) {
        BancoMouse b;
        EXPECT_TRUE(b.FinisceDopo([&] {
            rendi(b.finestra);
            b.Su("bottone");
        }));
        EXPECT_EQ(b.Visto(), (Diario{"down", "up", "held"}));
    }
}

TEST(BottoniPremuti, AWindowThatOpensOverItsWindowBringsItUp) {
    BancoMouse b;
    FinestraProva sopra("frmSopra");
    sopra.alCaricamento = [&] { b.Visto().emplace_back("load above"); };
    b.finestra.voce.Click = [&] { b.finestre.MostraModale(sopra); };
    EXPECT_TRUE(b.FinisceDopo([&] {
        b.Accoda(Fatto::Click, "voce");
        b.Quando(30, [&] { b.Accoda(Fatto::Chiudi, ""); });
    }));
    EXPECT_EQ(b.Visto(), (Diario{"down", "up", "load above", "activate", "held"}));
}

TEST(BottoniPremuti, ItComesUpForAWindowThatIsntInFront) {
    BancoMouse b;
    FinestraProva sopra("frmSopra");
    b.Giu("bottone");
    b.Su("bottone");
    b.Accoda(Fatto::Click, "voce");
    b.finestra.bottone.MouseDown = [&](const Evento&) {
        b.Visto().emplace_back("down");
        b.finestre.Mostra(sopra);
    };
    b.Consegna();
    EXPECT_EQ(b.Visto(), (Diario{"down", "up"}));
    b.finestre.Scarica(sopra);
}

TEST(BottoniPremuti, TheLossOfTheKeyboardBringsItUp) {
    BancoMouse b;
    EXPECT_TRUE(b.FinisceDopo([&] { b.Accoda(Fatto::FuocoPerso, ""); }));
    EXPECT_EQ(b.Visto(), (Diario{"down", "up", "held"}));
}

TEST(BottoniPremuti, ItComesUpWhenItsWindowCloses) {
    BancoMouse b;
    EXPECT_TRUE(b.FinisceDopo([&] { b.Accoda(Fatto::Chiudi, ""); }));
    EXPECT_EQ(b.Visto(), (Diario{"down", "unload", "up", "held"}));
}

TEST(BottoniPremuti, ARefusedCloseLeavesItDown) {
    BancoMouse b;
    b.finestra.rifiuta = true;
    EXPECT_FALSE(b.FinisceDopo([&] { b.Accoda(Fatto::Chiudi, ""); }));
    EXPECT_EQ(b.Visto(), (Diario{"down", "unload"}));
}

TEST(BottoniPremuti, TheEndOfTheProgramEndsTheWaitForIt) {
    BancoMouse b;
    b.FinisceDopo([&] { b.coda.ChiediFine(); });
    EXPECT_EQ(b.Visto(), (Diario{"down", "unload", "up"}));
}

TEST(BottoniPremuti, OneThatGoesDownAgainHadComeUpUnseen) {
    BancoMouse b;
    b.Giu("bottone");
    b.finestra.dentro.MouseDown = [&](const Evento&) { b.Visto().emplace_back("inner down"); };
    b.Giu("dentro");
    b.Consegna();
    EXPECT_EQ(b.Visto(), (Diario{"down", "up", "inner down"}));
}

TEST(BottoniPremuti, ItComesUpOnceAndOnlyWhenItWentDown) {
    BancoMouse b;
    b.Su("bottone");
    b.Giu("bottone");
    b.Su("bottone");
    b.Su("bottone");
    b.Consegna();
    b.finestra.bottone.Enabled = false;
    b.Giu("bottone");
    b.Su("bottone");
    b.Consegna();
    EXPECT_EQ(b.Visto(), (Diario{"down", "up"}));
}

TEST(BottoniPremuti, EachButtonComesUpForItself) {
    BancoMouse b;
    b.finestra.dentro.MouseUp = [&](const Evento& e) {
        b.Visto().push_back("inner up " + std::to_string(e.codice));
    };
    b.Giu("dentro", bottoneDestro);
    b.Giu("bottone", bottoneSinistro);
    b.Su("", bottoneDestro);
    b.Su("", bottoneSinistro);
    b.Consegna();
    EXPECT_EQ(b.Visto(), (Diario{"down", "inner up 2", "up"}));
}

TEST(BottoniPremuti, TheSecondPressOfADoubleClickComesUpToo) {
    BancoMouse b;
    b.Giu("bottone");
    b.Su("bottone");
    b.Accoda(Fatto::Click, "bottone");
    b.coda.Aggiungi(b.Fatta(b.Bottone(Fatto::DblClick, bottoneSinistro), "bottone"));
    b.Su("bottone");
    b.Consegna();
    EXPECT_EQ(b.Visto(), (Diario{"down", "up", "click", "double click", "up"}));
}

TEST(BottoniPremuti, TheReleaseTellsItsPlaceInTheControlThatWasPressed) {
    BancoMouse b;
    b.finestra.Left = 5000;
    b.finestra.cornice.Left = 300;
    b.finestra.cornice.Top = 200;
    b.finestra.dentro.Left = 40;
    b.finestra.dentro.Top = 30;
    std::vector<int> posti;
    b.finestra.dentro.MouseUp = [&](const Evento& e) { posti.insert(posti.end(), {e.x, e.y}); };
    b.Giu("dentro");
    b.coda.Aggiungi(b.Fatta(b.Bottone(Fatto::MouseUp, bottoneSinistro, 400, 150), ""));
    b.Consegna();
    EXPECT_EQ(posti, (std::vector{60, -80}));
}

TEST(BottoniPremuti, AFaultInTheReleasesHandlerIsShownAndTheOthersComeUp) {
    BancoMouse b;
    b.finestra.dentro.MouseUp = [](const Evento&) { throw Guasto(5, "Invalid"); };
    b.Giu("dentro", bottoneDestro);
    b.Giu("bottone");
    b.Accoda(Fatto::FuocoPerso, "");
    b.Consegna();
    EXPECT_EQ(b.riquadri.messaggi, (Diario{"5\r\nInvalid"}));
    EXPECT_EQ(b.Visto(), (Diario{"down", "up"}));
}

}  // namespace corvana::prova
