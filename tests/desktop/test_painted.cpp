#include <gtest/gtest.h>

#include <QSvgRenderer>
#include <QTest>
#include <QWindow>

#include "tests/desktop/stage.h"

namespace corvana::prova {
namespace {

void Muovi(Scrivania& scrivania, const QString& sopra) {
    QWidget& widget = Trova(scrivania, sopra);
    QTest::mouseMove(widget.window()->windowHandle(),
                     widget.mapTo(widget.window(), widget.rect().center()));
}

TEST(Figura, TheToolTipIsLive) {
    Palco palco;
    EXPECT_EQ(Trova(palco.scrivania, "icona").toolTip(), "Metronomo");
    palco.NellaLogica([](FormDiProva& form) { form.icona.ToolTipText = "Metronome"; });
    EXPECT_EQ(Trova(palco.scrivania, "icona").toolTip(), "Metronome");
    EXPECT_EQ(Trova(palco.scrivania, "icona").accessibleName(), "Metronome");
}

TEST(Figura, APictureThatCanBeClickedIsReachedAndPushedFromTheKeyboard) {
    Palco palco;
    QWidget& icona = Trova(palco.scrivania, "icona");
    icona.setFocus(Qt::TabFocusReason);
    const QImage conAnello = Fotografa(icona);
    Batti(palco.scrivania, Qt::Key_Return);
    EXPECT_EQ(palco.Diario(), (Righe{"giu 13", "icona click", "su 13"}));
    Trova(palco.scrivania, "bottone").setFocus();
    EXPECT_NE(Fotografa(icona), conAnello) << "the focus can't be seen";
}

TEST(Figura, TheMouseLeavesTheFocusWhereItIs) {
    Palco palco;
    Trova(palco.scrivania, "bottone").setFocus();
    Clicca(palco.scrivania, "icona");
    EXPECT_TRUE(Trova(palco.scrivania, "bottone").hasFocus());
    EXPECT_EQ(palco.Diario(), (Righe{"icona click"}));
}

TEST(Figura, MovesOverItAreItsOwnAndElsewhereTheWindows) {
    Palco palco;
    Muovi(palco.scrivania, "bottone");
    palco.Diario();
    Muovi(palco.scrivania, "icona");
    EXPECT_EQ(palco.Diario().back(), "icona mossa");
    Muovi(palco.scrivania, "spunta");
    EXPECT_EQ(palco.Diario().back(), "finestra mossa");
}

TEST(Figura, EveryIconOfTheProgramIsADrawingOfItsOwn) {
    for (const char* nome :
         {"orecchio", "composer", "metronomo", "promemoria", "strumenti", "modo", "aiuto"}) {
        QSvgRenderer disegno(QStringLiteral(":/icons/%1.svg").arg(QLatin1String(nome)));
        EXPECT_TRUE(disegno.isValid()) << nome;
        EXPECT_EQ(disegno.viewBox(), QRect(0, 0, 32, 32)) << nome;
    }
}

TEST(Etichetta, HidingItAndColouringItIsSeen) {
    Palco palco;
    QWidget& scritta = Trova(palco.scrivania, "scritta");
    palco.NellaLogica([](FormDiProva& form) { form.scritta.BackColor = Rgb(1, 2, 250); });
    EXPECT_EQ(Fotografa(scritta).pixelColor(99, 19), QColor(1, 2, 250));
    palco.NellaLogica([](FormDiProva& form) { form.scritta.Visible = false; });
    EXPECT_FALSE(scritta.isVisible());
}

TEST(Etichetta, ItsTextHasTheControlsColour) {
    Palco palco;
    palco.NellaLogica([](FormDiProva& form) {
        form.scritta.Caption = "MMMM";
        form.scritta.ForeColor = Rgb(255, 0, 0);
    });
    const QImage foto = Fotografa(Trova(palco.scrivania, "scritta"));
    bool rosso = false;
    for (int x = 0; x < foto.width(); ++x)
        for (int y = 0; y < foto.height(); ++y)
            rosso |= foto.pixelColor(x, y) == QColor(255, 0, 0);
    EXPECT_TRUE(rosso);
}

}  // namespace
}  // namespace corvana::prova
