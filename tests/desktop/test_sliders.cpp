#include <gtest/gtest.h>

#include <QSlider>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

#include "tests/desktop/stage.h"

namespace corvana::prova {
namespace {

QSlider& BarraDi(Palco& palco, const char* nome = "barra") {
    return Trova(palco.scrivania, nome).Come<QSlider>();
}

TEST(Barra, DraggingTheThumbScrollsAndLettingGoChanges) {
    Palco palco;
    QSlider& barra = BarraDi(palco);
    const QPoint da = Pollice(barra);
    QTest::mousePress(&barra, Qt::LeftButton, {}, da);
    QTest::mouseMove(&barra, da + QPoint(20, 0));
    EXPECT_EQ(palco.Diario(), (Righe{"barra scroll"}));
    QTest::mouseRelease(&barra, Qt::LeftButton, {}, da + QPoint(20, 0));
    EXPECT_EQ(palco.Diario(), (Righe{"barra change"}));
    palco.NellaLogica([](FormDiProva& form) { EXPECT_GT(form.barra.Value(), 30); });
}

TEST(Barra, TouchingTheThumbWithoutMovingItChangesNothing) {
    Palco palco;
    QTest::mouseClick(&BarraDi(palco), Qt::LeftButton, {}, Pollice(BarraDi(palco)));
    EXPECT_EQ(palco.Diario(), Righe{});
}

TEST(Barra, WhereTheThumbIsLetGoIsWhatCountsThoughNoMoveToldOfIt) {
    Palco palco;
    QSlider& barra = BarraDi(palco);
    const QPoint da = Pollice(barra);
    QTest::mousePress(&barra, Qt::LeftButton, {}, da);
    QTest::mouseRelease(&barra, Qt::LeftButton, {}, da + QPoint(40, 0));
    EXPECT_EQ(palco.Diario(), (Righe{"barra scroll", "barra change"}));
    palco.NellaLogica([](FormDiProva& form) { EXPECT_GT(form.barra.Value(), 60); });
}

TEST(Barra, WhatTheLogicSaysDuringADragDoesntMoveTheThumbOfTheUser) {
    Palco palco;
    QSlider& barra = BarraDi(palco);
    const QPoint da = Pollice(barra);
    QTest::mousePress(&barra, Qt::LeftButton, {}, da);
    QTest::mouseMove(&barra, da + QPoint(40, 0));
    const int posto = barra.value();
    palco.NellaLogica([](FormDiProva& form) { form.barra.Value = 25; });
    EXPECT_EQ(barra.value(), posto);
    QTest::mouseRelease(&barra, Qt::LeftButton, {}, da + QPoint(40, 0));
    palco.NellaLogica([&](FormDiProva& form) { EXPECT_EQ(form.barra.Value(), posto); });
    EXPECT_EQ(barra.value(), posto);
}

TEST(Barra, AThumbThatWasOnlyTouchedShowsWhatTheLogicSaidMeanwhile) {
    Palco palco;
    QSlider& barra = BarraDi(palco);
    const QPoint da = Pollice(barra);
    QTest::mousePress(&barra, Qt::LeftButton, {}, da);
    palco.NellaLogica([](FormDiProva& form) { form.barra.Value = 77; });
    QTest::mouseRelease(&barra, Qt::LeftButton, {}, da);
    EXPECT_EQ(barra.value(), 77);
    EXPECT_EQ(palco.Diario(), Righe{});
}

TEST(Barra, OneThatGoesDuringADragIsntHeldWhenItComesBack) {
    Palco palco;
    QSlider& barra = BarraDi(palco);
    const QPoint da = Pollice(barra);
    QTest::mousePress(&barra, Qt::LeftButton, {}, da);
    QTest::mouseMove(&barra, da + QPoint(40, 0));
    palco.NellaLogica([](FormDiProva& form) { form.barra.Visible = false; });
    EXPECT_FALSE(barra.isSliderDown());
    palco.NellaLogica([](FormDiProva& form) { form.barra.Visible = true; });
    palco.Diario();
    barra.setFocus();
    Batti(palco.scrivania, Qt::Key_Right);
    EXPECT_EQ(palco.Diario(), (Righe{"giu 39", "barra change", "su 39"}));
}

TEST(Barra, KeysChangeItByOneAndByThePage) {
    Palco palco;
    BarraDi(palco).setFocus();
    Batti(palco.scrivania, Qt::Key_Right);
    Batti(palco.scrivania, Qt::Key_PageUp);
    EXPECT_EQ(palco.Diario(),
              (Righe{"giu 39", "barra change", "su 39", "giu 33", "barra change", "su 33"}));
    EXPECT_EQ(BarraDi(palco).value(), 41);
}

TEST(Barra, ANewRangeKeepsWhatTheUserMadeOfIt) {
    Palco palco;
    BarraDi(palco).setFocus();
    Batti(palco.scrivania, Qt::Key_PageUp);
    palco.NellaLogica([](FormDiProva& form) { form.barra.Max = 200; });
    EXPECT_EQ(BarraDi(palco).maximum(), 200);
    EXPECT_EQ(BarraDi(palco).value(), 40);
}

TEST(Barra, AValueOfTheLogicIsShownAndNotToldBack) {
    Palco palco;
    palco.NellaLogica([](FormDiProva& form) { form.barra.Value = 77; });
    EXPECT_EQ(BarraDi(palco).value(), 77);
    EXPECT_EQ(palco.Diario(), Righe{});
}

TEST(Barra, ATallOneIsUprightWithItsSmallestValueOnTop) {
    Palco palco;
    QSlider& ritta = BarraDi(palco, "ritta");
    EXPECT_EQ(ritta.orientation(), Qt::Vertical);
    EXPECT_TRUE(ritta.invertedAppearance());
    ritta.setFocus();
    Batti(palco.scrivania, Qt::Key_Down);
    EXPECT_EQ(ritta.value(), 1);
    EXPECT_EQ(BarraDi(palco).orientation(), Qt::Horizontal);
}

}  // namespace
}  // namespace corvana::prova
