#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QContextMenuEvent>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QScrollBar>
#include <QSlider>
#include <QStyleOptionSlider>
#include <QTest>
#include <QTimer>
#include <cmath>

#include "desktop/style.h"
#include "desktop/theme.h"
#include "tests/desktop/stage.h"

namespace corvana::prova {
namespace {

constexpr double volte[] = {1, 1.5, 2, 3};

QSlider& BarraInScena(Palco& palco, const char* nome) {
    return Trova(palco.scrivania, nome).Come<QSlider>();
}

/// Where the handle's light middle is seen on the slider's line.
QRect Disco(QSlider& barra) {
    const QImage foto = Fotografa(barra);
    QRect disco;
    for (int x = 0; x < foto.width(); ++x)
        for (int y = 0; y < foto.height(); ++y)
            if (foto.pixelColor(x, y) == tinta::carta) disco |= QRect(x, y, 1, 1);
    return disco;
}

TEST(Stile, TheMarkOfANarrowMenuBarIsSeenAndGrowsPaleWhenItCannotBeUsed) {
    const QIcon icona =
        Stile().standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton, nullptr, nullptr);
    const auto piuScuro = [&](QIcon::Mode modo) {
        const QImage foto = icona.pixmap(QSize(24, 24), modo).toImage();
        int buio = 0;
        for (int x = 0; x < foto.width(); ++x)
            for (int y = 0; y < foto.height(); ++y)
                if (foto.pixelColor(x, y).alpha() > 200)
                    buio = std::max(buio, 255 - foto.pixelColor(x, y).lightness());
        return buio;
    };
    EXPECT_GT(piuScuro(QIcon::Normal), 150);
    EXPECT_GT(piuScuro(QIcon::Disabled), 50);
    EXPECT_LT(piuScuro(QIcon::Disabled), piuScuro(QIcon::Normal) - 50);
}

TEST(Stile, TheHandleOfASliderGrowsAndIsWholeAtBothEnds) {
    Palco palco;
    for (const char* nome : {"barra", "ritta"})
        for (const double scala : volte) {
            Ingrandisci(*palco.scrivania.Davanti(), scala);
            QSlider& barra = BarraInScena(palco, nome);
            const int diametro = qRound(13 * scala);
            for (const int valore :
                 {barra.minimum(), (barra.minimum() + barra.maximum()) / 2, barra.maximum()}) {
                barra.setValue(valore);
                const QRect disco = Disco(barra);
                EXPECT_NEAR(disco.width(), diametro, 2) << nome << " " << scala << " " << valore;
                EXPECT_NEAR(disco.height(), diametro, 2) << nome << " " << scala << " " << valore;
                // The ring around it lies within the slider too.
                EXPECT_TRUE(barra.rect().contains(disco.adjusted(-1, -1, 1, 1)));
            }
        }
}

TEST(Stile, TheHandleOfASliderIsGrabbedAllOver) {
    Palco palco;
    for (const double scala : volte) {
        Ingrandisci(*palco.scrivania.Davanti(), scala);
        QSlider& barra = BarraInScena(palco, "barra");
        for (const int valore : {20, 80, 140}) {
            barra.setValue(valore);
            const QRect disco = Disco(barra);
            for (const QPoint& dove : {QPoint(disco.left(), disco.center().y()),
                                       QPoint(disco.right(), disco.center().y()),
                                       QPoint(disco.center().x(), disco.top()),
                                       QPoint(disco.center().x(), disco.bottom())}) {
                QTest::mousePress(&barra, Qt::LeftButton, {}, dove);
                EXPECT_TRUE(barra.isSliderDown()) << scala << " " << valore;
                QTest::mouseRelease(&barra, Qt::LeftButton, {}, dove);
                EXPECT_EQ(barra.value(), valore) << scala;
            }
        }
    }
}

TEST(Stile, ScrollBarsCheckBoxesAndLettersOfMenusGrow) {
    Palco palco([](FormDiProva& form) {
        for (int i = 0; i < 40; ++i)
            form.lista.AddItem("riga");
    });
    VistaFinestra& finestra = *palco.scrivania.Davanti();
    auto& lista = Trova(palco.scrivania, "lista").Come<QListWidget>();
    QWidget& spunta = Trova(palco.scrivania, "spunta");
    QMenuBar& sbarra = *finestra.Finestra().menuBar();
    QMenu& menu = *TrovaVoce(palco.scrivania, "File").menu();
    const auto segno = [&] {
        return spunta.style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, &spunta);
    };
    const int scorrimento = lista.verticalScrollBar()->width(), quadretto = segno();
    const int lettere = sbarra.font().pixelSize(), alta = sbarra.height();
    const QSize tendina = menu.sizeHint();
    ASSERT_GT(scorrimento, 5);
    for (const double scala : volte) {
        Ingrandisci(finestra, scala);
        EXPECT_TRUE(Aspetta([&] {
            return std::abs(lista.verticalScrollBar()->width() - scorrimento * scala) <= 1;
        }));
        EXPECT_NEAR(segno(), quadretto * scala, 1);
        EXPECT_NEAR(sbarra.font().pixelSize(), lettere * scala, 1);
        EXPECT_NEAR(sbarra.height(), alta * scala, 1);
        EXPECT_EQ(menu.font().pixelSize(), sbarra.font().pixelSize());
        EXPECT_NEAR(menu.sizeHint().height(), tendina.height() * scala, 4 * scala);
        EXPECT_GE(menu.sizeHint().width(), tendina.width() * scala * 0.9);
    }
}

