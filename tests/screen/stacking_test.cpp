// What lies in front of what, and which window has the keyboard.
#include <utility>

#include "tests/screen/shared_screen.h"

namespace corvana::prova {

namespace {

using Pila = SullaScrivania;

/// On the title bar, away from its buttons.
Punto Titolo(Schermo& s, xcb_window_t finestra) {
    const Rettangolo cornice = s.Cornice(finestra), interno = s.Interno(finestra);
    return {cornice.x + 200, (cornice.y + interno.y) / 2};
}

}  // namespace

TEST_F(Pila, AClickOnTheMainWindowsTitleLeavesTheModalOneInFront) {
    ProgrammaVero p(LoSchermo());
    Schermo& s = p.schermo;
    const xcb_window_t sequenza = p.ApriSequenza();
    ASSERT_NE(sequenza, 0U);
    s.Clicca(Titolo(s, p.principale));
    EXPECT_TRUE(s.Sopra(sequenza, p.principale));
    // It would be lost in the main window if that lay in front.
    p.Clicca("cmdOk", "frmConfMetro");
    EXPECT_TRUE(p.AspettaChiusa("frmConfMetro"));
}

TEST_F(Pila, TheKeyboardGoesBackToTheMainWindow) {
    ProgrammaVero p(LoSchermo());
    ASSERT_NE(p.ApriStrumenti(), 0U);
    p.schermo.Batti("Escape");
    ASSERT_TRUE(p.AspettaChiusa("frmStrum"));
    EXPECT_TRUE(p.schermo.Aspetta([&] { return p.schermo.Attiva() == p.principale; }));
    const Rettangolo regolo = p.Dove("Regolo");
    const auto prima = p.schermo.Immagine(regolo);
    p.schermo.Batti("space");
    EXPECT_TRUE(p.schermo.Aspetta([&] { return p.schermo.Immagine(regolo) != prima; }))
        << "Start doesn't hear the keyboard";
}

TEST_F(Pila, MinimisedAndBroughtBackTheModalOneIsThereAgain) {
    ProgrammaVero p(LoSchermo());
    Schermo& s = p.schermo;
    const xcb_window_t sequenza = p.ApriSequenza();
    ASSERT_NE(sequenza, 0U);
    const Rettangolo ok = p.Dove("cmdOk", "frmConfMetro");
    std::vector<std::uint8_t> visto;
    ASSERT_TRUE(s.Aspetta([&] { return std::exchange(visto, s.Immagine(ok)) == s.Immagine(ok); }));
    s.Riduci(p.principale);
    ASSERT_TRUE(s.Aspetta([&] { return !s.SiVede(p.principale) && !s.SiVede(sequenza); }));
    s.Riapri(p.principale);
    ASSERT_TRUE(s.Aspetta([&] { return s.SiVede(p.principale) && s.SiVede(sequenza); }));
    EXPECT_TRUE(s.Sopra(sequenza, p.principale));
    ASSERT_EQ(p.AspettaFinestra("frmConfMetro"), sequenza);
    // The window manager lays them upon each other a moment after it said so.
    ASSERT_TRUE(s.Aspetta([&] { return s.Immagine(ok) == visto; }));
    p.Clicca("cmdOk", "frmConfMetro");
    EXPECT_TRUE(p.AspettaChiusa("frmConfMetro"));
}

TEST_F(Pila, ABoxBelongsToItsWindowAndIsAnsweredOverIt) {
    ProgrammaVero p(LoSchermo(), {.pronta = false});
    Schermo& s = p.schermo;
    const xcb_window_t riquadro = p.AspettaFinestra("riquadro");
    ASSERT_NE(riquadro, 0U);
    EXPECT_EQ(s.TransitoriaPer(riquadro), p.principale);
    EXPECT_TRUE(s.HaStato(riquadro, "_NET_WM_STATE_MODAL"));
    EXPECT_TRUE(s.Cornice(p.principale).Contiene(s.Cornice(riquadro)));
    s.Clicca(Titolo(s, p.principale));
    EXPECT_TRUE(s.Sopra(riquadro, p.principale));
    s.Riapri(riquadro);
    ASSERT_EQ(p.AspettaFinestra("riquadro"), riquadro);
    s.Batti("Return");
    EXPECT_TRUE(p.AspettaChiusa("riquadro"));
    EXPECT_TRUE(s.Aspetta([&] { return s.Attiva() == p.principale; }));
}

TEST_F(Pila, TheHelpIsUsedWhileAModalWindowIsUp) {
    ProgrammaVero p(LoSchermo());
    Schermo& s = p.schermo;
    const xcb_window_t sequenza = p.ApriSequenza();
    ASSERT_NE(sequenza, 0U);
    s.Batti("F1");
    const xcb_window_t aiuto = p.AspettaFinestra("FinestraAiuto");
    ASSERT_NE(aiuto, 0U);
    EXPECT_FALSE(s.Cornice(aiuto).Tocca(s.Cornice(sequenza)));
    s.Riapri(sequenza);
    ASSERT_EQ(p.AspettaFinestra("frmConfMetro"), sequenza);
    const Rettangolo pagina = s.Interno(aiuto);
    s.Clicca({pagina.x + pagina.larghezza / 2, pagina.y + pagina.altezza / 2});
    ASSERT_EQ(p.AspettaFinestra("FinestraAiuto"), aiuto);
    const auto prima = s.Immagine(pagina);
    s.Batti("Next");
    EXPECT_TRUE(s.Aspetta([&] { return s.Immagine(pagina) != prima; })) << "it doesn't scroll";
    s.Batti("Escape");
    EXPECT_TRUE(p.AspettaChiusa("FinestraAiuto"));
    EXPECT_TRUE(s.SiVede(sequenza));
    EXPECT_TRUE(s.Aspetta([&] { return s.Attiva() == sequenza; }));
}

}  // namespace corvana::prova
