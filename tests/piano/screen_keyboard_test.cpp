#include "piano/screen_keyboard.h"

#include <gtest/gtest.h>

#include "tests/support/rig.h"

namespace corvana::prova {

namespace {

using Corredo = TastieraSchermo::Corredo;

struct Pagina final : Form {
    explicit Pagina(Corredo corredo = Corredo::TastiEBarre)
        : Form("Pagina"), tastiera(*this, "img2", &cornice, corredo) {}
    Cornice cornice{*this, "cornice"};
    TastieraSchermo tastiera;
};

std::vector<int> Accesi(const std::deque<Etichetta>& etichette) {
    std::vector<int> accesi;
    for (std::size_t i = 0; i < etichette.size(); ++i)
        if (etichette[i].BackStyle() == fondoOpaco) accesi.push_back(static_cast<int>(i));
    return accesi;
}

}  // namespace

TEST(TastieraSchermo, ItMakes60KeysAndAsManyMarksOnItsPictureInTheFrame) {
    const Pagina p;
    for (int i = 0; i < 60; ++i)
        for (const std::string nome : {"lb", "lbr"}) {
            const Controllo* c = p.Trova(nome + std::to_string(i));
            ASSERT_TRUE(c) << nome << i;
            EXPECT_EQ(c->Padre(), p.Trova("img2")) << nome << i;
        }
    EXPECT_FALSE(p.Trova("lb60"));
    EXPECT_FALSE(p.Trova("lbr60"));
    EXPECT_EQ(p.Trova("img2")->Padre(), &p.cornice);
}

TEST(TastieraSchermo, WithTheKeysAloneThereIsNoMarkButMiddleC) {
    const Pagina p(Corredo::Tasti);
    EXPECT_TRUE(p.Trova("lb59"));
    EXPECT_FALSE(p.Trova("lbr0"));
    ASSERT_TRUE(p.Trova("Lbdoc"));
    EXPECT_EQ(p.Trova("Lbdoc")->ToolTipText(), "Do Centrale");
}

TEST(TastieraSchermo, AllThatLiesOnItGrowsInProportionToItsWidth) {
    Pagina p;
    const auto posto = [&p](const std::string& nome) {
        const Controllo& c = *p.Trova(nome);
        return Rettangolo{c.Left, c.Top, c.Width, c.Height};
    };
    EXPECT_EQ(posto("lb0"), (Rettangolo{30, 435, 195, 300}));
    p.tastiera.PonPosto({10, 20, 2 * 7770, 2 * 900});
    EXPECT_EQ(posto("img2"), (Rettangolo{10, 20, 15540, 1800}));
    EXPECT_EQ(posto("lb0"), (Rettangolo{60, 870, 390, 600}));
    EXPECT_EQ(posto("lb1"), (Rettangolo{300, 180, 270, 600}));
    EXPECT_EQ(posto("lb12").left - posto("lb0").left, 2 * 1545);
    EXPECT_EQ(posto("lbr0"), (Rettangolo{90, 1440, 330, 150}));
    EXPECT_EQ(posto("Lbdoc").width, 150);
}

TEST(TastieraSchermo, AtFirstNothingIsLit) {
    const Pagina p;
    EXPECT_TRUE(Accesi(p.tastiera.lb).empty());
    EXPECT_TRUE(Accesi(p.tastiera.lbr).empty());
}

TEST(TastieraSchermo, LitKeysAndMarksHaveTheirColours) {
    const Pagina p;
    for (int i = 0; i < 60; ++i) {
        EXPECT_EQ(p.Trova("lb" + std::to_string(i))->BackColor(), 0xFFC0C0) << i;
        EXPECT_EQ(p.Trova("lbr" + std::to_string(i))->BackColor(), 0x00FF00) << i;
    }
}

TEST(TastieraSchermo, SwLightsTheKeyOfAMidiNumberAndClearsIt) {
    Pagina p;
    p.tastiera.sw(36, 1);
    p.tastiera.sw(60, 1);
    p.tastiera.sw(95, 1);
    EXPECT_EQ(Accesi(p.tastiera.lb), (std::vector{0, 24, 59}));
    p.tastiera.sw(60, 0);
    EXPECT_EQ(Accesi(p.tastiera.lb), (std::vector{0, 59}));
}

TEST(TastieraSchermo, SwLightsWith1Alone) {
    Pagina p;
    p.tastiera.sw(40, 1);
    p.tastiera.sw(40, 2);
    EXPECT_TRUE(Accesi(p.tastiera.lb).empty());
}

TEST(TastieraSchermo, SpegniTastiClearsTheKeysAndLeavesTheMarks) {
    Pagina p;
    for (std::int16_t nota = 36; nota <= 95; ++nota)
        p.tastiera.sw(nota, 1);
    Accendi(p.tastiera.lbr[59], true);
    p.tastiera.SpegniTasti();
    EXPECT_TRUE(Accesi(p.tastiera.lb).empty());
    EXPECT_EQ(Accesi(p.tastiera.lbr), std::vector{59});
}

TEST(TastieraSchermo, SpegniBarreClearsTheMarksAndLeavesTheKeys) {
    Pagina p;
    for (Etichetta& barra : p.tastiera.lbr)
        Accendi(barra, true);
    p.tastiera.sw(36, 1);
    p.tastiera.SpegniBarre();
    EXPECT_TRUE(Accesi(p.tastiera.lbr).empty());
    EXPECT_EQ(Accesi(p.tastiera.lb), std::vector{0});
}

TEST(TastieraSchermo, KeysBearTheNamesOfTheirNotesInTheNotationInUse) {
    Pagina p;
    EXPECT_EQ(p.tastiera.lb[24].Caption(), "Do");
    p.tastiera.PonNomi(true);
    EXPECT_EQ(p.tastiera.lb[24].Caption(), "C");
    EXPECT_EQ(p.tastiera.lb[59].Caption(), "B");
}

}  // namespace corvana::prova
