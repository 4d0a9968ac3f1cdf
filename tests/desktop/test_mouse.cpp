#include <gtest/gtest.h>

#include <QTest>
#include <QWindow>

#include "tests/desktop/stage.h"

namespace corvana::prova {
namespace {

/// The left button of the mouse, in the window in front.
class Sinistro {
public:
    explicit Sinistro(Palco& palco)
        : finestra_(*palco.scrivania.Davanti()->Finestra().windowHandle()) {}

    void Giu(QPoint dove) { QTest::mousePress(&finestra_, Qt::LeftButton, {}, dove); }
    void Su(QPoint dove) { QTest::mouseRelease(&finestra_, Qt::LeftButton, {}, dove); }

private:
    QWindow& finestra_;
};

QPoint Mezzo(Palco& palco, const char* nome) {
    const QWidget& widget = Trova(palco.scrivania, nome);
    return widget.mapTo(widget.window(), widget.rect().center());
}

TEST(Mouse, TheButtonComesUpForTheControlWhereverThePointerIs) {
    Palco palco;
    Sinistro sinistro(palco);
    for (const QPoint dove : {Mezzo(palco, "scritta"), QPoint(-50, -50), QPoint(5000, 20)}) {
        sinistro.Giu(Mezzo(palco, "toccabile"));
        sinistro.Su(dove);
        EXPECT_EQ(palco.Diario(), (Righe{"toccabile giu", "toccabile su"})) << dove.x();
    }
}

TEST(Mouse, TheButtonComesUpForAControlThatWasHiddenOrDisabledMeanwhile) {
    for (const bool nascosto : {true, false}) {
        Palco palco;
        const QPoint dove = Mezzo(palco, "toccabile");
        Sinistro(palco).Giu(dove);
        palco.NellaLogica([=](FormDiProva& form) {
            nascosto ? form.toccabile.Visible = false : form.toccabile.Enabled = false;
        });
        Sinistro(palco).Su(dove);
        EXPECT_EQ(palco.Diario(), (Righe{"toccabile giu", "toccabile su"})) << nascosto;
    }
}

TEST(Mouse, TheButtonComesUpWhenAModalWindowOrABoxTakesTheMouseAway) {
    Palco palco;
    Sinistro(palco).Giu(Mezzo(palco, "toccabile"));
    palco.Ordina([](FormDiProva& form) { form.riquadri.MsgBox("ecco"); });
    ASSERT_TRUE(Aspetta([&] { return palco.scrivania.Riquadro() != nullptr; }));
    palco.scrivania.Riquadro()->accept();
    EXPECT_EQ(palco.Diario(), (Righe{"toccabile giu", "toccabile su"}));
    Sinistro(palco).Giu(Mezzo(palco, "bottone"));
    palco.Ordina([](FormDiProva& form) { form.finestre.MostraModale(form.sopra); });
    AspettaFinestra(palco.scrivania, "FormSopra");
    Clicca(palco.scrivania, "ok");
    AspettaFinestra(palco.scrivania, "FormDiProva");
    EXPECT_EQ(palco.Diario(), (Righe{"bottone giu", "bottone su"}));
}

TEST(Mouse, AReleaseThatNobodySawIsToldWithTheNextMove) {
    Palco palco;
    Sinistro(palco).Giu(Mezzo(palco, "toccabile"));
    EXPECT_EQ(palco.Diario(), (Righe{"toccabile giu"}));
    QWindow& finestra = *palco.scrivania.Davanti()->Finestra().windowHandle();
    QMouseEvent mossa(QEvent::MouseMove, QPointF(300, 10), QPointF(300, 10), QPointF(300, 10),
                      Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&finestra, &mossa);
    EXPECT_EQ(palco.Diario(), (Righe{"toccabile su"}));
}

TEST(Mouse, TheReleaseTellsItsPlaceInTheControlAtEverySizeOfTheWindow) {
    for (const double volte : {1.0, 1.5}) {
        std::atomic<int> x = 0, y = 0;
        Palco palco([&](FormDiProva& form) {
            form.dentro.MouseUp = [&](const Evento& e) {
                x = e.x;
                y = e.y;
            };
        });
        Ingrandisci(*palco.scrivania.Davanti(), volte);
        Sinistro(palco).Giu(Mezzo(palco, "dentro"));
        const QWidget& dentro = Trova(palco.scrivania, "dentro");
        const QPoint oltre(qRound(-20 * volte), qRound(40 * volte));
        Sinistro(palco).Su(dentro.mapTo(dentro.window(), oltre));
        palco.Diario();
        EXPECT_NEAR(x, -300, 30) << volte;
        EXPECT_NEAR(y, 600, 30) << volte;
    }
}

}  // namespace
}  // namespace corvana::prova
