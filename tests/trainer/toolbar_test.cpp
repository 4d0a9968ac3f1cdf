// The toolbar, what sinks or lights up under the pointer, and the painted backgrounds.
#include <gtest/gtest.h>

#include "tests/trainer/main_window_rig.h"

namespace corvana::prova {

namespace {

using Nomi = std::vector<std::string>;

struct BancoBarra : BancoPrincipale {
    /// The pointer moves on to that control ("" is the window's own face).
    void Passa(double t, const std::string& controllo) { Fa(t, Fatto::MouseMove, controllo); }
    void Vai(double fine) {
        Fine(fine);
        EXPECT_TRUE(Avvia());
    }
};

/// Twips by which the control lies away from where it was laid.
int Affondo(const Controllo& controllo, const CorvanaMainF& intatta) {
    const Controllo* riposo = intatta.Trova(controllo.Name);
    const int giu = controllo.Top() - riposo->Top();
    EXPECT_EQ(controllo.Left() - riposo->Left(), giu) << controllo.Name;
    return giu;
}

}  // namespace

TEST(BarraStrumenti, EachButtonDoesWhatItsMenuEntryDoes) {
    BancoBarra b;
    for (int i = 1; i <= 7; ++i)
        b.Clicca(2 + i, "ToolButton" + std::to_string(i));
    b.Vai(11);
    EXPECT_EQ(b.aperte, (Nomi{"frmInto", "frmComposer", "metronomo alterna", "frmOptions",
                              "frmStrum", "aiuto"}));
    EXPECT_EQ(b.globali.ContestoInto, 3);
    EXPECT_TRUE(b.globali.PaginaInto[0]);
    EXPECT_EQ(b.finestra.stato.Modo, "automatico");
}

TEST(BarraStrumenti, TheSixthButtonFlipsTheMode) {
    BancoBarra b;
    b.Clicca(3, "ToolButton6");
    b.Quando(3.5, [&] { EXPECT_TRUE(b.finestra.menu.mnuAutomatico.Checked()); });
    b.Clicca(4, "ToolButton6");
    b.Vai(5);
    EXPECT_TRUE(b.finestra.menu.mnuNormale.Checked());
    EXPECT_EQ(b.finestra.stato.Modo, "normale");
}

TEST(BarraStrumenti, DuringARunNoButtonActs) {
    BancoBarra b;
    b.Clicca(3, "Start");
    for (int i = 1; i <= 7; ++i)
        b.Clicca(3 + i, "ToolButton" + std::to_string(i));
    b.Vai(11);
    EXPECT_TRUE(b.aperte.empty());
    EXPECT_EQ(b.finestra.stato.Modo, "normale");
}

TEST(BarraStrumenti, TheFirstIsGuardedByTheExercisesAndTheOthersByTheResources) {
    for (const bool esercizi : {true, false}) {
        BancoBarra b;
        (esercizi ? b.finestra.menu.es : b.finestra.menu.Risorse).Enabled = false;
        for (int i = 1; i <= 7; ++i)
            b.finestra.barra.ToolButton_Click(i);
        EXPECT_EQ(b.aperte, esercizi ? (Nomi{"frmComposer", "metronomo alterna", "frmOptions",
                                             "frmStrum", "aiuto"})
                                     : Nomi{"frmInto"});
        EXPECT_EQ(b.finestra.stato.Modo, esercizi ? "automatico" : "normale");
    }
}

TEST(BarraStrumenti, TheStripBesideItHidesAndShowsIt) {
    BancoBarra b;
    b.Clicca(3, "ShToolbar");
    b.Quando(3.5, [&] { EXPECT_FALSE(b.finestra.barra.frToolBar.Visible()); });
    b.Clicca(4, "ToolButton2");
    b.Clicca(5, "ShToolbar");
    b.Vai(6);
    EXPECT_TRUE(b.finestra.barra.frToolBar.Visible());
    EXPECT_TRUE(b.aperte.empty());
}

TEST(Puntatore, AButtonSinksUnderItOnceAndComesBackWhenItLeaves) {
    BancoBarra b;
    const BancoPrincipale intatto;
    b.Passa(3, "ToolButton2");
    b.Passa(3.1, "ToolButton2");
    b.Quando(3.5,
             [&] { EXPECT_EQ(Affondo(b.finestra.barra.ToolButton[1], intatto.finestra), 10); });
    b.Passa(4, "");
    b.Vai(5);
    EXPECT_EQ(Affondo(b.finestra.barra.ToolButton[1], intatto.finestra), 0);
}

TEST(Puntatore, FromButtonToButtonOneAloneIsSunk) {
    BancoBarra b;
    const BancoPrincipale intatto;
    for (int i = 1; i <= 7; ++i)
        b.Passa(2 + i, "ToolButton" + std::to_string(i));
    b.Vai(10);
    for (int i = 0; i < 7; ++i)
        EXPECT_EQ(
            Affondo(b.finestra.barra.ToolButton.at(static_cast<std::size_t>(i)), intatto.finestra),
            i == 6 ? 10 : 0);
}

TEST(Puntatore, TheStavesTheRulerAndTheToolbarsFaceSetBackWhatIsSunk) {
    for (const char* dove : {"img", "Regolo", "frToolBar", ""}) {
        BancoBarra b;
        const BancoPrincipale intatto;
        b.Passa(3, "ToolButton4");
        b.Passa(4, dove);
        b.Vai(5);
        EXPECT_EQ(Affondo(b.finestra.barra.ToolButton[3], intatto.finestra), 0) << dove;
    }
}

TEST(Puntatore, TheExitsPictureSinksAndItsLabelTurnsRedAndBlueAgainWhicheverIsUnderIt) {
    for (const char* dove : {"cmdEsci", "cmdEscibg"}) {
        BancoBarra b;
        const BancoPrincipale intatto;
        b.Passa(3, dove);
        b.Quando(3.5, [&] {
            EXPECT_EQ(Affondo(b.finestra.cmdEscibg, intatto.finestra), 10) << dove;
            EXPECT_EQ(b.finestra.cmdEsci.ForeColor(), 255) << dove;
        });
        b.Passa(4, "img");
        b.Vai(5);
        EXPECT_EQ(Affondo(b.finestra.cmdEscibg, intatto.finestra), 0) << dove;
        EXPECT_EQ(b.finestra.cmdEsci.ForeColor(), 0xFF0000) << dove;
    }
}

TEST(Puntatore, TheHelpButtonShowsABorderUnderIt) {
    BancoBarra b;
    b.Passa(3, "lblMn");
    b.Quando(3.5, [&] { EXPECT_EQ(b.finestra.pentagramma.lblMn.BorderStyle(), 1); });
    b.Passa(4, "img");
    b.Vai(5);
    EXPECT_EQ(b.finestra.pentagramma.lblMn.BorderStyle(), 0);
}

TEST(Puntatore, TheStripLightsUpUnderIt) {
    const Sfumatura accesa{Rgb(0, 197, 218), Rgb(213, 255, 255), true, true};
    const Sfumatura spenta{Rgb(154, 0, 223), Rgb(255, 213, 255), true, true};
    BancoBarra b;
    b.Quando(2.9, [&] { EXPECT_EQ(b.finestra.barra.ShToolbar.Sfondo(), spenta); });
    b.Passa(3, "ShToolbar");
    b.Quando(3.5, [&] { EXPECT_EQ(b.finestra.barra.ShToolbar.Sfondo(), accesa); });
    b.Passa(4, "");
    b.Vai(5);
    EXPECT_EQ(b.finestra.barra.ShToolbar.Sfondo(), spenta);
}

TEST(Puntatore, ButtonsThatOpenAWindowComeBackBeforeTheyAct) {
    for (const int numero : {1, 2, 4, 5, 7}) {
        BancoBarra b;
        const BancoPrincipale intatto;
        const std::string nome = "ToolButton" + std::to_string(numero);
        b.Passa(3, nome);
        b.Clicca(4, nome);
        b.Vai(5);
        EXPECT_EQ(Affondo(*b.finestra.Trova(nome), intatto.finestra), 0) << nome;
        EXPECT_EQ(b.aperte.size(), 1U);
    }
}

TEST(Puntatore, TheOtherTwoStaySunk) {
    for (const char* nome : {"ToolButton3", "ToolButton6"}) {
        BancoBarra b;
        const BancoPrincipale intatto;
        b.Passa(3, nome);
        b.Clicca(4, nome);
        b.Vai(5);
        EXPECT_EQ(Affondo(*b.finestra.Trova(nome), intatto.finestra), 10) << nome;
    }
}

TEST(Sfondi, AreThoseOfTheTable) {
    BancoBarra b;
    b.Vai(3);
    const std::vector<std::pair<std::string, Sfumatura>> attesi = {
        {"PercMet", {Rgb(0, 197, 218), Rgb(213, 255, 255), true, true}},
        {"PercBg", {Rgb(175, 255, 26), Rgb(255, 95, 85), false, false}},
        {"bgConta", {Rgb(239, 135, 31), Rgb(255, 228, 255), false, true}},
        {"bgRis0", {Rgb(140, 245, 5), Rgb(255, 255, 0), false, true}},
        {"bgRis1", {Rgb(255, 95, 255), Rgb(255, 255, 255), false, true}},
        {"bgRis2", {Rgb(255, 165, 69), Rgb(255, 245, 255), false, true}},
        {"bgRis3", {Rgb(117, 239, 255), Rgb(197, 255, 255), false, true}},
        {"bgRis4", {Rgb(207, 213, 207), Rgb(245, 255, 186), false, true}},
        {"ShToolbar", {Rgb(154, 0, 223), Rgb(255, 213, 255), true, true}}};
    for (const auto& [nome, sfumatura] : attesi)
        EXPECT_EQ(b.finestra.Trova(nome)->Sfondo(), sfumatura) << nome;
}

}  // namespace corvana::prova
