#include <gtest/gtest.h>

#include <QMainWindow>

#include "desktop/theme.h"
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
    finestra.resize(1000, 700);
    ASSERT_TRUE(Aspetta([&] { return finestra.centralWidget()->width() == 1000; }));
    finestra.resize(100, 100);
    const QWidget& centro = *finestra.centralWidget();
    EXPECT_TRUE(Aspetta([&] { return centro.size() == QSize(780, 320); }))
        << centro.width() << " by " << centro.height();
}

TEST(Scala, AWindowThatIsLargerThanASmallScreenShrinksToIt) {
    Palco palco([](FormDiProva& form) { form.Width = 2000 * twipsPerPixel; });
    QMainWindow& finestra = palco.scrivania.Davanti()->Finestra();
    finestra.resize(100, 100);
    ASSERT_TRUE(Aspetta([&] { return finestra.width() == 1000; }));
    EXPECT_EQ(finestra.centralWidget()->width(), 1000);
}

TEST(Scala, InASmallWindowLettersStayLargeEnoughToBeRead) {
    for (const char* stile : {"", "piccolo", "titolo"})
        for (const double scala : {0.1, 0.6, 0.85, 1.0})
            EXPECT_GE(Carattere({QLatin1String(stile)}, scala).pixelSize(), 11) << stile << scala;
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
