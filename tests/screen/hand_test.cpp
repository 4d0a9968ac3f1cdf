// What the user's hand does with mouse and keys, as a real screen tells it.
#include <fstream>
#include <utility>

#include "tests/screen/shared_screen.h"
#include "tests/screen/small_form.h"
#include "tests/support/rig.h"

namespace corvana::prova {

namespace {

using Mano = SullaScrivania;
using Diario = std::vector<std::string>;

/// The small window on the screen.
class ProgrammaPiccolo {
public:
    explicit ProgrammaPiccolo(Schermo& dove) : schermo(dove), processo_(Avvio()) {
        finestra = Aspetta("FinestraPiccola");
        if (finestra == 0) throw std::runtime_error("the window doesn't come");
    }

    xcb_window_t Aspetta(const std::string& ruolo) {
        xcb_window_t quale = 0;
        schermo.Aspetta([&] {
            quale = schermo.Cerca(ruolo);
            return quale != 0 && schermo.Attiva() == quale;
        });
        return quale;
    }
    /// The middle of the control, or a place of the window away from all of them.
    Punto Dove(const std::string& controllo) {
        const Rettangolo dove = schermo.Interno(finestra);
        if (controllo.empty()) return {dove.x + 250, dove.y + 100};
        const Controllo& c = *disegno_.Trova(controllo);
        constexpr int twip = 15;  // to a pixel
        return {dove.x + (c.Left + c.Width / 2) / twip, dove.y + (c.Top + c.Height / 2) / twip};
    }
    Punto Fuori() {
        const Rettangolo dove = schermo.Cornice(finestra);
        return {dove.x + dove.larghezza + 200, dove.y + dove.altezza + 100};
    }
    bool Dice(const Diario& atteso) {
        const bool detto = schermo.Aspetta([&] { return Righe() == atteso; });
        EXPECT_EQ(Righe(), atteso);
        return detto;
    }
    /// Presses the label that goes round while it is held.
    void Tieni() {
        schermo.Premi(Dove("tieni"), 1);
        ASSERT_TRUE(Dice({"down"}));
    }

    Schermo& schermo;
    xcb_window_t finestra = 0;

private:
    Diario Righe() const {
        std::ifstream file(casa_.Percorso() / "uscita");
        Diario righe;
        for (std::string riga; std::getline(file, riga);)
            righe.push_back(riga);
        return righe;
    }
    Processo::Avvio Avvio() const {
        const std::string casa = casa_.Percorso().string();
        return {{CORVANA_SMALL_WINDOW},
                {"DISPLAY=" + schermo.Nome(), "HOME=" + casa, "XDG_CONFIG_HOME=" + casa,
                 "XDG_RUNTIME_DIR=" + casa, "QT_QPA_PLATFORM=xcb"},
                casa_.Percorso() / "uscita"};
    }

