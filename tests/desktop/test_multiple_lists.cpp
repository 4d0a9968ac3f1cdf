// Lists in which several rows can be selected, with the mouse, the keyboard and a screen reader.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QListWidget>
#include <QTest>

#include "tests/desktop/stage.h"

namespace corvana::prova {
namespace {

/// Its second list takes several rows, and the diary tells them at each click.
struct PalcoMultiplo : Palco {
    PalcoMultiplo()
        : Palco([](FormDiProva& form) {
              form.multipla.Visible = true;
              form.multipla.List = Righe{"a", "b", "c", "d", "e"};
          }) {}

    QListWidget& Lista() { return Trova(scrivania, "multipla").Come<QListWidget>(); }
    QPoint Posto(int riga) { return Lista().visualItemRect(Lista().item(riga)).center(); }
    void Clicca(int riga, Qt::KeyboardModifiers tasti = {}) {
        QTest::mouseClick(Lista().viewport(), Qt::LeftButton, tasti, Posto(riga));
    }
    void Raddoppia(int riga, Qt::KeyboardModifiers tasti = {}) {
        QTest::mouseDClick(Lista().window()->windowHandle(), Qt::LeftButton, tasti,
                           Lista().viewport()->mapTo(Lista().window(), Posto(riga)));
    }
    void Batte(Qt::Key tasto, Qt::KeyboardModifiers tasti = {}) { Batti(scrivania, tasto, tasti); }
    /// What the logic has.
    NumeriRiga Scelte() {
        NumeriRiga scelte;
        NellaLogica([&](FormDiProva& form) { scelte = form.multipla.Selected(); });
        return scelte;
    }
    /// What the screen shows.
    NumeriRiga Mostrate() {
        NumeriRiga mostrate;
        for (int i = 0; i < Lista().count(); ++i)
            if (Lista().item(i)->isSelected()) mostrate.push_back(i);
        return mostrate;
    }
};

TEST(ListaMultipla, AClickSelectsOneRowAloneAndWithCtrlOneMoreOrOneLess) {
    PalcoMultiplo palco;
    palco.Clicca(1);
    EXPECT_EQ(palco.Scelte(), (NumeriRiga{1}));
    palco.Clicca(3, Qt::ControlModifier);
    EXPECT_EQ(palco.Scelte(), (NumeriRiga{1, 3}));
    palco.Clicca(1, Qt::ControlModifier);
    EXPECT_EQ(palco.Scelte(), (NumeriRiga{3}));
    palco.Clicca(0);
    EXPECT_EQ(palco.Scelte(), (NumeriRiga{0}));
    EXPECT_EQ(palco.Diario(), (Righe{"multipla 1", "multipla 1 3", "multipla 3", "multipla 0"}));
}

TEST(ListaMultipla, AClickWithShiftSelectsAllFromTheLastOneOn) {
    PalcoMultiplo palco;
    palco.Clicca(1);
    palco.Clicca(4, Qt::ShiftModifier);
    EXPECT_EQ(palco.Scelte(), (NumeriRiga{1, 2, 3, 4}));
    palco.Clicca(0, Qt::ShiftModifier);
    EXPECT_EQ(palco.Scelte(), (NumeriRiga{0, 1}));
}

TEST(ListaMultipla, EachClickIsToldAtOnceWithTheRowThatWasTouched) {
    PalcoMultiplo palco;
    palco.Clicca(1);
    palco.Clicca(3, Qt::ControlModifier);
    palco.Clicca(1, Qt::ControlModifier);
    palco.NellaLogica([](FormDiProva& form) { EXPECT_EQ(form.multipla.ListIndex(), 1); });
}

TEST(ListaMultipla, TheArrowKeysSelectOneRowAndWithShiftMore) {
    PalcoMultiplo palco;
    palco.Lista().setFocus();
    palco.Batte(Qt::Key_Down);
    EXPECT_EQ(palco.Scelte(), (NumeriRiga{0}));
    palco.Batte(Qt::Key_Down);
    palco.Batte(Qt::Key_Down, Qt::ShiftModifier);
    palco.Batte(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(palco.Scelte(), (NumeriRiga{1, 2, 3}));
    palco.Batte(Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(palco.Scelte(), (NumeriRiga{1, 2}));
    EXPECT_EQ(palco.Mostrate(), (NumeriRiga{1, 2}));
}

TEST(ListaMultipla, ControlAndTheArrowsGoOnWithoutSelectingAndSpaceSelectsTheRowThere) {
    PalcoMultiplo palco;
    palco.Clicca(0);
    palco.Lista().setFocus();
    palco.Batte(Qt::Key_Down, Qt::ControlModifier);
    palco.Batte(Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(palco.Scelte(), (NumeriRiga{0}));
    palco.Batte(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(palco.Scelte(), (NumeriRiga{0, 2}));
    palco.Batte(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(palco.Scelte(), (NumeriRiga{0}));
    palco.Batte(Qt::Key_Down, Qt::ControlModifier);
    palco.Batte(Qt::Key_Space);
    EXPECT_EQ(palco.Scelte(), (NumeriRiga{0, 3})) << "without Ctrl one more too";
}

TEST(ListaMultipla, ControlAndASelectAllRowsAndOneKeyIsToldOnce) {
    PalcoMultiplo palco;
    palco.Lista().setFocus();
    palco.Batte(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(palco.Scelte(), (NumeriRiga{0, 1, 2, 3, 4}));
    palco.Batte(Qt::Key_Down);
    EXPECT_EQ(palco.Scelte(), (NumeriRiga{0}));
    palco.Diario();
    palco.Batte(Qt::Key_End);
    EXPECT_EQ(palco.Scelte(), (NumeriRiga{4}));
    Righe clic;
    for (const std::string& riga : palco.Diario())
        if (riga.starts_with("multipla")) clic.push_back(riga);
    EXPECT_EQ(clic, (Righe{"multipla 4"}));
}

TEST(ListaMultipla, ADoubleClickOnOneOfSeveralRowsMeansThemAll) {
    PalcoMultiplo palco;
    palco.Clicca(0);
    palco.Clicca(2, Qt::ControlModifier);
    palco.Clicca(4, Qt::ControlModifier);
    palco.Diario();
    palco.Raddoppia(2);
    EXPECT_EQ(palco.Scelte(), (NumeriRiga{0, 2, 4}));
    EXPECT_EQ(palco.Diario(), (Righe{"multipla 2", "multipla 0 2 4", "multipla doppio"}))
        << "all are known before the double click is";
    EXPECT_EQ(palco.Mostrate(), (NumeriRiga{0, 2, 4}));
}

TEST(ListaMultipla, ADoubleClickOnAnotherRowMeansThatOneAlone) {
    PalcoMultiplo palco;
    palco.Clicca(0);
    palco.Clicca(2, Qt::ControlModifier);
    palco.Raddoppia(3);
    EXPECT_EQ(palco.Scelte(), (NumeriRiga{3}));
}

TEST(ListaMultipla, WithCtrlADoubleClickJoinsTheRowToTheOthersWhateverItWas) {
    for (const int riga : {2, 3}) {
        PalcoMultiplo palco;
        palco.Clicca(0);
        palco.Clicca(2, Qt::ControlModifier);
        palco.Raddoppia(riga, Qt::ControlModifier);
        EXPECT_EQ(palco.Scelte(), riga == 2 ? (NumeriRiga{0, 2}) : (NumeriRiga{0, 2, 3}));
        EXPECT_EQ(palco.Mostrate(), palco.Scelte());
    }
}

TEST(ListaMultipla, TwoQuickPressesOnItAndOnAnotherControlAreNoDoubleClick) {
    PalcoMultiplo palco;
    palco.Clicca(0);
    palco.Clicca(2, Qt::ControlModifier);
    palco.Clicca(4);
    palco.Diario();
    QWindow& finestra = *palco.Lista().window()->windowHandle();
    const QPoint altrove = Trova(palco.scrivania, "bottone").NellaFinestra(QPoint(5, 5));
    const QPoint riga = palco.Lista().viewport()->mapTo(palco.Lista().window(), palco.Posto(2));
    QTest::mousePress(&finestra, Qt::LeftButton, {}, altrove);
    QTest::mouseRelease(&finestra, Qt::LeftButton, {}, altrove);
    QTest::mousePress(&finestra, Qt::LeftButton, {}, riga);
    QTest::mouseRelease(&finestra, Qt::LeftButton, {}, riga);
    EXPECT_EQ(palco.Scelte(), (NumeriRiga{2}));
}

TEST(ListaMultipla, TakingTheFocusSelectsNothingAndKeepsWhatIsSelected) {
    PalcoMultiplo palco;
    palco.Lista().setFocus(Qt::TabFocusReason);
    EXPECT_EQ(palco.Scelte(), NumeriRiga{});
    palco.Clicca(0);
    palco.Clicca(2, Qt::ControlModifier);
    Trova(palco.scrivania, "bottone").setFocus();
    palco.Lista().setFocus(Qt::TabFocusReason);
    EXPECT_EQ(palco.Scelte(), (NumeriRiga{0, 2}));
    EXPECT_EQ(palco.Mostrate(), (NumeriRiga{0, 2}));
}

TEST(ListaMultipla, NewRowsKeepTheSelectionOnTheScreenToo) {
    PalcoMultiplo palco;
    palco.Clicca(1);
    palco.Clicca(3, Qt::ControlModifier);
    palco.NellaLogica([](FormDiProva& form) { form.multipla.AddItem("f"); });
    EXPECT_EQ(palco.Lista().count(), 6);
    EXPECT_EQ(palco.Mostrate(), (NumeriRiga{1, 3}));
    palco.NellaLogica([](FormDiProva& form) { form.multipla.Clear(); });
    EXPECT_EQ(palco.Lista().count(), 0);
}

TEST(ListaMultipla, ASelectionByTheLogicIsShownAndNotToldBack) {
    PalcoMultiplo palco;
    palco.NellaLogica([](FormDiProva& form) { form.multipla.Selected = NumeriRiga{1, 4}; });
    EXPECT_EQ(palco.Mostrate(), (NumeriRiga{1, 4}));
    EXPECT_EQ(palco.Diario(), Righe{});
}

TEST(ListaMultipla, AScreenReaderIsToldThatSeveralRowsCanBeSelectedAndWhichAre) {
    PalcoMultiplo palco;
    palco.Clicca(1);
    palco.Clicca(3, Qt::ControlModifier);
    QAccessibleInterface* lista = QAccessible::queryAccessibleInterface(&palco.Lista());
    ASSERT_TRUE(lista);
    EXPECT_EQ(lista->role(), QAccessible::List);
    for (int i = 0; i < 5; ++i) {
        const QAccessible::State stato = lista->child(i)->state();
        EXPECT_TRUE(stato.multiSelectable || stato.extSelectable) << i;
        EXPECT_EQ(static_cast<bool>(stato.selected), i == 1 || i == 3) << i;
    }
}

TEST(ListaMultipla, TheRowWhereTheKeysAreIsSeenWhetherItIsSelectedOrNot) {
    PalcoMultiplo palco;
    palco.Clicca(0);
    palco.Lista().setFocus();
    const QRect riga = palco.Lista().visualItemRect(palco.Lista().item(2));
    const auto foto = [&] { return palco.Lista().viewport()->grab(riga).toImage(); };
    Muovi(Trova(palco.scrivania, "bottone"), QPoint(1, 1));
    const QImage prima = foto();
    palco.Batte(Qt::Key_Down, Qt::ControlModifier);
    palco.Batte(Qt::Key_Down, Qt::ControlModifier);
    const QImage sopra = foto();
    EXPECT_NE(prima, sopra);
    palco.Batte(Qt::Key_Space, Qt::ControlModifier);
    const QImage scelta = foto();
    EXPECT_NE(sopra, scelta);
    palco.Batte(Qt::Key_Up, Qt::ControlModifier);
    EXPECT_NE(scelta, foto());
}

}  // namespace
}  // namespace corvana::prova
