// What the space bar and Enter are to a painted control, by what it listens to.
#include <gtest/gtest.h>

#include "tests/desktop/stage.h"

namespace corvana::prova {
namespace {

using Gestore = void (*)(FormDiProva&);

void SoloPressione(FormDiProva& form) {
    form.toccabile.Click = nullptr;
    form.toccabile.DblClick = nullptr;
}

void SoloDoppio(FormDiProva& form) {
    form.toccabile.Click = nullptr;
    form.toccabile.MouseDown = form.toccabile.MouseUp = nullptr;
    form.toccabile.stile = "pulsante";
}

/// What reached it of a key that went down and up.
Righe Battuto(Palco& palco, Qt::Key tasto, Qt::KeyboardModifiers modificatori = {}) {
    Trova(palco.scrivania, "toccabile").setFocus(Qt::TabFocusReason);
    palco.Diario();
    Batti(palco.scrivania, tasto, modificatori);
    Righe sue = palco.Diario();
    std::erase_if(sue, [](const std::string& riga) { return !riga.starts_with("toccabile"); });
    return sue;
}

TEST(TastoCheAziona, OneThatHearsOnlyTheButtonIsAStopAndHeldAsLongAsTheKey) {
    Palco palco(SoloPressione);
    const Cosa toccabile = Trova(palco.scrivania, "toccabile");
    EXPECT_TRUE(toccabile.Fermata());
    for (const Qt::Key tasto : {Qt::Key_Space, Qt::Key_Return}) {
        toccabile.setFocus(Qt::TabFocusReason);
        palco.Diario();
        Premi(palco.scrivania, tasto);
        EXPECT_EQ(palco.Diario().back(), "toccabile giu");
        Lascia(palco.scrivania, tasto);
        EXPECT_EQ(palco.Diario().back(), "toccabile su");
    }
}

TEST(TastoCheAziona, WhatIsHeldComesUpWithoutAClickWhenTheFocusGoes) {
    Palco palco;
    Trova(palco.scrivania, "toccabile").setFocus(Qt::TabFocusReason);
    Premi(palco.scrivania, Qt::Key_Space);
    Trova(palco.scrivania, "bottone").setFocus();
    EXPECT_EQ(palco.Diario(), (Righe{"giu 32", "toccabile giu", "toccabile su"}));
}

TEST(TastoCheAziona, TheLastKeyThatWentDownHoldsIt) {
    Palco palco(SoloPressione);
    Trova(palco.scrivania, "toccabile").setFocus(Qt::TabFocusReason);
    Premi(palco.scrivania, Qt::Key_Space);
    Premi(palco.scrivania, Qt::Key_Return);
    Lascia(palco.scrivania, Qt::Key_Space);
    palco.Diario();
    Lascia(palco.scrivania, Qt::Key_Return);
    EXPECT_EQ(palco.Diario(), (Righe{"su 13", "toccabile su"}));
}

TEST(TastoCheAziona, OneThatHearsDoubleClicksAloneGetsThem) {
    Palco palco(SoloDoppio);
    EXPECT_TRUE(Trova(palco.scrivania, "toccabile").Fermata());
    EXPECT_EQ(Battuto(palco, Qt::Key_Return), Righe{"toccabile doppio"});
    EXPECT_EQ(Battuto(palco, Qt::Key_Space), Righe{"toccabile doppio"});
}

TEST(TastoCheAziona, OneThatLooksLikeNoButtonIsNoStopForADoubleClickAlone) {
    Palco palco([](FormDiProva& form) {
        SoloDoppio(form);
        form.toccabile.stile = "carta";
    });
    EXPECT_FALSE(Trova(palco.scrivania, "toccabile").Fermata());
}

TEST(TastoCheAziona, ShiftAndEnterAreADoubleClickWhereThereAreClicksToo) {
    Palco palco;
    EXPECT_EQ(Battuto(palco, Qt::Key_Return, Qt::ShiftModifier), Righe{"toccabile doppio"});
}

TEST(TastoCheAziona, OnePressIsNoDoubleClickOnWhatHearsTheButtonAndDoubleClicks) {
    Palco palco([](FormDiProva& form) { form.toccabile.Click = nullptr; });
    EXPECT_EQ(Battuto(palco, Qt::Key_Space), (Righe{"toccabile giu", "toccabile su"}));
    palco.Diario();
    Trova(palco.scrivania, "toccabile")
        .PerLettore()
        ->actionInterface()
        ->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(palco.Diario(), (Righe{"toccabile giu", "toccabile su"}));
    EXPECT_EQ(Battuto(palco, Qt::Key_Return, Qt::ShiftModifier), Righe{"toccabile doppio"});
}

TEST(TastoCheAziona, AScreenReaderPressesItAsTheMouseWould) {
    const auto preme = [](Gestore prepara) {
        Palco palco(prepara);
        QAccessibleInterface* lettore = Trova(palco.scrivania, "toccabile").PerLettore();
        EXPECT_EQ(lettore->role(), QAccessible::PushButton);
        lettore->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        return palco.Diario();
    };
    EXPECT_EQ(preme(SoloPressione), (Righe{"toccabile giu", "toccabile su"}));
    EXPECT_EQ(preme(SoloDoppio), Righe{"toccabile doppio"});
}

TEST(TastoCheAziona, TheMouseClicksNothingOnOneThatHearsNoClick) {
    Palco palco(SoloPressione);
    Clicca(palco.scrivania, "toccabile");
    EXPECT_EQ(palco.Diario(), (Righe{"toccabile giu", "toccabile su"}));
}

}  // namespace
}  // namespace corvana::prova
