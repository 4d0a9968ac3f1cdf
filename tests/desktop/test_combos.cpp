#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QMainWindow>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

#include "desktop/combo_view.h"
#include "desktop/theme.h"
#include "tests/desktop/stage.h"

namespace corvana::prova {
namespace {

QComboBox& ComboDi(Palco& palco) {
    return Trova(palco.scrivania, "combo").Come<QComboBox>();
}

bool Aperta() {
    return Aspetta([] { return QApplication::activePopupWidget() != nullptr; });
}

bool Chiusa() {
    return Aspetta([] { return QApplication::activePopupWidget() == nullptr; });
}

/// Opens the rows from the keyboard, and forgets what that has told.
void Apri(Palco& palco) {
    ComboDi(palco).setFocus();
    Batti(palco.scrivania, Qt::Key_F4);
    if (!Aperta()) throw std::logic_error("no rows dropped down");
    palco.Diario();
}

void CliccaRiga(QComboBox& combo, int riga) {
    const QModelIndex indice = combo.model()->index(riga, 0);
    Clicca(*combo.view()->viewport(), combo.view()->visualRect(indice).center());
}

TEST(Combo, ChoosingARowIsAClickOfThatRow) {
    Palco palco;
    Apri(palco);
    CliccaRiga(ComboDi(palco), 2);
    EXPECT_TRUE(Chiusa());
    EXPECT_EQ(palco.Diario(), (Righe{"combo click"}));
    palco.NellaLogica([](FormDiProva& form) { EXPECT_EQ(form.combo.Text(), "La minore"); });
}

TEST(Combo, ChoosingTheChosenRowIsAClickToo) {
    Palco palco;
    palco.NellaLogica([](FormDiProva& form) { form.combo.ListIndex = 1; });
    Apri(palco);
    CliccaRiga(ComboDi(palco), 1);
    EXPECT_EQ(palco.Diario(), (Righe{"combo click"}));
}

TEST(Combo, TheMouseOpensItAndGivesItTheFocus) {
    Palco palco;
    Clicca(palco.scrivania, "combo");
    ASSERT_TRUE(Aperta());
    QApplication::activePopupWidget()->close();
    EXPECT_TRUE(ComboDi(palco).hasFocus());
    EXPECT_EQ(palco.Diario(), Righe{});
}

TEST(Combo, TheArrowKeysChooseWhileItIsClosed) {
    Palco palco;
    palco.NellaLogica([](FormDiProva& form) { form.combo.ListIndex = 0; });
    ComboDi(palco).setFocus();
    Batti(palco.scrivania, Qt::Key_Down);
    EXPECT_EQ(palco.Diario(), (Righe{"giu 40", "combo click", "su 40"}));
    EXPECT_EQ(ComboDi(palco).currentText(), "Fa maggiore");
}

TEST(Combo, TheKeyboardOpensItChoosesAndCloses) {
    Palco palco;
    palco.NellaLogica([](FormDiProva& form) { form.combo.ListIndex = 0; });
    Apri(palco);
    for (const Qt::Key tasto : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return})
        Batti(palco.scrivania, tasto);
    EXPECT_TRUE(Chiusa());
    EXPECT_EQ(palco.Diario(), (Righe{"combo click"})) << "or keys meant for the rows were told";
    palco.NellaLogica([](FormDiProva& form) { EXPECT_EQ(form.combo.ListIndex(), 2); });
}

TEST(Combo, EscClosesTheRowsAndNothingElse) {
    Palco palco;
    palco.NellaLogica([](FormDiProva& form) { form.combo.ListIndex = 1; });
    Apri(palco);
    Batti(palco.scrivania, Qt::Key_Down);
    Batti(palco.scrivania, Qt::Key_Escape);
    EXPECT_TRUE(Chiusa());
    EXPECT_EQ(palco.Diario(), Righe{});
    EXPECT_EQ(ComboDi(palco).currentIndex(), 1);
    EXPECT_TRUE(palco.scrivania.Davanti()->Finestra().isVisible());
    Batti(palco.scrivania, Qt::Key_Escape);
    EXPECT_EQ(palco.Diario(), (Righe{"giu 27", "su 27"}));
}

TEST(Combo, TheKeyThatOpensItClosesIt) {
    Palco palco;
    Apri(palco);
    Batti(palco.scrivania, Qt::Key_F4);
    EXPECT_TRUE(Chiusa());
    EXPECT_EQ(palco.Diario(), Righe{});
    Batti(palco.scrivania, Qt::Key_F4);
    EXPECT_TRUE(Aperta());
    QApplication::activePopupWidget()->close();
}

TEST(Combo, AKeyHeldWhileItOpensIsHeldNoMore) {
    Palco palco;
    ComboDi(palco).setFocus();
    Premi(palco.scrivania, Qt::Key_D);
    Premi(palco.scrivania, Qt::Key_F4);
    ASSERT_TRUE(Aperta());
    Lascia(palco.scrivania, Qt::Key_F4);
    Lascia(palco.scrivania, Qt::Key_D);
    QApplication::activePopupWidget()->close();
    EXPECT_EQ(palco.Diario(), (Righe{"giu 68", "giu 115"}));
}

TEST(Combo, ItSaysWhenItsRowsDropDown) {
    Palco palco;
    int numero = 0;
    palco.NellaLogica([&](FormDiProva& form) { numero = form.combo.Numero(); });
    auto& vista = dynamic_cast<VistaCombo&>(*palco.scrivania.Davanti()->Controllo(numero));
    int aperture = 0;
    vista.PonApertura([&] { ++aperture; });
    Apri(palco);
    Batti(palco.scrivania, Qt::Key_Escape);
    EXPECT_EQ(aperture, 1);
}

TEST(Combo, AChoiceByTheLogicIsShownAndNotToldBack) {
    Palco palco;
    EXPECT_EQ(ComboDi(palco).currentIndex(), -1) << "a row is chosen that nobody chose";
    palco.NellaLogica([](FormDiProva& form) { form.combo.ListIndex = 2; });
    EXPECT_EQ(ComboDi(palco).currentIndex(), 2);
    palco.NellaLogica([](FormDiProva& form) { form.combo.ListIndex = -1; });
    EXPECT_EQ(ComboDi(palco).currentIndex(), -1);
    EXPECT_EQ(palco.Diario(), Righe{});
}

TEST(Combo, AChoiceThatTheLogicDoesntTakeIsTakenBack) {
    Palco palco;
    palco.NellaLogica([](FormDiProva& form) { form.combo.ListIndex = 1; });
    Evento tardi;
    tardi.finestra = palco.scrivania.Davanti()->Identita();
    tardi.valore = 2;
    palco.NellaLogica([&](FormDiProva& form) {
        tardi.controllo = form.combo.Numero();
        form.combo.Enabled = false;
    });
    ComboDi(palco).setCurrentIndex(2);
    palco.scrivania.Coda().Aggiungi(tardi);
    EXPECT_TRUE(Aspetta([&] { return ComboDi(palco).currentIndex() == 1; }));
}

TEST(Combo, NewRowsKeepTheChoice) {
    Palco palco;
    palco.NellaLogica([](FormDiProva& form) {
        form.combo.ListIndex = 1;
        form.combo.PonRiga(1, "F major");
        form.combo.AddItem("E minor");
    });
    EXPECT_EQ(ComboDi(palco).count(), 4);
    EXPECT_EQ(ComboDi(palco).currentText(), "F major");
    palco.NellaLogica([](FormDiProva& form) { form.combo.List = Righe{"x", "y"}; });
    EXPECT_EQ(ComboDi(palco).count(), 2);
    EXPECT_EQ(ComboDi(palco).currentText(), "y");
}

TEST(Combo, NewRowsKeepWhatTheUserChose) {
    Palco palco;
    Apri(palco);
    CliccaRiga(ComboDi(palco), 2);
    palco.NellaLogica([](FormDiProva& form) { form.combo.AddItem("Mi minore"); });
    EXPECT_EQ(ComboDi(palco).currentIndex(), 2);
}

TEST(Combo, WithoutRowsNothingDropsDown) {
    Palco palco;
    palco.NellaLogica([](FormDiProva& form) { form.combo.Clear(); });
    Clicca(palco.scrivania, "combo");
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(ComboDi(palco).currentText(), "");
}

TEST(Combo, LettersSearchItsRowsOnlyWhileTheyAreOpen) {
    Palco palco;
    ComboDi(palco).setFocus();
    Batti(palco.scrivania, Qt::Key_L);
    EXPECT_EQ(palco.Diario(), (Righe{"giu 76", "su 76"}));
    EXPECT_EQ(ComboDi(palco).currentIndex(), -1);
    Apri(palco);
    QTest::keyClicks(ComboDi(palco).view(), "l");
    Batti(palco.scrivania, Qt::Key_Return);
    EXPECT_TRUE(Chiusa());
    EXPECT_EQ(ComboDi(palco).currentText(), "La minore");
}

void Gira(QWidget& widget) {
    const QPointF centro = QRectF(widget.rect()).center();
    QWheelEvent rotella(centro, widget.mapToGlobal(centro), {}, {0, -120}, Qt::NoButton, {},
                        Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &rotella);
}

TEST(Combo, TheWheelChoosesOnlyWhereTheFocusIs) {
    Palco palco;
    palco.NellaLogica([](FormDiProva& form) { form.combo.ListIndex = 0; });
    Trova(palco.scrivania, "bottone").setFocus();
    Gira(ComboDi(palco));
    EXPECT_EQ(ComboDi(palco).currentIndex(), 0);
    ComboDi(palco).setFocus();
    Gira(ComboDi(palco));
    EXPECT_EQ(ComboDi(palco).currentIndex(), 1);
    EXPECT_EQ(palco.Diario(), (Righe{"combo click"}));
}

TEST(Combo, IsNamedByItsToolTip) {
    Palco palco;
    EXPECT_EQ(ComboDi(palco).accessibleName(), QString::fromUtf8("Tonalità"));
    palco.NellaLogica([](FormDiProva& form) { form.combo.ToolTipText = "Key"; });
    EXPECT_EQ(ComboDi(palco).accessibleName(), "Key");
    EXPECT_EQ(ComboDi(palco).toolTip(), "Key");
}

TEST(Combo, ItAndItsRowsGrowWithTheWindow) {
    Palco palco;
    const QSize prima = ComboDi(palco).size();
    const int lettera = ComboDi(palco).font().pixelSize();
    EXPECT_EQ(ComboDi(palco).view()->sizeHintForRow(0), 20);
    QMainWindow& finestra = palco.scrivania.Davanti()->Finestra();
    finestra.resize(finestra.width() * 2, finestra.height() * 2);
    EXPECT_TRUE(Aspetta([&] { return ComboDi(palco).view()->sizeHintForRow(0) >= 38; }));
    EXPECT_GE(ComboDi(palco).width(), 2 * prima.width() - 4);
    EXPECT_GE(ComboDi(palco).font().pixelSize(), 2 * lettera - 1);
    EXPECT_EQ(ComboDi(palco).view()->font().pixelSize(), ComboDi(palco).font().pixelSize());
}

TEST(Combo, OfManyRowsTwelveAreSeenAndNoneIsCut) {
    Palco palco;
    palco.NellaLogica([](FormDiProva& form) {
        for (int i = 0; i < 60; ++i)
            form.combo.AddItem("una riga assai più lunga del suo controllo " + std::to_string(i));
    });
    Apri(palco);
    const QAbstractItemView& righe = *ComboDi(palco).view();
    EXPECT_EQ(righe.viewport()->height(), 12 * 20);
    EXPECT_GT(righe.verticalScrollBar()->maximum(), 0);
    const int testo = righe.fontMetrics().horizontalAdvance(ComboDi(palco).itemText(62));
    EXPECT_EQ(righe.viewport()->width(), testo + 12);
    QApplication::activePopupWidget()->close();
}

TEST(Combo, OfFewRowsAllAreSeenJustBelowIt) {
    Palco palco;
    Apri(palco);
    EXPECT_EQ(ComboDi(palco).view()->verticalScrollBar()->maximum(), 0);
    QWidget& aperta = *QApplication::activePopupWidget();
    const QPoint sotto = ComboDi(palco).mapToGlobal(ComboDi(palco).rect().bottomLeft());
    EXPECT_EQ(aperta.geometry().topLeft(), sotto);
    EXPECT_EQ(aperta.width(), ComboDi(palco).width());
    EXPECT_EQ(Fotografa(aperta).pixelColor(0, 30), tinta::filoForte);
    aperta.close();
}

TEST(Combo, TheFocusAndWhatCantBeUsedAreSeen) {
    Palco palco;
    palco.NellaLogica([](FormDiProva& form) { form.combo.ListIndex = 0; });
    Trova(palco.scrivania, "bottone").setFocus();
    const QImage senza = Fotografa(ComboDi(palco));
    ComboDi(palco).setFocus();
    const QImage conAnello = Fotografa(ComboDi(palco));
    EXPECT_EQ(conAnello.pixelColor(70, 1), tinta::accento);
    EXPECT_NE(senza.pixelColor(70, 1), tinta::accento);
    palco.NellaLogica([](FormDiProva& form) { form.combo.Enabled = false; });
    EXPECT_NE(Fotografa(ComboDi(palco)), senza);
}

}  // namespace
}  // namespace corvana::prova