/// How many points have that colour.
int Punti(const QImage& foto, const QColor& colore) {
    int punti = 0;
    for (int x = 0; x < foto.width(); ++x)
        for (int y = 0; y < foto.height(); ++y)
            punti += foto.pixelColor(x, y) == colore;
    return punti;
}

TEST(Stile, TheMarkOfACheckedEntryGrows) {
    Palco palco;
    QMenu& menu = *TrovaVoce(palco.scrivania, "File").menu();
    const auto segno = [&] {
        menu.popup(QPoint());
        const QImage foto = Fotografa(menu);
        menu.close();
        return Punti(foto, tinta::accento);
    };
    const int piccolo = segno();
    ASSERT_GT(piccolo, 3);
    Ingrandisci(*palco.scrivania.Davanti(), 3);
    EXPECT_GT(segno(), 5 * piccolo);
}

TEST(Stile, TheMarkOfACheckBoxGrows) {
    Palco palco([](FormDiProva& form) { form.spunta.Value = true; });
    QWidget& spunta = Trova(palco.scrivania, "spunta");
    const int piccolo = Punti(Fotografa(spunta), tinta::accento);
    ASSERT_GT(piccolo, 50);
    Ingrandisci(*palco.scrivania.Davanti(), 3);
    EXPECT_GT(Punti(Fotografa(spunta), tinta::accento), 6 * piccolo);
}

TEST(Stile, AScrollBarsThumbTakesTheShareThatIsSeen) {
    Palco palco([](FormDiProva& form) {
        for (int i = 0; i < 40; ++i)
            form.lista.AddItem("riga");
    });
    auto& lista = Trova(palco.scrivania, "lista").Come<QListWidget>();
    QScrollBar& barra = *lista.verticalScrollBar();
    lista.scrollToBottom();
    const QImage foto = Fotografa(barra);
    EXPECT_EQ(Punti(foto.copy(0, 0, foto.width(), foto.height() / 2), tinta::filoForte), 0);
    EXPECT_GT(Punti(foto, tinta::filoForte), 40);
    // A click beside the thumb turns the page.
    QTest::mouseClick(&barra, Qt::LeftButton, {}, QPoint(barra.width() / 2, 3));
    EXPECT_EQ(barra.value(), barra.maximum() - barra.pageStep());
}

TEST(Stile, AScrollBarHasNoMenuOfItsOwn) {
    QScrollBar barra(Qt::Vertical);
    bool menu = false;
    // A menu would wait for its choice before the right click came to its end.
    QTimer::singleShot(0, [&] {
        if (QWidget* aperto = QApplication::activePopupWidget()) menu = aperto->close();
    });
    QContextMenuEvent chiesto(QContextMenuEvent::Mouse, QPoint(3, 3), QPoint(3, 3));
    QCoreApplication::sendEvent(&barra, &chiesto);
    EXPECT_FALSE(menu);
}

}  // namespace
}  // namespace corvana::prova
