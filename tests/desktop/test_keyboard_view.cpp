#include <gtest/gtest.h>

#include <QPaintEvent>
#include <QTest>
#include <QWindow>
#include <atomic>

#include "desktop/face.h"
#include "desktop/face_reader.h"
#include "tests/desktop/keyboard_stage.h"

namespace corvana::prova {
namespace {

constexpr double scale[] = {1, 1.5, 2};
const QColor acceso(192, 192, 255);

bool Nero(int tasto) {
    return QList<int>{1, 3, 6, 8, 10}.contains(tasto % 12);
}

/// A picture of the keyboard at the window's present size, and which key each of its points is, by
/// what changes when the key is lit: -1 for none.
class Mappa {
public:
    explicit Mappa(PalcoTastiera& palco) : palco_(palco) {
        const QImage spenta = Foto();
        tasti_.assign(static_cast<std::size_t>(spenta.width()) * spenta.height(), -1);
        larga_ = spenta.width();
        for (int tasto = 0; tasto < 60; ++tasto) {
            Accendi(tasto, true);
            Segna(spenta, Foto(), tasto);
            Accendi(tasto, false);
        }
    }
    int Al(int x, int y) const { return tasti_[static_cast<std::size_t>(y * larga_ + x)]; }

    QImage Foto() { return Fotografa(Trova(palco_.scrivania, "img2")); }

private:
    void Accendi(int tasto, bool si) {
        palco_.NellaLogica([=](FormTastiera& form) {
            corvana::Accendi(form.tastiera.lb[static_cast<std::size_t>(tasto)], si);
        });
    }
    void Segna(const QImage& prima, const QImage& dopo, int tasto) {
        // The lit colour, not the shades at the key's edges.
        for (int y = 0; y < prima.height(); ++y)
            for (int x = 0; x < prima.width(); ++x)
                if (dopo.pixelColor(x, y) == acceso && prima.pixelColor(x, y) != acceso)
                    tasti_[static_cast<std::size_t>(y * larga_ + x)] = tasto;
    }

