#include <gtest/gtest.h>

#include <QHelpEvent>
#include <QTest>
#include <QToolTip>
#include <QWindow>

#include "desktop/face.h"
#include "tests/desktop/stage.h"

namespace corvana::prova {
namespace {

const Faccia& FacciaDi(const Cosa& cosa) {
    return dynamic_cast<const Faccia&>(cosa.Suolo());
}

/// What the pointer meets at a place of the control.
std::string Incontrata(const Cosa& cosa, QPoint dove) {
    const Faccia& faccia = FacciaDi(cosa);
    const QPoint sulla = faccia.mapFrom(faccia.window(), cosa.NellaFinestra(dove));
    return faccia.Sotto(sulla).Stato().nome.toStdString();
}

/// Two labels of which the second lies over the right half of the first.
void Sovrapponi(FormDiProva& form) {
    form.toccabile.Top = form.scritta.Top();
    form.toccabile.Left = form.scritta.Left + form.scritta.Width / 2;
    form.scritta.BackColor = Rgb(255, 0, 0);
    form.toccabile.BackColor = Rgb(0, 0, 255);
}

TEST(Faccia, AnImageOfAPaintedControlNeedsNoWidget) {
    Palco palco;
    for (const char* nome : {"scritta", "toccabile", "icona", "sfumata", "staff", "Regolo"})
        EXPECT_FALSE(Trova(palco.scrivania, nome).LaVista().Widget()) << nome;
    for (const char* nome : {"bottone", "casella", "lista", "combo", "barra", "spunta", "cornice"})
        EXPECT_TRUE(Trova(palco.scrivania, nome).LaVista().Widget()) << nome;
}

TEST(Faccia, TheLaterOfTwoControlsIsPaintedAndHitFirst) {
    Palco palco(Sovrapponi);
    const Cosa scritta = Trova(palco.scrivania, "scritta");
    const QPoint sinistra(30, 18), destra(80, 18);
    EXPECT_EQ(Incontrata(scritta, sinistra), "scritta");
    EXPECT_EQ(Incontrata(scritta, destra), "toccabile");
    EXPECT_EQ(Fotografa(scritta).pixelColor(sinistra), QColor(255, 0, 0));
    EXPECT_EQ(Fotografa(scritta).pixelColor(destra), QColor(0, 0, 255));
}

TEST(Faccia, AHiddenControlIsNeitherPaintedNorHitAndADisabledOneStillCoversOthers) {
    Palco palco(Sovrapponi);
    const Cosa scritta = Trova(palco.scrivania, "scritta");
    const QPoint destra(80, 18);
    palco.NellaLogica([](FormDiProva& form) { form.toccabile.Enabled = false; });
    EXPECT_EQ(Incontrata(scritta, destra), "toccabile");
    Clicca(scritta, destra);
    EXPECT_EQ(palco.Diario(), Righe{});
    palco.NellaLogica([](FormDiProva& form) { form.toccabile.Visible = false; });
    EXPECT_EQ(Incontrata(scritta, destra), "scritta");
    EXPECT_EQ(Fotografa(scritta).pixelColor(destra), QColor(255, 0, 0));
}

TEST(Faccia, WhereNothingLiesTheWindowItselfIsHit) {
    Palco palco;
    EXPECT_EQ(Incontrata(Trova(palco.scrivania, "scritta"), {2, -3}), "FormDiProva");
}

TEST(Faccia, APressThatIsLetGoElsewhereIsNoClick) {
    Palco palco;
    const Cosa toccabile = Trova(palco.scrivania, "toccabile");
    QWindow* finestra = toccabile.window()->windowHandle();
    QTest::mousePress(finestra, Qt::LeftButton, {}, toccabile.NellaFinestra({5, 5}));
    QTest::mouseMove(finestra, toccabile.NellaFinestra({5, 60}));
    QTest::mouseRelease(finestra, Qt::LeftButton, {}, toccabile.NellaFinestra({5, 60}));
    EXPECT_EQ(palco.Diario(), (Righe{"toccabile giu", "toccabile su"}));
}

TEST(Faccia, ThePointersShapeInvitesWhereThereIsSomethingToClick) {
    Palco palco;
    const Cosa scritta = Trova(palco.scrivania, "scritta");
    Muovi(Trova(palco.scrivania, "toccabile"), {5, 5});
    EXPECT_EQ(scritta.Suolo().cursor().shape(), Qt::PointingHandCursor);
    Muovi(scritta, {5, 5});
    EXPECT_EQ(scritta.Suolo().cursor().shape(), Qt::ArrowCursor);
}

TEST(Faccia, TheToolTipIsThatOfTheControlUnderThePointer) {
    Palco palco;
    const Cosa icona = Trova(palco.scrivania, "icona");
    QWidget& faccia = icona.Suolo();
    const QPoint dove = faccia.mapFrom(faccia.window(), icona.NellaFinestra({5, 5}));
    QHelpEvent chiede(QEvent::ToolTip, dove, faccia.mapToGlobal(dove));
    QCoreApplication::sendEvent(&faccia, &chiede);
    EXPECT_EQ(QToolTip::text(), "Metronomo");
    QToolTip::hideText();
}

TEST(Faccia, TheFocusGoesOnWhenItsControlIsHidden) {
    Palco palco;
    Trova(palco.scrivania, "toccabile").setFocus(Qt::TabFocusReason);
    palco.NellaLogica([](FormDiProva& form) { form.toccabile.Visible = false; });
    EXPECT_FALSE(Trova(palco.scrivania, "toccabile").hasFocus());
    EXPECT_TRUE(Trova(palco.scrivania, "bottone").hasFocus());
}

TEST(Faccia, AScreenReaderFindsPaintedControlsAndWidgetsInTheirOrder) {
    Palco palco;
    const Cosa scritta = Trova(palco.scrivania, "scritta");
    QAccessibleInterface* faccia = QAccessible::queryAccessibleInterface(&scritta.Suolo());
    ASSERT_TRUE(faccia);
    ASSERT_GE(faccia->childCount(), 10);
    EXPECT_EQ(faccia->child(0), scritta.PerLettore());
    EXPECT_EQ(faccia->child(1), Trova(palco.scrivania, "toccabile").PerLettore());
    EXPECT_EQ(faccia->child(2), Trova(palco.scrivania, "bottone").PerLettore());
    EXPECT_EQ(faccia->indexOfChild(faccia->child(1)), 1);
    const QRect posto = faccia->child(1)->rect();
    EXPECT_EQ(faccia->childAt(posto.center().x(), posto.center().y()), faccia->child(1));
    palco.NellaLogica([](FormDiProva& form) { form.toccabile.Enabled = false; });
    EXPECT_TRUE(faccia->child(1)->state().disabled);
}

}  // namespace
}  // namespace corvana::prova
