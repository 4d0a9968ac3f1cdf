#include <gtest/gtest.h>

#include <QMainWindow>

#include "tests/desktop/stage.h"

namespace corvana::prova {
namespace {

void Ingrandisci(QMainWindow& finestra, QSize centro) {
    const int sbarra = finestra.height() - finestra.centralWidget()->height();
    finestra.resize(centro + QSize(0, sbarra));
    Aspetta([&] { return finestra.centralWidget()->size() == centro; });
}

TEST(Scala, ControlsAndLettersGrowWithTheWindow) {
    Palco palco;
    QMainWindow& finestra = palco.scrivania.Davanti()->Finestra();
    QWidget& casella = Trova(palco.scrivania, "casella");
    const int letteraPrima = casella.font().pixelSize();
    EXPECT_EQ(casella.geometry(), QRect(10, 150, 100, 25));
    Ingrandisci(finestra, {1560, 640});
    EXPECT_EQ(casella.geometry(), QRect(20, 300, 200, 50));
    EXPECT_EQ(casella.font().pixelSize(), 2 * letteraPrima);
}

TEST(Scala, TheFaceKeepsItsShapeInTheMiddleOfTheWindow) {
    Palco palco;
    Ingrandisci(palco.scrivania.Davanti()->Finestra(), {1000, 320});
    const QRect faccia = Trova(palco.scrivania, "scritta").parentWidget()->geometry();
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
    Ingrandisci(palco.scrivania.Davanti()->Finestra(), {1560, 640});
    palco.NellaLogica([](FormDiProva& form) { form.bottone.Left = 300; });
    EXPECT_EQ(Trova(palco.scrivania, "bottone").x(), 40);
}

TEST(Scala, AFormThatGrowsMakesItsWindowGrow) {
    Palco palco;
    palco.NellaLogica([](FormDiProva& form) { form.Height = 6000; });
    EXPECT_EQ(palco.scrivania.Davanti()->Finestra().centralWidget()->height(), 400);
}

}  // namespace
}  // namespace corvana::prova
