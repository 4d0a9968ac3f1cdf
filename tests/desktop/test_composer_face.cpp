// The melody window as it is seen, read to the learner, and reached with the keyboard.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QTest>
#include <set>

#include "composer/composer.h"
#include "desktop/face_reader.h"
#include "desktop/figure_painter.h"
#include "desktop/sign_painter.h"
#include "desktop/theme.h"
#include "tests/desktop/program_stage.h"
#include "tests/program/program_rig.h"

namespace corvana::prova {
namespace {

const QStringList segni = {"0",       "1",          "2",       "3",        "4",
                           "5",       "6",          "punto",   "staccato", "legatura",
                           "terzina", "appoggiato", "accento", "maggiore"};
constexpr Colore acceso = Rgb(10, 254, 10);
const QRect bottone(0, 0, 39, 48);

QImage DipintaFigura(const QString& nome, bool accesa, double scala) {
    QImage foto((QSizeF(bottone.size()) * scala).toSize(), QImage::Format_RGB32);
    foto.fill(Qt::white);
    Aspetto aspetto;
    aspetto.stile = {"figura:" + nome};
    if (accesa) aspetto.BackColor = acceso;
    QPainter p(&foto);
    DipingiFigura(p, foto.rect(), aspetto, scala, {}, accesa);
    return foto;
}

QImage DipintaVoce(bool attiva, double scala) {
    QImage foto((QSizeF(72, 44) * scala).toSize(), QImage::Format_RGB32);
    foto.fill(Qt::white);
    Aspetto aspetto;
    aspetto.Caption = "S";
    // The same colour for both, as some eyes have it.
    aspetto.BackColor = Rgb(128, 128, 128);
    QPainter p(&foto);
    DipingiVoceAttiva(p, foto.rect(), aspetto, scala, {}, attiva);
    return foto;
}

/// Points that are nearly black.
int PuntiScuri(const QImage& foto, const QRect& dove) {
    int punti = 0;
    for (int x = dove.left(); x <= dove.right(); ++x)
        for (int y = dove.top(); y <= dove.bottom(); ++y)
            punti += qGray(foto.pixel(x, y)) < 90 ? 1 : 0;
    return punti;
}

TEST(Figure, EachSignIsADrawingOfItsOwn) {
    std::set<QString> viste;
    for (const QString& nome : segni) {
        const QPainterPath traccia = TracciaFigura(nome);
        EXPECT_FALSE(traccia.isEmpty()) << nome.toStdString();
        const QRectF r = traccia.boundingRect();
        viste.insert(
            QStringLiteral("%1 %2 %3").arg(r.width()).arg(r.height()).arg(traccia.elementCount()));
    }
    EXPECT_EQ(viste.size(), 14U);
    for (const char* nome : {"7", "-1", "", "Punto"})
        EXPECT_TRUE(TracciaFigura(QString::fromLatin1(nome)).isEmpty()) << nome;
}

TEST(Figure, EachSignLiesWhollyInItsButtonAtEveryScale) {
    for (const double scala : {0.8, 1.0, 2.0})
        for (const QString& nome : segni) {
            const QImage foto = DipintaFigura(nome, false, scala);
            EXPECT_GT(PuntiScuri(foto, foto.rect()), 15 * scala * scala) << nome.toStdString();
            const int bordo = qRound(3 * scala);
            EXPECT_EQ(PuntiScuri(foto, {0, 0, foto.width(), bordo}), 0) << nome.toStdString();
            EXPECT_EQ(PuntiScuri(foto, {0, 0, bordo, foto.height()}), 0) << nome.toStdString();
            EXPECT_EQ(PuntiScuri(foto, {foto.width() - bordo, 0, bordo, foto.height()}), 0)
                << nome.toStdString();
        }
}

TEST(Figure, ALitOneHasADarkFrameAndALampAtItsFoot) {
    for (const double scala : {1.0, 2.0}) {
        const QImage spenta = DipintaFigura("2", false, scala),
                     accesa = DipintaFigura("2", true, scala);
        const QPoint cornice(qRound(scala), accesa.height() / 2);
        EXPECT_LT(qGray(accesa.pixel(cornice)), 110);
        EXPECT_GT(qGray(spenta.pixel(cornice)), 150);
        const QPoint lampada(accesa.width() / 2, qRound(41 * scala));
        EXPECT_EQ(accesa.pixelColor(lampada), InQt(acceso, {}));
        EXPECT_GT(qGray(spenta.pixel(lampada)), 240);
    }
}

TEST(VoceAttiva, TheOneThatIsWrittenBearsATickWhateverTheColours) {
    const double scala = 2;
    const QRect lampada(QPoint(103, 37), QSize(14, 14));
    EXPECT_GT(PuntiScuri(DipintaVoce(true, scala), lampada), 20);
    EXPECT_EQ(PuntiScuri(DipintaVoce(false, scala), lampada), 0);
    const QPoint cornice(2, 44);
    EXPECT_LT(qGray(DipintaVoce(true, scala).pixel(cornice)), 110);
    EXPECT_GT(qGray(DipintaVoce(false, scala).pixel(cornice)), 150);
}

/// The melody window over the main one.
struct PalcoComposer : PalcoProgramma {
    PalcoComposer() : PalcoProgramma(QStringLiteral(CORVANA_DATA)) {
        TrovaVoce(scrivania, QStringLiteral("mnuComposer")).trigger();
        AspettaFinestra(scrivania, QStringLiteral("frmComposer"));
    }
    Cosa Di(const QString& nome) { return Trova(scrivania, nome); }
    bool Segnato(const QString& nome) {
        const QAccessible::State stato = Di(nome).PerLettore()->state();
        EXPECT_TRUE(stato.checkable) << nome.toStdString();
        return stato.checked;
    }
    bool Diventa(const QString& nome, bool segnato) {
        return Aspetta([&] { return Segnato(nome) == segnato; });
    }
};

TEST(Passi, ALampForEachIsLitAsFarAsTheyWereGone) {
    const auto accese = [](int fatti) {
        Aspetto aspetto;
        aspetto.Max = 2;
        aspetto.Value = fatti;
        QImage foto(54, 32, QImage::Format_RGB32);
        foto.fill(tinta::bottone);
        QPainter p(&foto);
        DipingiPassi(p, foto.rect(), aspetto, 1);
        int punti = 0;
        for (int x = 0; x < foto.width(); ++x)
            for (int y = 0; y < foto.height(); ++y)
                punti += foto.pixelColor(x, y) == tinta::accento;
        return punti;
    };
    EXPECT_EQ(accese(0), 0);
    EXPECT_GT(accese(1), 8);
    EXPECT_EQ(accese(2), 2 * accese(1));
}

TEST(FacciaComposer, AReaderIsToldWhichFigureAndAttributeAreLitAndWhichVoiceIsWritten) {
    PalcoComposer p;
    const auto passa = [&p](const QString& da, const QString& a) {
        ASSERT_TRUE(p.Diventa(da, true)) << da.toStdString();
        EXPECT_FALSE(p.Segnato(a)) << a.toStdString();
        Clicca(p.scrivania, a);
        EXPECT_TRUE(p.Diventa(a, true)) << a.toStdString();
        EXPECT_FALSE(p.Segnato(da)) << da.toStdString();
    };
    passa("cmdSimbNote2", "cmdSimbNote3");
    passa("VoceAttiva0", "VoceAttiva2");
    Clicca(p.scrivania, "cmdAttrNota1");
    passa("cmdAttrNota1", "cmdAttrNota3");
    // The accent of a triplet's note shows by itself, lit.
    ASSERT_TRUE(Aspetta([&] { return p.Di("lblAt").isVisible(); }));
    EXPECT_TRUE(p.Segnato("lblAt"));
    Clicca(p.scrivania, "lblAt");
    EXPECT_TRUE(p.Diventa("lblAt", false));
}

TEST(FacciaComposer, AllThatTheTabKeyReachesHasAName) {
    PalcoComposer p;
    int fermate = 0;
    BancoProgramma b;
    const frmComposer finestra(b.Tutto(), {});
    for (const Controllo* c : finestra.Controlli()) {
        if (c->tipo == Genere::VoceMenu || c->tipo == Genere::MenuContestuale) continue;
        const Cosa cosa = p.Di(QString::fromStdString(c->Name));
        // The keys on the screen say their names themselves.
        if (!cosa.Fermata() || c->Name == "tastiera") continue;
        ++fermate;
        EXPECT_FALSE(cosa.accessibleName().isEmpty()) << c->Name;
    }
    EXPECT_GT(fermate, 90);
}

TEST(FacciaComposer, WhatSaysNothingItselfIsCalledByTheToolTipBesideIt) {
    PalcoComposer p;
    for (const auto& [nome, altro] : {std::pair{"VolS", "lblVolS"},
                                      {"VolB", "lblVolB"},
                                      {"lblMuteC1", "lblVolC"},
                                      {"Slider1", "Velocità"},
                                      {"InizioPuls", "LblInizioPuls"}}) {
        const QString consiglio = p.Di(QString::fromUtf8(altro)).toolTip();
        EXPECT_GT(consiglio.size(), 5) << altro;
        EXPECT_EQ(p.Di(QString::fromUtf8(nome)).accessibleName(), consiglio) << nome;
    }
    EXPECT_EQ(p.Di("chekLoop").accessibleName(),
              StatoDi(p.scrivania, "chekLoopLb").Caption.c_str());
}

TEST(FacciaComposer, TheRightButtonOnAGroundOpensTheContextMenuOfTheWindow) {
    PalcoComposer p;
    const Cosa fondo = p.Di("Shape8");
    QTest::mouseClick(fondo.window()->windowHandle(), Qt::RightButton, {},
                      fondo.NellaFinestra(fondo.rect().center()));
    EXPECT_TRUE(Aspetta([] { return QApplication::activePopupWidget() != nullptr; }));
    if (QWidget* menu = QApplication::activePopupWidget()) menu->close();
}

TEST(FacciaComposer, AClickOnTheWordsBesideABoxTicksIt) {
    PalcoComposer p;
    for (const auto& [casella, parole] :
         {std::pair{"chekLoop", "chekLoopLb"}, {"ckConsAtt", "ckConsAttLb"}}) {
        const auto& spunta = p.Di(casella).Come<QAbstractButton>();
        const bool prima = spunta.isChecked();
        Clicca(p.scrivania, QString::fromUtf8(parole));
        EXPECT_NE(spunta.isChecked(), prima) << casella;
    }
}

TEST(FacciaComposer, TheListOfMelodiesOpensOverThePaletteAndClosesAgain) {
    PalcoComposer p;
    TrovaVoce(p.scrivania, "mnuApri").trigger();
    ASSERT_TRUE(Aspetta([&] { return p.Di("Fr2").isVisible(); }));
    // Where a button of the palette was, there is the list.
    const Cosa nota = p.Di("cmdInsNota");
    const QPoint dove = nota.NellaFinestra(nota.rect().center() - nota.rect().topLeft());
    const QWidget* sopra = nota.window()->childAt(dove);
    EXPECT_NE(sopra, &static_cast<QWidget&>(nota));
    Clicca(p.scrivania, "cmdChiudi");
    EXPECT_TRUE(Aspetta([&] { return !p.Di("Fr2").isVisible(); }));
    EXPECT_TRUE(Aspetta([&] { return p.Di("cmdPlay").hasFocus(); }));
}

}  // namespace
}  // namespace corvana::prova