    PalcoTastiera& palco_;
    std::vector<int> tasti_;
    int larga_ = 0;
};

class OgniTasto : public testing::TestWithParam<double> {};

TEST_P(OgniTasto, IsHitWhereverItIsSeen) {
    PalcoTastiera palco;
    Ingrandisci(*palco.scrivania.Davanti(), GetParam());
    Mappa mappa(palco);
    const Cosa tastiera = Trova(palco.scrivania, "img2");
    const auto& faccia = dynamic_cast<const Faccia&>(tastiera.Suolo());
    const QPoint origine = faccia.mapFrom(faccia.window(), tastiera.NellaFinestra(QPoint()));
    std::array<int, 60> punti{};
    for (int y = 0; y < tastiera.height(); ++y)
        for (int x = 0; x < tastiera.width(); ++x) {
            const int tasto = mappa.Al(x, y);
            if (tasto < 0) continue;
            ++punti.at(static_cast<std::size_t>(tasto));
            const QString& nome = faccia.Sotto(origine + QPoint(x, y)).Stato().nome;
            ASSERT_EQ(nome.toStdString(), "lb" + std::to_string(tasto)) << x << ", " << y;
        }
    for (int tasto = 0; tasto < 60; ++tasto) {
        // In designed pixels: what is flat of a key of 14 x 43, less the black keys, or of 9 x 22;
        // less the dot on a lit one.
        const double minimo = (Nero(tasto) ? 80 : 300) * GetParam() * GetParam();
        EXPECT_GT(punti.at(static_cast<std::size_t>(tasto)), minimo) << tasto;
    }
}

TEST_P(OgniTasto, TellsItsOwnMouseEvents) {
    PalcoTastiera palco;
    Ingrandisci(*palco.scrivania.Davanti(), GetParam());
    for (int tasto = 0; tasto < 60; ++tasto) {
        Clicca(palco.Tasto(tasto), {2, palco.Tasto(tasto).height() - 3});
        const std::string nome = "lb" + std::to_string(tasto);
        EXPECT_EQ(palco.Diario(), (Righe{nome + " giu", nome + " su", nome + " click"}));
    }
}

INSTANTIATE_TEST_SUITE_P(Grande, OgniTasto, testing::ValuesIn(scale));

TEST(TastieraSulloSchermo, OnAWiderPictureItIsHitAndPaintedAsFarAsItReaches) {
    PalcoTastiera palco;
    const QRect prima = palco.Tasto(59).rect();
    palco.NellaLogica([](FormTastiera& form) {
        const Figura& figura = form.tastiera.figura;
        form.tastiera.PonPosto({figura.Left, 0, figura.Width * 7 / 10, figura.Height * 7 / 10});
    });
    const Cosa ultimo = palco.Tasto(59);
    EXPECT_NEAR(ultimo.width(), 0.7 * prima.width(), 1.1);
    EXPECT_NEAR(ultimo.height(), 0.7 * prima.height(), 1.1);
    Clicca(ultimo, {ultimo.width() - 2, ultimo.height() - 2});
    EXPECT_EQ(palco.Diario().back(), "lb59 click");
    palco.NellaLogica([](FormTastiera& form) { Accendi(form.tastiera.lb[59], true); });
    EXPECT_EQ(Fotografa(ultimo).pixelColor(ultimo.width() / 2, ultimo.height() - 5), acceso);
}

/// Notes what a widget is asked to paint.
class Ridipinto final : public QObject {
public:
    explicit Ridipinto(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* evento) override {
        if (evento->type() == QEvent::Paint) tutto += static_cast<QPaintEvent*>(evento)->region();
        return false;
    }
    QRegion tutto;
};

TEST(TastieraSulloSchermo, AKeyThatIsLitRepaintsNothingButItself) {
    PalcoTastiera palco;
    const Cosa accanto = Trova(palco.scrivania, "accanto");
    for (const int tasto : {24, 25}) {
        // What was asked for before is painted first.
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        const Cosa suo = palco.Tasto(tasto);
        QWidget& faccia = suo.Suolo();
        Ridipinto ridipinto(faccia);
        palco.NellaLogica([=](FormTastiera& form) {
            Accendi(form.tastiera.lb[static_cast<std::size_t>(tasto)], true);
        });
        ASSERT_TRUE(Aspetta([&] { return !ridipinto.tutto.isEmpty(); }));
        const auto posto = [&faccia](const Cosa& cosa) {
            return QRect(faccia.mapFrom(faccia.window(), cosa.NellaFinestra({})),
                         cosa.rect().size());
        };
        // A black key throws a shadow. The button beside it serves the test.
        const QRegion suoi = QRegion(posto(suo).adjusted(0, 0, 3, 4)) + posto(accanto);
        EXPECT_TRUE((ridipinto.tutto - suoi).isEmpty()) << tasto;
    }
}

TEST(TastieraSulloSchermo, ABlackKeyIsHitBeforeTheWhiteOneBeneathIt) {
    PalcoTastiera palco;
    const Cosa nero = palco.Tasto(1);
    for (const QPoint dove : {QPoint(0, 0), QPoint(nero.width() - 1, nero.height() - 1)}) {
        Clicca(nero, dove);
        EXPECT_EQ(palco.Diario().back(), "lb1 click");
    }
    Clicca(nero, {0, nero.height()});
    EXPECT_EQ(palco.Diario().back(), "lb0 click");
}

TEST(TastieraSulloSchermo, AKeyIsLitInItsColourWhileTheButtonIsDown) {
    PalcoTastiera palco;
    const Cosa tasto = palco.Tasto(24);
    const QPoint sotto(tasto.width() / 2, tasto.height() - 8);
    const QImage prima = Fotografa(tasto);
    QWindow* finestra = tasto.window()->windowHandle();
    QTest::mousePress(finestra, Qt::LeftButton, {}, tasto.NellaFinestra(sotto));
    palco.NellaLogica({});
    EXPECT_EQ(Fotografa(tasto).pixelColor(sotto), acceso);
    // It comes up for the key on which it went down.
    QTest::mouseRelease(finestra, Qt::LeftButton, {}, palco.Tasto(30).NellaFinestra({2, 2}));
    EXPECT_EQ(palco.Diario(), (Righe{"lb24 giu", "lb24 su"}));
    EXPECT_EQ(Fotografa(tasto), prima);
}

TEST(TastieraSulloSchermo, MarksLieUnderWhiteKeysAndAboveBlackOnesAndMiddleCIsBlue) {
    PalcoTastiera palco;
    const auto colore = [&](const QString& nome) {
        const Cosa cosa = Trova(palco.scrivania, nome);
        return Fotografa(cosa).pixelColor(cosa.rect().center());
    };
    EXPECT_EQ(colore("Lbdoc"), QColor(0, 0, 255));
    for (const int tasto : {0, 1, 24, 58, 59}) {
        const QString nome = QStringLiteral("lbr%1").arg(tasto);
        EXPECT_NE(colore(nome), QColor(0, 255, 0)) << tasto;
        palco.NellaLogica([=](FormTastiera& form) {
            Accendi(form.tastiera.lbr[static_cast<std::size_t>(tasto)], true);
        });
        EXPECT_EQ(colore(nome), QColor(0, 255, 0)) << tasto;
        const int mezzo = Trova(palco.scrivania, nome).NellaFinestra({0, 3}).y();
        const Cosa suo = palco.Tasto(tasto);
        if (Nero(tasto))
            EXPECT_LT(mezzo, suo.NellaFinestra({0, 0}).y()) << tasto;
        else
            EXPECT_GE(mezzo, suo.NellaFinestra({0, suo.height()}).y()) << tasto;
    }
}

TEST(TastieraSulloSchermo, ADoubleClickOnMiddleCsMarkIsItsOwn) {
    PalcoTastiera palco;
    const Cosa segno = Trova(palco.scrivania, "Lbdoc");
    QTest::mouseDClick(segno.window()->windowHandle(), Qt::LeftButton, {},
                       segno.NellaFinestra(segno.rect().center()));
    EXPECT_EQ(palco.Diario(), (Righe{"Lbdoc doppio"}));
    EXPECT_EQ(segno.toolTip(), "Do Centrale");
}

TEST(TastieraSulloSchermo, ShiftAndEnterAreADoubleClickOnMiddleCsMark) {
    PalcoTastiera palco;
    Trova(palco.scrivania, "img2").setFocus(Qt::TabFocusReason);
    Batti(palco.scrivania, Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(palco.Diario(), (Righe{"Lbdoc doppio"}));
}

TEST(TastieraSulloSchermo, ControlAndEnterClickAKeyTwiceWhereSomebodyListens) {
    PalcoTastiera palco;
    Trova(palco.scrivania, "img2").setFocus(Qt::TabFocusReason);
    Batti(palco.scrivania, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(palco.Diario(), (Righe{"lb24 giu", "lb24 su", "lb24 click"}));
    std::atomic<int> doppi = 0;
    palco.NellaLogica(
        [&](FormTastiera& form) { form.tastiera.lb[24].DblClick = [&] { ++doppi; }; });
    palco.Diario();
    Batti(palco.scrivania, Qt::Key_Return, Qt::ControlModifier);
    Batti(palco.scrivania, Qt::Key_Return);
    palco.NellaLogica({});
    EXPECT_EQ(doppi, 1);
}

TEST(TastieraSulloSchermo, AllKeysAreOneStopOfTheTabKey) {
    PalcoTastiera palco;
    const Cosa tastiera = Trova(palco.scrivania, "img2"),
               accanto = Trova(palco.scrivania, "accanto");
    accanto.setFocus();
    Batti(palco.scrivania, Qt::Key_Tab);
    EXPECT_TRUE(tastiera.hasFocus());
    Batti(palco.scrivania, Qt::Key_Tab);
    EXPECT_TRUE(accanto.hasFocus());
    Batti(palco.scrivania, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(tastiera.hasFocus());
}

TEST(TastieraSulloSchermo, TheArrowsChooseAKeyAndTheSpaceBarHoldsItDown) {
    PalcoTastiera palco;
    Trova(palco.scrivania, "img2").setFocus(Qt::TabFocusReason);
    const QImage centrale = Fotografa(palco.Tasto(24)), vicina = Fotografa(palco.Tasto(25));
    Batti(palco.scrivania, Qt::Key_Right);
    EXPECT_NE(Fotografa(palco.Tasto(24)), centrale) << "the focus can't be seen to go";
    EXPECT_NE(Fotografa(palco.Tasto(25)), vicina) << "the focus can't be seen to come";
    Premi(palco.scrivania, Qt::Key_Space);
    EXPECT_EQ(palco.Diario(), (Righe{"lb25 giu"}));
    Lascia(palco.scrivania, Qt::Key_Space);
    EXPECT_EQ(palco.Diario(), (Righe{"lb25 su", "lb25 click"}));
    const std::pair<Qt::Key, const char*> mosse[] = {
        {Qt::Key_PageUp, "lb37 click"},   {Qt::Key_Left, "lb36 click"},
        {Qt::Key_End, "lb59 click"},      {Qt::Key_Right, "lb59 click"},
        {Qt::Key_PageDown, "lb47 click"}, {Qt::Key_Home, "lb0 click"},
        {Qt::Key_Left, "lb0 click"}};
    for (const auto& [mossa, attesa] : mosse) {
        Batti(palco.scrivania, mossa);
        Batti(palco.scrivania, Qt::Key_Return);
        EXPECT_EQ(palco.Diario().back(), attesa);
    }
}

TEST(TastieraSulloSchermo, AKeyHeldWithTheSpaceBarComesUpWhenTheFocusGoesWithoutAClick) {
    PalcoTastiera palco;
    Trova(palco.scrivania, "img2").setFocus(Qt::TabFocusReason);
    Premi(palco.scrivania, Qt::Key_Space);
    Trova(palco.scrivania, "accanto").setFocus();
    EXPECT_EQ(palco.Diario(), (Righe{"lb24 giu", "lb24 su"}));
}

TEST(TastieraSulloSchermo, AScreenReaderFindsEachKeyByItsNoteAndOctave) {
    PalcoTastiera palco;
    QAccessibleInterface* tastiera = Trova(palco.scrivania, "img2").PerLettore();
    EXPECT_EQ(tastiera->role(), QAccessible::Grouping);
    QStringList nomi;
    for (int i = 0; i < tastiera->childCount(); ++i)
        nomi.append(tastiera->child(i)->text(QAccessible::Name));
    EXPECT_EQ(nomi.count(QStringLiteral("Do Centrale")), 1);
    for (const char* nome : {"Do 2", "Do# 2", "Do 4", "La 4", "Si 6"})
        EXPECT_EQ(nomi.count(QLatin1String(nome)), 1) << nome;
    QAccessibleInterface* la = palco.Tasto(33).PerLettore();
    EXPECT_EQ(la->role(), QAccessible::PushButton);
    EXPECT_EQ(la->parent(), tastiera);
    EXPECT_EQ(la->rect().size(), palco.Tasto(33).rect().size());
    la->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(palco.Diario(), (Righe{"lb33 giu", "lb33 su", "lb33 click"}));
}

TEST(TastieraSulloSchermo, TheFaceTellsAScreenReaderWhichKeyHasTheFocus) {
    PalcoTastiera palco;
    const Cosa cosa = Trova(palco.scrivania, "img2");
    cosa.setFocus(Qt::TabFocusReason);
    Batti(palco.scrivania, Qt::Key_Right);
    QAccessibleInterface* faccia = QAccessible::queryAccessibleInterface(&cosa.Suolo());
    ASSERT_TRUE(faccia->focusChild());
    EXPECT_EQ(faccia->focusChild()->text(QAccessible::Name), "Do# 4");
    EXPECT_TRUE(faccia->focusChild()->state().focused);
}

}  // namespace
}  // namespace corvana::prova
