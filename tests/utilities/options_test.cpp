#include "utilities/options.h"

#include <gtest/gtest.h>

#include "tests/program/program_rig.h"

namespace corvana::prova {

namespace {

constexpr Colore scelto = Rgb(180, 254, 214), disegnato = Rgb(255, 224, 192);
constexpr Colore meno = Rgb(238, 255, 192), piu = Rgb(255, 128, 128);
constexpr std::size_t gradi = 16;

/// The window, loaded and in front, by itself.
struct BancoPromemoria : Banco {
    frmOptions f{Tutto()};

    BancoPromemoria() {
        f.Form_Load();
        f.Form_Activate();
    }

    /// Of all pictures and the degrees, those that are shown, by the numbers of their buttons.
    std::vector<std::size_t> Mostrati() const {
        std::vector<std::size_t> mostrati;
        for (std::size_t i = 0; i < f.Img.size(); ++i)
            if (f.Img[i].Visible) mostrati.push_back(i + 1);
        if (f.Gradi.Visible) mostrati.push_back(gradi);
        return mostrati;
    }
    std::vector<int> Pagine() const {
        std::vector<int> pagine;
        for (std::size_t i = 0; i < f.Frame1.size(); ++i)
            if (f.Frame1[i].Visible) pagine.push_back(static_cast<int>(i) + 1);
        return pagine;
    }
    /// Only the button with that number is open, 0 for none; and each button's colour agrees.
    void SoloAperto(std::size_t aperto) const {
        for (std::size_t i = 1; i <= f.Ton.size(); ++i) {
            const Interruttore& ton = f.Ton[i - 1];
            EXPECT_EQ(ton.Caption(), i == aperto ? "-" : "+") << i;
            EXPECT_EQ(ton.BackColor(), i == aperto ? meno : piu) << i;
            EXPECT_EQ(ton.Checked(), i == aperto) << i;
        }
        EXPECT_EQ(Mostrati(),
                  aperto ? std::vector<std::size_t>{aperto} : std::vector<std::size_t>{});
    }
    /// Page and button of that number are chosen, and no others.
    void SoloScelta(int pagina) const {
        EXPECT_EQ(Pagine(), std::vector<int>{pagina});
        for (std::size_t i = 0; i < f.cmdSel.size(); ++i) {
            const bool lei = static_cast<int>(i) + 1 == pagina;
            EXPECT_EQ(f.cmdSel[i].BackColor(), lei ? scelto : disegnato) << i;
            EXPECT_EQ(f.cmdSel[i].Checked(), lei) << i;
        }
        EXPECT_EQ(f.Pagina, pagina);
    }
};

}  // namespace

TEST(Promemoria, OpensOnTheFirstPageWithTheFirstPictureShown) {
    BancoPromemoria b;
    b.SoloScelta(1);
    b.SoloAperto(1);
    EXPECT_EQ(b.f.Davanti, 1U);
    EXPECT_EQ(b.f.ColoreSel, disegnato);
}

TEST(Promemoria, EveryPageCanBeReachedFromEveryOther) {
    BancoPromemoria b;
    for (const int pagina : {2, 3, 1, 3, 2, 1}) {
        b.f.cmdSel_Click(pagina - 1);
        b.SoloScelta(pagina);
    }
}

TEST(Promemoria, TheButtonOfThePageInFrontChangesNothingNotEvenColours) {
    BancoPromemoria b;
    b.f.cmdSel_Click(1);
    constexpr Colore altro = Rgb(1, 2, 3);
    b.f.cmdSel[1].BackColor = altro;
    b.f.cmdSel_Click(1);
    EXPECT_EQ(b.f.cmdSel[1].BackColor(), altro);
    EXPECT_EQ(b.f.ColoreSel, disegnato);
    EXPECT_EQ(b.Pagine(), std::vector<int>{2});
    b.f.cmdSel_Click(0);
    b.SoloScelta(1);
}

TEST(Promemoria, TheOldButtonGetsTheColourBackThatItHad) {
    BancoPromemoria b;
    constexpr Colore suo = Rgb(9, 8, 7);
    b.f.cmdSel[2].BackColor = suo;
    b.f.cmdSel_Click(2);
    EXPECT_EQ(b.f.cmdSel[2].BackColor(), scelto);
    b.f.cmdSel_Click(1);
    EXPECT_EQ(b.f.cmdSel[2].BackColor(), suo);
}

TEST(Promemoria, ARowsButtonShowsItsPictureInPlaceOfTheOneInFront) {
    BancoPromemoria b;
    for (const std::size_t riga : {2, 15, 7, 1, 8}) {
        b.f.Ton_Click(riga);
        b.SoloAperto(riga);
        EXPECT_EQ(b.f.Davanti, riga);
    }
}

TEST(Promemoria, ARowTwiceLeavesNoPictureAndALaterRowWorksAsUsual) {
    BancoPromemoria b;
    b.f.Ton_Click(3);
    b.f.Ton_Click(3);
    b.SoloAperto(0);
    EXPECT_EQ(b.f.Davanti, 3U);
    b.f.Ton_Click(5);
    b.SoloAperto(5);
}

TEST(Promemoria, ARowThreeTimesShowsItsPictureAgain) {
    BancoPromemoria b;
    for (int volta = 0; volta < 3; ++volta)
        b.f.Ton_Click(3);
    b.SoloAperto(3);
}

TEST(Promemoria, TheDegreesStandInPlaceOfThePictureAndDontBringItBack) {
    BancoPromemoria b;
    b.f.Ton_Click(4);
    b.f.Ton_Click(gradi);
    b.SoloAperto(gradi);
    b.f.Ton_Click(gradi);
    b.SoloAperto(0);
    EXPECT_EQ(b.f.Davanti, 4U);
    b.f.Ton_Click(gradi);
    b.SoloAperto(gradi);
}

TEST(Promemoria, AfterTheDegreesARowHidesThemAndShowsItsPicture) {
    for (const std::size_t riga : {1, 2, 4}) {
        BancoPromemoria b;
        b.f.Ton_Click(4);
        b.f.Ton_Click(gradi);
        b.f.Ton_Click(riga);
        b.SoloAperto(riga);
    }
}

TEST(Promemoria, WhateverIsClickedAtMostOneThingShowsAndItsButtonSaysSo) {
    BancoPromemoria b;
    unsigned caso = 1;
    for (int volta = 0; volta < 2000; ++volta) {
        caso = caso * 1103515245U + 12345U;
        b.f.Ton_Click((caso >> 16) % gradi + 1);
        const auto mostrati = b.Mostrati();
        ASSERT_LE(mostrati.size(), 1U);
        b.SoloAperto(mostrati.empty() ? 0 : mostrati.front());
    }
}

TEST(Promemoria, TheMenuAndTheToolButtonOpenItAndTheButtonClosesIt) {
    for (const char* da : {"mnuPromemoria", "ToolButton4"}) {
        BancoProgramma b;
        bool aperta = false;
        b.Clicca(3, da);
        b.Quando(4, [&] { aperta = b.finestre.Davanti()->Name == "frmOptions"; });
        b.Clicca(5, "cmdOK");
        b.Quando(6, [&] { EXPECT_EQ(b.finestre.Davanti(), &b.finestra); });
        b.Vai(7);
        EXPECT_TRUE(aperta) << da;
    }
}

TEST(Promemoria, ItsControlsDoWhatTheyAreForAndAreForgottenWhenItCloses) {
    BancoProgramma b;
    const auto davanti = [&]() -> frmOptions& {
        return dynamic_cast<frmOptions&>(*b.finestre.Davanti());
    };
    b.Clicca(3, "mnuPromemoria");
    b.Clicca(4, "cmdSel1");
    b.Clicca(5, "Ton9");
    b.Quando(6, [&] {
        EXPECT_EQ(davanti().Pagina, 2);
        EXPECT_TRUE(davanti().Img[8].Visible());
    });
    b.Clicca(7, "Ton16");
    b.Quando(8, [&] { EXPECT_TRUE(davanti().Gradi.Visible()); });
    b.Clicca(9, "cmdSel2");
    b.Quando(10, [&] { EXPECT_EQ(davanti().Pagina, 3); });
    b.Chiudi(11);
    b.Clicca(12, "mnuPromemoria");
    b.Quando(13, [&] {
        EXPECT_EQ(davanti().Pagina, 1);
        EXPECT_TRUE(davanti().Frame1[0].Visible());
        EXPECT_FALSE(davanti().Frame1[2].Visible());
        EXPECT_TRUE(davanti().Img[0].Visible());
        EXPECT_FALSE(davanti().Gradi.Visible());
    });
    b.Vai(14);
}

TEST(Promemoria, ItIsSilent) {
    BancoPromemoria b;
    const auto prima = b.uscita.messaggi.size();
    for (std::size_t i = 1; i <= gradi; ++i)
        b.f.Ton_Click(i);
    for (int i = 0; i < 3; ++i)
        b.f.cmdSel_Click(i);
    EXPECT_EQ(b.uscita.messaggi.size(), prima);
}

}  // namespace corvana::prova
