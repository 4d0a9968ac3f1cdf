#include <gtest/gtest.h>

#include <QMainWindow>

#include "tests/desktop/stage.h"

namespace corvana::prova {
namespace {

TEST(Scala, ControlsAndLettersGrowWithTheWindow) {
    Palco palco;
    QWidget& casella = Trova(palco.scrivania, "casella");
    const int letteraPrima = casella.font().pixelSize();
    EXPECT_EQ(casella.geometry(), QRect(10, 150, 100, 25));
    Ingrandisci(*palco.scrivania.Davanti(), 2);
    EXPECT_EQ(casella.geometry(), QRect(20, 300, 200, 50));
    EXPECT_EQ(casella.font().pixelSize(), 2 * letteraPrima);
}

TEST(Scala, TheFaceKeepsItsShapeInTheMiddleOfTheWindow) {
    Palco palco;
    QMainWindow& finestra = palco.scrivania.Davanti()->Finestra();
    finestra.resize(1000, finestra.height());
    ASSERT_TRUE(Aspetta([&] { return finestra.centralWidget()->width() == 1000; }));
    const QRect faccia = Trova(palco.scrivania, "scritta").Suolo().geometry();
    EXPECT_EQ(faccia, QRect(110, 0, 780, 320));
}

TEST(Scala, TheWindowDoesntShrinkBelowWhatCanBeRead) {
    Palco palco;
    QMainWindow& finestra = palco.scrivania.Davanti()->Finestra();
    finestra.resize(100, 100);
    Aspetta([&] { return finestra.width() < 780; });
    EXPECT_GE(finestra.centralWidget()->width(), 780 * 8 / 10);
    EXPECT_GE(finestra.centralWidget()->height(), 320 * 8 / 10);
}

TEST(Scala, AControlThatTheLogicMovesGoesToItsScaledPlace) {
    Palco palco;
    Ingrandisci(*palco.scrivania.Davanti(), 2);
    palco.NellaLogica([](FormDiProva& form) { form.bottone.Left = 300; });
    EXPECT_EQ(Trova(palco.scrivania, "bottone").Come<QWidget>().x(), 40);
}

TEST(Scala, AFormThatGrowsMakesItsWindowGrow) {
    Palco palco;
    palco.NellaLogica([](FormDiProva& form) { form.Height = 6000; });
    EXPECT_EQ(palco.scrivania.Davanti()->Finestra().centralWidget()->height(), 400);
}

}  // namespace
}  // namespace corvana::prova
