// Where the main window's controls lie, and what they start with.
#include <gtest/gtest.h>

#include <set>

#include "tests/trainer/main_window_rig.h"

namespace corvana::prova {

namespace {

struct Luogo {
    int left, top, width, height;
    bool operator==(const Luogo&) const = default;
};

Luogo Di(const Controllo& c) {
    return {c.Left(), c.Top(), c.Width(), c.Height()};
}

}  // namespace

TEST(Disposizione, TheStavesTheRulerAndTheNameLieWhereTheyMust) {
    const BancoPrincipale b;
    EXPECT_EQ(Di(b.finestra.pentagramma.img), (Luogo{0, 0, 6330, 4710}));
    EXPECT_EQ(Di(b.finestra.pentagramma.Regolo), (Luogo{810, 15, 255, 4695}));
    EXPECT_EQ(Di(b.finestra.pentagramma.lblnn), (Luogo{1065, 2340, 525, 390}));
    EXPECT_EQ(b.finestra.pentagramma.lblMn.Left(), 6975);
    EXPECT_EQ(b.finestra.pentagramma.lblMn.Top(), 3225);
    EXPECT_EQ(b.finestra.pentagramma.lblMn.Caption(), "?");
}

TEST(Disposizione, EachNoteControlLiesWhereItsPositionSays) {
    const BancoPrincipale b;
    for (const Posizione& p : Posizioni()) {
        const Controllo* nota = b.finestra.Trova("n" + std::to_string(p.numero));
        ASSERT_NE(nota, nullptr);
        EXPECT_EQ(Di(*nota), (Luogo{p.left, p.top, p.width, p.height})) << p.numero;
        EXPECT_EQ(nota->Padre(), &b.finestra.pentagramma.img);
    }
    EXPECT_EQ(b.finestra.pentagramma.n.size(), 46U);
}

TEST(Disposizione, NoNumberWithoutAPositionHasAControl) {
    const BancoPrincipale b;
    for (int numero = 0; numero < 256; ++numero)
        EXPECT_EQ(b.finestra.Trova("n" + std::to_string(numero)) != nullptr,
                  CercaPosizione(numero) != nullptr)
            << numero;
}

TEST(Disposizione, EveryControlLiesWithinWhatItLiesIn) {
    const BancoPrincipale b;
    for (const Controllo* c : b.finestra.Controlli()) {
        if (!c->Padre() || c->tipo == Genere::VoceMenu) continue;
        EXPECT_GE(c->Left(), 0) << c->Name;
        EXPECT_GE(c->Top(), 0) << c->Name;
        EXPECT_GT(c->Width() * c->Height(), 0) << c->Name;
        EXPECT_LE(c->Left() + c->Width(), c->Padre()->Width()) << c->Name;
        EXPECT_LE(c->Top() + c->Height(), c->Padre()->Height()) << c->Name;
    }
}

TEST(Disposizione, AllNamesDiffer) {
    const BancoPrincipale b;
    std::set<std::string> nomi;
    for (const Controllo* c : b.finestra.Controlli())
        EXPECT_TRUE(nomi.insert(c->Name).second) << c->Name;
}

TEST(Disposizione, TheSliderGoesFrom20To140AndStandsAt30) {
    const BancoPrincipale b;
    EXPECT_EQ(b.finestra.automatico.Slider1.Min(), 20);
    EXPECT_EQ(b.finestra.automatico.Slider1.Max(), 140);
    EXPECT_EQ(b.finestra.automatico.Slider1.Value(), 30);
}

TEST(Disposizione, TheAnswersTheScoreAndTheHelpStartWithTheirTexts) {
    const BancoPrincipale b;
    const CorvanaMainF& f = b.finestra;
    EXPECT_EQ(f.esercizio.Start.Caption(), "Start");
    EXPECT_EQ(f.risposte.pdo.Caption(), "DO");
    EXPECT_EQ(f.risposte.psi.Caption(), "SI");
    EXPECT_EQ(f.automatico.lblAuto1.Caption(), "Do - Re - Mi - Fa - Sol - La - Si");
    EXPECT_EQ(f.automatico.lblAuto2.Caption(), "d   - 1    - f    - 2    - g   - 3   - h");
    EXPECT_EQ(f.pentagramma.Regolo.ToolTipText(), "Clicca per scegliere l'intervallo");
    EXPECT_EQ(f.pentagramma.lblMn.ToolTipText(), "Mostra/Nascondi il nome della nota");
    for (const Casella* c :
         {&f.esercizio.punteggio.conta, &f.esercizio.punteggio.er, &f.esercizio.punteggio.PercEs})
        EXPECT_TRUE(c->Locked()) << c->Name;
    EXPECT_FALSE(f.pentagramma.lblnn.Visible());
}

TEST(Disposizione, TheHelpOfTheWindowHasItsPage) {
    const BancoPrincipale b;
    EXPECT_NE(b.finestra.HelpContextID(), 0);
}

}  // namespace corvana::prova
