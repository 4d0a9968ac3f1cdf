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
    const Cosa cosa = Trova(palco.scrivania, nome);
    return cosa.NellaFinestra(cosa.rect().center());
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

TEST(Mouse, TheButtonComesUpWhenItsWindowIsBlockedThoughTheKeyboardStaysThere) {
    Palco palco;
    Sinistro(palco).Giu(Mezzo(palco, "toccabile"));
    EXPECT_EQ(palco.Diario(), (Righe{"toccabile giu"}));
    QEvent bloccata(QEvent::WindowBlocked);
    QCoreApplication::sendEvent(palco.scrivania.Davanti()->Finestra().windowHandle(), &bloccata);
    EXPECT_EQ(palco.Diario(), (Righe{"toccabile su"}));
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

/// Writes down all that can be done to it with the mouse; to be read when the logic has served.
void Annota(Controllo& c, Righe& visto) {
    const auto scrivi = [&visto](const char* cosa) {
        return [&visto, cosa] { visto.push_back(cosa); };
    };
    const auto del = [&visto](const char* cosa) {
        return [&visto, cosa](const Evento&) { visto.push_back(cosa); };
    };
    c.MouseDown = del("down");
    c.MouseUp = del("up");
    c.Click = scrivi("click");
    c.DblClick = scrivi("double click");
}

const Righe doppio = {"down", "up", "click", "double click", "up"};
const Righe dueVolte = {"down", "up", "click", "down", "up", "click"};

TEST(Mouse, ADoubleClickIsTheSameOnEveryKindAndTwoClicksOnAButton) {
    const std::pair<const char*, Righe> generi[] = {{"toccabile", doppio}, {"icona", doppio},
                                                    {"cornice", doppio},   {"lista", doppio},
                                                    {"bottone", dueVolte}, {"spunta", dueVolte}};
    for (const auto& [nome, atteso] : generi) {
        Righe visto;
        Palco palco([&, n = nome](FormDiProva& form) {
            form.dentro.Visible = false;
            Annota(*form.Trova(n), visto);
        });
        QWindow& finestra = *palco.scrivania.Davanti()->Finestra().windowHandle();
        QTest::mouseDClick(&finestra, Qt::LeftButton, {}, Mezzo(palco, nome));
        palco.Diario();
        EXPECT_EQ(visto, atteso) << nome;
    }
}

TEST(Mouse, TwoQuickPressesOnTwoControlsAreNoDoubleClick) {
    Righe sopra, sotto;
    Palco palco([&](FormDiProva& form) {
        form.scritta.Top = form.toccabile.Top - form.scritta.Height;
        Annota(form.scritta, sopra);
        Annota(form.toccabile, sotto);
    });
    const QPoint confine =
        Mezzo(palco, "scritta") + QPoint(0, Trova(palco.scrivania, "scritta").height() / 2);
    for (const int passo : {-2, 2}) {
        Sinistro(palco).Giu(confine + QPoint(0, passo));
        Sinistro(palco).Su(confine + QPoint(0, passo));
        QTest::lastMouseTimestamp -= QTest::mouseDoubleClickInterval;
    }
    palco.Diario();
    EXPECT_EQ(sopra, (Righe{"down", "up", "click"}));
    EXPECT_EQ(sotto, (Righe{"down", "up", "click"}));
}

}  // namespace
}  // namespace corvana::prova
