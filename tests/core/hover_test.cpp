#include "core/hover.h"

#include <gtest/gtest.h>

#include "forms/form.h"

namespace corvana::prova {

namespace {

constexpr Colore rosso = 255;
constexpr Colore blu = 0xFF0000;

struct FinestraHover : Form {
    FinestraHover() : Form("frmHover") {
        hover.Affonda(ToolButton1);
        hover.Affonda(ToolButton2);
        hover.Affonda(cmdEscibg, cmdEsci, rosso, blu);
        hover.Evidenzia(ShToolbar, "ShToolbar", [this](bool sopra) { accesa = sopra; });
        hover.LasciaSu({this, &img});
    }
    static void Passa(Controllo& controllo) { controllo.MouseMove({}); }
    const std::string& Nome() const { return hover.Stato().HoverNome; }
    /// The names of those that are sunk.
    std::vector<std::string> Affondati() const {
        std::vector<std::string> nomi;
        for (const Controllo* c : Controlli())
            if (c->Top() == 10 && c->Left() == 10) nomi.push_back(c->Name);
        return nomi;
    }

    Figura ToolButton1{*this, "ToolButton1"}, ToolButton2{*this, "ToolButton2"};
    Figura cmdEscibg{*this, "cmdEscibg"}, ShToolbar{*this, "ShToolbar"}, img{*this, "img"};
    Etichetta cmdEsci{*this, "cmdEsci"};
    bool accesa = false;
    HoverFinestra hover;
};

using Nomi = std::vector<std::string>;

}  // namespace

TEST(Hover, AtFirstNothingIsHighlighted) {
    const FinestraHover f;
    EXPECT_EQ(f.Nome(), "");
    EXPECT_FALSE(f.hover.Stato().HoverAttivo);
    EXPECT_EQ(f.Affondati(), Nomi{});
}

TEST(Hover, APictureSinksOnceAndIsKnownByItsNameInLowerCase) {
    FinestraHover f;
    f.Passa(f.ToolButton1);
    f.Passa(f.ToolButton1);
    EXPECT_EQ(f.Affondati(), Nomi{"ToolButton1"});
    EXPECT_EQ(f.Nome(), "toolbutton1");
    EXPECT_TRUE(f.hover.Stato().HoverAttivo);
}

TEST(Hover, TheNextOneSetsBackTheOneBefore) {
    FinestraHover f;
    f.Passa(f.ToolButton1);
    f.Passa(f.ToolButton2);
    EXPECT_EQ(f.Affondati(), Nomi{"ToolButton2"});
    f.Passa(f.ShToolbar);
    EXPECT_EQ(f.Affondati(), Nomi{});
    EXPECT_TRUE(f.accesa);
    EXPECT_EQ(f.Nome(), "ShToolbar");
    f.Passa(f.cmdEscibg);
    EXPECT_FALSE(f.accesa);
}

TEST(Hover, TheWindowsFaceAndWhatElseIsToldSetItBack) {
    FinestraHover f;
    for (Controllo* dove : {static_cast<Controllo*>(&f), static_cast<Controllo*>(&f.img)}) {
        f.Passa(f.ToolButton2);
        f.Passa(*dove);
        EXPECT_EQ(f.Affondati(), Nomi{}) << dove->Name;
        EXPECT_EQ(f.Nome(), "") << dove->Name;
        EXPECT_FALSE(f.hover.Stato().HoverAttivo) << dove->Name;
    }
}

TEST(Hover, APictureWithALabelSinksWhicheverIsUnderThePointerAndTheLabelAloneIsColoured) {
    FinestraHover f;
    for (Controllo* dove :
         {static_cast<Controllo*>(&f.cmdEsci), static_cast<Controllo*>(&f.cmdEscibg)}) {
        f.Passa(*dove);
        EXPECT_EQ(f.Affondati(), Nomi{"cmdEscibg"}) << dove->Name;
        EXPECT_EQ(f.cmdEsci.ForeColor(), rosso) << dove->Name;
        EXPECT_EQ(f.Nome(), "cmdesci") << dove->Name;
        f.hover.Lascia();
        EXPECT_EQ(f.Affondati(), Nomi{}) << dove->Name;
        EXPECT_EQ(f.cmdEsci.ForeColor(), blu) << dove->Name;
    }
}

TEST(Hover, ToLeaveWhenNothingIsHighlightedDoesNothing) {
    FinestraHover f;
    f.hover.Lascia();
    EXPECT_EQ(f.Affondati(), Nomi{});
    EXPECT_EQ(f.cmdEsci.ForeColor(), FinestraHover().cmdEsci.ForeColor());
}

TEST(Hover, OneWindowsIsNoneOfAnothers) {
    FinestraHover sotto, sopra;
    sotto.Passa(sotto.ToolButton1);
    sopra.Passa(sopra.ToolButton2);
    EXPECT_EQ(sopra.Affondati(), Nomi{"ToolButton2"});
    sopra.Passa(sopra);
    EXPECT_EQ(sotto.Affondati(), Nomi{"ToolButton1"});
    sotto.Passa(sotto);
    EXPECT_EQ(sotto.Affondati(), Nomi{});
}

}  // namespace corvana::prova
