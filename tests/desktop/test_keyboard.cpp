#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QWindow>

#include "tests/desktop/stage.h"

namespace corvana::prova {
namespace {

TEST(Tastiera, APressAndAReleaseReachTheWindowWhoeverHasTheFocus) {
    Palco palco;
    Trova(palco.scrivania, "bottone").setFocus();
    Batti(palco.scrivania, Qt::Key_D);
    Trova(palco.scrivania, "lista").setFocus();
    Batti(palco.scrivania, Qt::Key_1, Qt::KeypadModifier);
    EXPECT_EQ(palco.Diario(), (Righe{"giu 68", "su 68", "giu 97", "su 97"}));
}

void Ripeti(Scrivania& scrivania, QEvent::Type tipo, Qt::Key quale = Qt::Key_F) {
    QKeyEvent tasto(tipo, quale, {}, {}, true);
    QCoreApplication::sendEvent(scrivania.Davanti()->Finestra().windowHandle(), &tasto);
}

TEST(Tastiera, AHeldKeyRepeatsItsPressAndNotItsRelease) {
    Palco palco;
    Premi(palco.scrivania, Qt::Key_F);
    Ripeti(palco.scrivania, QEvent::KeyRelease);
    Ripeti(palco.scrivania, QEvent::KeyPress);
    Lascia(palco.scrivania, Qt::Key_F);
    EXPECT_EQ(palco.Diario(), (Righe{"giu 70", "giu 70 ripetuto", "su 70"}));
}

TEST(Tastiera, TheArrowsAreTheControlsThatTheTabKeyHasLedToAndElseThePrograms) {
    Palco palco;
    const auto freccia = [&] {
        palco.Diario();
        Batti(palco.scrivania, Qt::Key_Down);
        Righe detto = palco.Diario();
        std::erase_if(detto, [](const std::string& riga) { return !riga.ends_with(" 40"); });
        return detto;
    };
    const Righe tutta{"giu 40", "su 40"};
    for (const char* nome : {"lista", "barra", "combo", "casella"}) {
        Trova(palco.scrivania, nome).setFocus(Qt::MouseFocusReason);
        EXPECT_EQ(freccia(), tutta) << nome;
        for (int passi = 0; passi == 0 || !Trova(palco.scrivania, nome).hasFocus(); ++passi)
            Batti(palco.scrivania, Qt::Key_Tab);
        EXPECT_EQ(freccia(), Righe{}) << nome;
    }
    for (int passi = 0; passi == 0 || !Trova(palco.scrivania, "toccabile").hasFocus(); ++passi)
        Batti(palco.scrivania, Qt::Key_Tab);
    EXPECT_EQ(freccia(), tutta);
}

TEST(Tastiera, AReleaseThatComesAfterTheKeyboardWasLostIsNotTold) {
    Palco palco;
    Premi(palco.scrivania, Qt::Key_D);
    QWidget altra;
    altra.show();
    altra.activateWindow();
    ASSERT_TRUE(Aspetta([&] { return altra.isActiveWindow(); }));
    palco.scrivania.Davanti()->Finestra().activateWindow();
    AspettaFinestra(palco.scrivania, "FormDiProva");
    Lascia(palco.scrivania, Qt::Key_D);
    EXPECT_EQ(palco.Diario(), (Righe{"giu 68"}));
}

TEST(Tastiera, KeysInAnOpenMenuAreTheMenus) {
    Palco palco;
    auto& sbarra = *palco.scrivania.Davanti()->Finestra().menuBar();
    sbarra.setActiveAction(&TrovaVoce(palco.scrivania, "File"));
    ASSERT_TRUE(Aspetta([] { return QApplication::activePopupWidget() != nullptr; }));
    palco.Diario();
    Premi(palco.scrivania, Qt::Key_D);
    QApplication::activePopupWidget()->close();
    ASSERT_TRUE(Aspetta([] { return QApplication::activePopupWidget() == nullptr; }));
    Lascia(palco.scrivania, Qt::Key_D);
    EXPECT_EQ(palco.Diario(), Righe{});
}

TEST(Tastiera, AKeyThatClosedAMenuIsntPressedByBeingHeld) {
    Palco palco;
    auto& sbarra = *palco.scrivania.Davanti()->Finestra().menuBar();
    sbarra.setActiveAction(&TrovaVoce(palco.scrivania, "File"));
    ASSERT_TRUE(Aspetta([] { return QApplication::activePopupWidget() != nullptr; }));
    palco.Diario();
    Premi(palco.scrivania, Qt::Key_Escape);
    ASSERT_TRUE(Aspetta([] { return QApplication::activePopupWidget() == nullptr; }));
    Ripeti(palco.scrivania, QEvent::KeyPress, Qt::Key_Escape);
    Lascia(palco.scrivania, Qt::Key_Escape);
    EXPECT_EQ(palco.Diario(), Righe{});
}

TEST(Tastiera, TheKeypadWithoutNumberLockMovesNeitherFocusNorSlider) {
    Palco palco;
    QWidget& bottone = Trova(palco.scrivania, "bottone");
    bottone.setFocus();
    Batti(palco.scrivania, Qt::Key_Down, Qt::KeypadModifier);
    EXPECT_TRUE(bottone.hasFocus());
    EXPECT_EQ(palco.Diario(), (Righe{"giu 98", "su 98"}));
}

TEST(Tastiera, FTenOpensTheFirstMenuThatCanBeUsed) {
    Palco palco([](FormDiProva& form) { form.File.Enabled = true; });
    Batti(palco.scrivania, Qt::Key_F10);
    ASSERT_TRUE(Aspetta([] { return QApplication::activePopupWidget() != nullptr; }));
    QApplication::activePopupWidget()->close();
    EXPECT_EQ(palco.Diario(), (Righe{"File click"}));
}

TEST(Tastiera, EnterAndSpacePushTheButtonThatHasTheFocus) {
    Palco palco;
    Trova(palco.scrivania, "secondo").setFocus();
    Batti(palco.scrivania, Qt::Key_Return);
    Batti(palco.scrivania, Qt::Key_Space);
    EXPECT_EQ(palco.Diario(),
              (Righe{"giu 13", "secondo click", "su 13", "giu 32", "su 32", "secondo click"}));
}

}  // namespace
}  // namespace corvana::prova