    Banco banco_;
    FinestraPiccola disegno_{banco_.finestre, banco_.pompa, banco_.riquadri, {}};
    CartellaPropria casa_;
    Processo processo_;
};

}  // namespace

TEST_F(Mano, AHoldEndsWhereverTheButtonComesUp) {
    ProgrammaPiccolo p(LoSchermo());
    p.Tieni();
    p.schermo.Lascia(p.Fuori(), 1);
    EXPECT_TRUE(p.Dice({"down", "up", "released"}));
}

TEST_F(Mano, AHoldEndsThoughItsControlWasDisabledMeanwhile) {
    ProgrammaPiccolo p(LoSchermo());
    p.Tieni();
    p.schermo.Batti("F2");
    ASSERT_TRUE(p.Dice({"down", "disabled"}));
    p.schermo.Lascia(p.Dove("tieni"), 1);
    EXPECT_TRUE(p.Dice({"down", "disabled", "up", "released"}));
}

TEST_F(Mano, AHoldEndsWhenAWindowOrABoxComesOverItsWindow) {
    for (const auto& [tasto, ruolo, chiude] :
         {std::tuple{"F3", "FinestraSopra", "Escape"}, std::tuple{"F4", "riquadro", "Return"}}) {
        ProgrammaPiccolo p(LoSchermo());
        p.Tieni();
        p.schermo.Batti(tasto);
        ASSERT_NE(p.Aspetta(ruolo), 0U);
        p.schermo.Batti(chiude);
        EXPECT_TRUE(p.Dice({"down", "up", "released"})) << ruolo;
        p.schermo.Lascia(p.Dove("tieni"), 1);
    }
}

TEST_F(Mano, AHoldEndsWhenTheWindowIsMinimised) {
    ProgrammaPiccolo p(LoSchermo());
    p.Tieni();
    p.schermo.Riduci(p.finestra);
    EXPECT_TRUE(p.Dice({"down", "up", "released"}));
    p.schermo.Lascia(p.Fuori(), 1);
}

TEST_F(Mano, AClickOnAButtonAfterTypingIsTheTextTheLossOfTheFocusThenTheClick) {
    ProgrammaPiccolo p(LoSchermo());
    p.schermo.Clicca(p.Dove("casella"));
    p.schermo.Batti("7");
    p.schermo.Batti("Return");
    p.schermo.Clicca(p.Dove("bottone"));
    EXPECT_TRUE(p.Dice({"text 7", "enter", "left", "button down", "button click"}));
}

TEST_F(Mano, AnotherProgramOnlyBorrowsTheFocus) {
    ProgrammaPiccolo p(LoSchermo());
    p.schermo.Clicca(p.Dove("casella"));
    p.schermo.Batti("7");
    {
        const ProgrammaVero altro(LoSchermo(), {.pronta = false});
        EXPECT_NE(p.schermo.Attiva(), p.finestra);
    }
    ASSERT_TRUE(p.schermo.Aspetta([&] { return p.schermo.Attiva() == p.finestra; }));
    p.schermo.Batti("9");
    EXPECT_TRUE(p.Dice({"text 7", "text 79"}));
}

TEST_F(Mano, TheContextMenuOpensAtThePointerAndItsEntryIsChosen) {
    ProgrammaPiccolo p(LoSchermo());
    // What answers a click has been painted: else its first painting would be taken for the menu.
    p.schermo.Clicca(p.Dove("bottone"));
    ASSERT_TRUE(p.Dice({"button down", "button click"}));
    const Punto dove = p.Dove("");
    const Rettangolo accanto{dove.x + 2, dove.y + 2, 20, 10};
    const auto prima = p.schermo.Immagine(accanto);
    p.schermo.Premi(dove, 3);
    p.schermo.Lascia(dove, 3);
    ASSERT_TRUE(p.schermo.Aspetta([&] { return p.schermo.Immagine(accanto) != prima; }));
    p.schermo.Clicca({dove.x + 20, dove.y + 14});
    EXPECT_TRUE(p.Dice({"button down", "button click", "entry"}));
}

TEST_F(Mano, TheContextMenuIsReachedFromTheKeyboard) {
    for (const char* tasto : {"Menu", "shift+F10"}) {
        ProgrammaPiccolo p(LoSchermo());
        const Punto dove = p.Dove("bottone");
        p.schermo.Clicca(dove);
        ASSERT_TRUE(p.Dice({"button down", "button click"}));
        const Rettangolo accanto{dove.x + 2, dove.y + 2, 20, 20};
        const auto prima = p.schermo.Immagine(accanto);
        p.schermo.Batti(tasto);
        ASSERT_TRUE(p.schermo.Aspetta([&] { return p.schermo.Immagine(accanto) != prima; }))
            << tasto;
        p.schermo.Batti("Down");
        p.schermo.Batti("Return");
        EXPECT_TRUE(p.Dice({"button down", "button click", "entry"})) << tasto;
        p.schermo.Batti("space");
        EXPECT_TRUE(p.Dice({"button down", "button click", "entry", "button click"}))
            << "the focus is elsewhere";
    }
}

}  // namespace corvana::prova
