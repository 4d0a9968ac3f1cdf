#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include "desktop/gradient_painter.h"
#include "tests/desktop/stage.h"

namespace corvana {
namespace {

const Sfumatura semplice{Rgb(175, 255, 26), Rgb(255, 95, 85), false, false};
const Sfumatura doppia{Rgb(239, 135, 31), Rgb(255, 228, 255), false, true};

QImage Dipinta(const Sfumatura& sfumatura, QSize misura) {
    QImage immagine(misura, QImage::Format_RGB32);
    QPainter p(&immagine);
    p.fillRect(immagine.rect(), PennelloSfumatura(sfumatura, QRectF(immagine.rect())));
    return immagine;
}

TEST(Gradiente, EachLineIsOneStepFurtherThanTheLast) {
    const auto righe = RigheSfumatura(semplice);
    EXPECT_EQ(righe.front(), qRgb(175, 255, 26));
    EXPECT_EQ(righe[140], qRgb(215, 175, 55));
    EXPECT_EQ(righe.back(), qRgb(254, 96, 84));
}

TEST(Gradiente, TheDoubleFormEndsWithTheColourThatItBeganWith) {
    const auto righe = RigheSfumatura(doppia);
    EXPECT_EQ(righe.front(), qRgb(239, 135, 31));
    EXPECT_EQ(righe.back(), righe.front());
    for (std::size_t i = 0; i < righe.size(); ++i)
        EXPECT_EQ(righe[i], righe[279 - i]) << i;
    EXPECT_EQ(righe[70], qRgb(247, 181, 143));
}

TEST(Gradiente, ItRunsFromTopToBottomOverTheWholeHeight) {
    const QImage foto = Dipinta(semplice, {5, 560});
    EXPECT_EQ(foto.pixel(0, 0), qRgb(175, 255, 26));
    EXPECT_EQ(foto.pixel(4, 280), qRgb(215, 175, 55));
    EXPECT_EQ(foto.pixel(2, 559), qRgb(254, 96, 84));
}

TEST(Gradiente, ItRunsAcrossWhenItIsTold) {
    Sfumatura attraverso = doppia;
    attraverso.orizzontale = true;
    const QImage foto = Dipinta(attraverso, {280, 3});
    EXPECT_EQ(foto.pixel(0, 2), qRgb(239, 135, 31));
    EXPECT_EQ(foto.pixel(70, 0), qRgb(247, 181, 143));
    EXPECT_EQ(foto.pixel(279, 1), qRgb(239, 135, 31));
}

TEST(Gradiente, AControlShowsItFromEdgeToEdgeAndChangesItAtOnce) {
    prova::Palco palco([](prova::FormDiProva& form) { form.sfumata.Sfondo = semplice; });
    const prova::Cosa sfumata = prova::Trova(palco.scrivania, "sfumata");
    QImage foto = prova::Fotografa(sfumata);
    EXPECT_EQ(foto.pixel(20, 0), RigheSfumatura(semplice)[1]);
    EXPECT_EQ(foto.pixel(20, 40), RigheSfumatura(semplice)[141]);
    EXPECT_EQ(foto.pixel(20, 79), RigheSfumatura(semplice)[278]);
    palco.NellaLogica([](prova::FormDiProva& form) { form.sfumata.Sfondo = doppia; });
    foto = prova::Fotografa(sfumata);
    EXPECT_EQ(foto.pixel(20, 79), RigheSfumatura(doppia)[278]);
}

}  // namespace
}  // namespace corvana
