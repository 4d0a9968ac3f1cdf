// Where the windows stand, and whom they belong to.
#include "tests/screen/shared_screen.h"

namespace corvana::prova {

namespace {

using Luoghi = SullaScrivania;

constexpr Rettangolo tutto{0, 0, Schermo::larghezza, Schermo::altezza};

Punto Mezzo(const Rettangolo& r) {
    return {r.x + r.larghezza / 2, r.y + r.altezza / 2};
}

/// The window manager rounds as it likes.
bool Vicini(Punto a, Punto b) {
    return std::abs(a.x - b.x) <= 2 && std::abs(a.y - b.y) <= 2;
}

/// Waits until the main window stands there.
bool Porta(ProgrammaVero& p, Punto dove) {
    p.schermo.Sposta(p.principale, dove);
    return p.schermo.Aspetta([&] {
        const Rettangolo r = p.schermo.Cornice(p.principale);
        return Vicini({r.x, r.y}, dove);
    });
}

}  // namespace

TEST_F(Luoghi, ThePatternBelongsToTheMainWindowAndStandsInItsMiddle) {
    ProgrammaVero p(LoSchermo());
    const xcb_window_t sequenza = p.ApriSequenza();
    ASSERT_NE(sequenza, 0U);
    Schermo& s = p.schermo;
    EXPECT_EQ(s.TransitoriaPer(sequenza), p.principale);
    EXPECT_TRUE(s.HaStato(sequenza, "_NET_WM_STATE_MODAL"));
    const Rettangolo sopra = s.Cornice(sequenza), sotto = s.Cornice(p.principale);
    EXPECT_TRUE(Vicini(Mezzo(sopra), Mezzo(sotto))) << sopra << " over " << sotto;
    EXPECT_TRUE(tutto.Contiene(sopra)) << sopra;
}

TEST_F(Luoghi, OverAWindowAtTheScreensEdgeItStandsOnTheScreenAsAWhole) {
    ProgrammaVero p(LoSchermo());
    Schermo& s = p.schermo;
    ASSERT_TRUE(p.ApriMetronomo());
    // The button that opens the pattern is still to be seen, a third of the window isn't.
    const Rettangolo principale = s.Cornice(p.principale);
    ASSERT_TRUE(Porta(p, {Schermo::larghezza - principale.larghezza * 2 / 3, 20}));
    p.Clicca("cmdSetup");
    const xcb_window_t sequenza = p.AspettaFinestra("frmConfMetro");
    ASSERT_NE(sequenza, 0U);
    EXPECT_TRUE(tutto.Contiene(s.Cornice(sequenza))) << s.Cornice(sequenza);
    EXPECT_FALSE(Vicini(Mezzo(s.Cornice(sequenza)), Mezzo(s.Cornice(p.principale))))
        << "the main window stood too far from the edge";
}

TEST_F(Luoghi, ThePickerStandsAtItsPlaceFromTheMainWindow) {
    ProgrammaVero p(LoSchermo());
    Schermo& s = p.schermo;
    for (const Punto dove : {Punto{100, 50}, Punto{700, 200}}) {
        ASSERT_TRUE(Porta(p, dove));
        const xcb_window_t strumenti = p.ApriStrumenti();
        ASSERT_NE(strumenti, 0U);
        const Rettangolo sotto = s.Cornice(p.principale);
        const Rettangolo sopra = s.Cornice(strumenti);
        // 900 and 2600 twips.
        EXPECT_TRUE(Vicini({sopra.x, sopra.y}, {sotto.x + 60, sotto.y + 173}))
            << sopra << " over " << sotto;
        EXPECT_EQ(s.TransitoriaPer(strumenti), p.principale);
        s.Batti("Escape");
        ASSERT_TRUE(p.AspettaChiusa("frmStrum"));
    }
}

TEST_F(Luoghi, ARoundedWindowShowsWhatLiesBeneathAtItsCorners) {
    ProgrammaVero p(LoSchermo());
    Schermo& s = p.schermo;
    const Rettangolo principale = s.Cornice(p.principale);
    const Rettangolo angolo{principale.x + 60, principale.y + 173, 2, 2};
    const auto prima = s.Immagine(angolo);
    ASSERT_NE(p.ApriStrumenti(), 0U);
    ASSERT_TRUE(s.Aspetta([&] {
        const Rettangolo dentro{angolo.x + 100, angolo.y + 4, 1, 1};
        return s.Immagine(dentro) != prima;
    }));
    EXPECT_EQ(s.Immagine(angolo), prima);
}

TEST_F(Luoghi, TheHelpOpensBesideTheMainWindowAndOnTheScreenAsAWhole) {
    ProgrammaVero p(LoSchermo());
    ASSERT_TRUE(Porta(p, {20, 20}));
    p.schermo.Batti("F1");
    const xcb_window_t aiuto = p.AspettaFinestra("FinestraAiuto");
    ASSERT_NE(aiuto, 0U);
    const Rettangolo accanto = p.schermo.Cornice(aiuto), prima = p.schermo.Cornice(p.principale);
    EXPECT_FALSE(accanto.Tocca(prima)) << accanto << " and " << prima;
    EXPECT_TRUE(tutto.Contiene(accanto)) << accanto;
    EXPECT_EQ(p.schermo.TransitoriaPer(aiuto), 0U);
}

TEST_F(Luoghi, AtTwiceTheSizeEveryWindowStillLiesOnTheScreen) {
    ProgrammaVero p(LoSchermo(), {.scala = 2});
    Schermo& s = p.schermo;
    EXPECT_TRUE(s.Aspetta([&] { return tutto.Contiene(s.Cornice(p.principale)); }))
        << s.Cornice(p.principale);
    s.Batti("F1");
    const xcb_window_t aiuto = p.AspettaFinestra("FinestraAiuto");
    ASSERT_NE(aiuto, 0U);
    EXPECT_TRUE(s.Aspetta([&] { return tutto.Contiene(s.Cornice(aiuto)); })) << s.Cornice(aiuto);
}

}  // namespace corvana::prova
