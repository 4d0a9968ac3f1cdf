#include <gtest/gtest.h>

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QWindow>

#include "tests/desktop/stage.h"

namespace corvana::prova {
namespace {

TEST(Menu, TheBarAndItsMenusHoldTheEntriesInTheirOrder) {
    Palco palco;
    const auto barra = palco.scrivania.Davanti()->Finestra().menuBar()->actions();
    ASSERT_EQ(barra.size(), 2);
    EXPECT_EQ(barra[0]->text(), "&File");
    EXPECT_EQ(barra[1]->text(), "A&iuto");
    const auto voci = barra[0]->menu()->actions();
    ASSERT_EQ(voci.size(), 3);
    EXPECT_EQ(voci[0]->text(), "&Apri");
    EXPECT_TRUE(voci[1]->isSeparator());
    ASSERT_TRUE(voci[2]->menu());
    EXPECT_EQ(voci[2]->menu()->actions().size(), 1);
}

TEST(Menu, ChoosingAnEntryIsAClickAndLeavesTheCheckToTheLogic) {
    Palco palco;
    QAction& apri = TrovaVoce(palco.scrivania, "Apri");
    EXPECT_TRUE(apri.isChecked());
    apri.trigger();
    EXPECT_EQ(palco.Diario(), (Righe{"Apri click"}));
    EXPECT_TRUE(apri.isChecked());
    palco.NellaLogica([](FormDiProva& form) { form.Apri.Checked = false; });
    EXPECT_FALSE(apri.isChecked());
}

TEST(Menu, OpeningAMenuClicksItsHeader) {
    Palco palco;
    QMenu* altro = TrovaVoce(palco.scrivania, "Altro").menu();
    altro->popup({});
    ASSERT_TRUE(Aspetta([&] { return altro->isVisible(); }));
    altro->close();
    EXPECT_EQ(palco.Diario(), (Righe{"Altro click"}));
}

TEST(Menu, DisabledAndRenamedEntriesChangeAtOnce) {
    Palco palco;
    palco.NellaLogica([](FormDiProva& form) {
        form.File.Enabled = false;
        form.Uno.Caption = "&One";
        form.Apri.Visible = false;
    });
    EXPECT_FALSE(TrovaVoce(palco.scrivania, "File").isEnabled());
    EXPECT_EQ(TrovaVoce(palco.scrivania, "Uno").text(), "&One");
    EXPECT_FALSE(TrovaVoce(palco.scrivania, "Apri").isVisible());
}

TEST(Menu, AHeaderCanBeChecked) {
    Palco palco([](FormDiProva& form) { form.Altro.Checked = true; });
    EXPECT_TRUE(TrovaVoce(palco.scrivania, "Altro").isChecked());
}

TEST(Menu, AWindowWithoutEntriesHasNoBar) {
    Palco palco;
    palco.Ordina([](FormDiProva& form) { form.finestre.MostraModale(form.sopra); });
    AspettaFinestra(palco.scrivania, "FormSopra");
    EXPECT_FALSE(palco.scrivania.Davanti()->Finestra().menuBar()->isVisible());
    Clicca(palco.scrivania, "ok");
    AspettaFinestra(palco.scrivania, "FormDiProva");
}

void ConMenu(FormDiProva& form) {
    form.MouseDown = [&form](const Evento& e) {
        if (e.codice == bottoneDestro) form.PopupMenu(form.contestuale);
    };
}

/// Where no control lies.
QPoint Terra(Palco& palco) {
    return Trova(palco.scrivania, "scritta").NellaFinestra({2, -5});
}

QMenu* MenuAperto() {
    Aspetta([] { return QApplication::activePopupWidget() != nullptr; });
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

TEST(MenuContestuale, StandsInNoBar) {
    Palco palco;
    for (const QAction* voce : palco.scrivania.Davanti()->Finestra().menuBar()->actions()) {
        EXPECT_NE(voce->objectName(), "contestuale");
        EXPECT_NE(voce->objectName(), "Copia");
    }
    EXPECT_EQ(TrovaVoce(palco.scrivania, "Copia").text(), "&Copia");
}

TEST(MenuContestuale, OpensAtThePointerAndTellsWhatWasChosen) {
    Palco palco(ConMenu);
    QWindow& finestra = *palco.scrivania.Davanti()->Finestra().windowHandle();
    const QPoint punto = finestra.mapToGlobal(Terra(palco));
    QCursor::setPos(punto);
    QTest::mousePress(&finestra, Qt::RightButton, {}, Terra(palco));
    QMenu* menu = MenuAperto();
    ASSERT_TRUE(menu);
    EXPECT_EQ(menu->pos(), punto);
    QTest::mouseRelease(menu, Qt::RightButton, {}, QPoint(-3, -3));
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->rect().center());
    EXPECT_FALSE(menu->isVisible());
    EXPECT_EQ(palco.Diario(), (Righe{"contestuale click", "Copia click"}));
}

TEST(MenuContestuale, TheKeyboardAsksForItAtTheFocus) {
    using Tasto = std::pair<Qt::Key, Qt::KeyboardModifiers>;
    for (const auto& [tasto, maiusc] :
         {Tasto{Qt::Key_Menu, Qt::NoModifier}, Tasto{Qt::Key_F10, Qt::ShiftModifier}}) {
        Palco palco(ConMenu);
        QWidget& secondo = Trova(palco.scrivania, "secondo");
        secondo.setFocus();
        QCursor::setPos(3, 3);
        Batti(palco.scrivania, tasto, maiusc);
        QMenu* menu = MenuAperto();
        ASSERT_TRUE(menu) << tasto;
        EXPECT_TRUE(QRect(secondo.mapToGlobal(QPoint()), secondo.size()).contains(menu->pos()));
        QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, Qt::Key_Return);
        const Righe diario = palco.Diario();
        EXPECT_EQ(std::count(diario.begin(), diario.end(), "Copia click"), 1) << tasto;
        EXPECT_EQ(secondo.window()->focusWidget(), &secondo);
    }
}

TEST(MenuContestuale, ATextBoxKeepsItsOwn) {
    Palco palco(ConMenu);
    Trova(palco.scrivania, "casella").setFocus();
    Batti(palco.scrivania, Qt::Key_Menu);
    const Righe diario = palco.Diario();
    EXPECT_EQ(std::count(diario.begin(), diario.end(), "contestuale click"), 0);
}

TEST(MenuContestuale, ItsLettersGrowWithTheFace) {
    Palco palco(ConMenu);
    const auto alta = [&] {
        QTest::mouseClick(palco.scrivania.Davanti()->Finestra().windowHandle(), Qt::RightButton, {},
                          Terra(palco));
        QMenu* menu = MenuAperto();
        const std::pair misure(menu->fontMetrics().height(), menu->height());
        menu->close();
        palco.Diario();
        return misure;
    };
    const auto [lettere, altezza] = alta();
    Ingrandisci(*palco.scrivania.Davanti(), 2);
    const auto [lettereDoppie, altezzaDoppia] = alta();
    EXPECT_NEAR(lettereDoppie, 2 * lettere, 3);
    EXPECT_GT(altezzaDoppia, altezza * 8 / 5);
}

}  // namespace
}  // namespace corvana::prova
