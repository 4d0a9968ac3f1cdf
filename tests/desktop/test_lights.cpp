#include <gtest/gtest.h>

#include <cmath>

#include "desktop/light_painter.h"
#include "desktop/light_view.h"
#include "tests/desktop/stage.h"

namespace corvana::prova {
namespace {

constexpr Colore rosso = Rgb(255, 0, 0), verde = Rgb(0, 255, 0), blu = Rgb(0, 0, 255);
constexpr Colore grigio = Rgb(0xAA, 0xAA, 0xAA);
const QRectF casella(0, 0, 8, 11);

QImage Dipinta(Colore colore, double scala) {
    const double lato = 60 * scala;
    QImage foto(qRound(lato), qRound(lato), QImage::Format_RGB32);
    foto.fill(Qt::black);
    QPainter p(&foto);
    const QSizeF misura = casella.size() * scala;
    DipingiLuce(p, {QPointF((lato - misura.width()) / 2, (lato - misura.height()) / 2), misura},
                colore, scala);
    p.end();
    return foto;
}

/// How many points are as light as the colour itself: its shape.
int Sagoma(Colore colore) {
    const QImage foto = Dipinta(colore, 4);
    int punti = 0;
    for (int x = 0; x < foto.width(); ++x)
        for (int y = 0; y < foto.height(); ++y)
            punti += foto.pixelColor(x, y) == InQt(colore, {});
    return punti;
}

TEST(Luce, ALitOneShinesFarBeyondItsBoxAndAnUnlitOneKeepsToIt) {
    for (const double scala : {1.0, 2.0, 3.0})
        for (const Colore colore : {rosso, verde, blu, grigio}) {
            const QImage foto = Dipinta(colore, scala);
            const int mezzo = foto.width() / 2, fuori = mezzo + qRound(14 * scala);
            const bool oltre = foto.pixelColor(fuori, mezzo) != Qt::black;
            EXPECT_EQ(oltre, colore != grigio) << scala;
        }
}

TEST(Luce, EachPulseHasAShapeOfItsOwn) {
    EXPECT_EQ(SagomaDi(rosso), SagomaLuce::Quadro);
    EXPECT_EQ(SagomaDi(verde), SagomaLuce::Disco);
    EXPECT_EQ(SagomaDi(blu), SagomaLuce::Triangolo);
    EXPECT_EQ(SagomaDi(grigio), SagomaLuce::Punto);
    // Of one breadth, a disc fills three quarters of a square, and a triangle half of it.
    EXPECT_NEAR(Sagoma(verde) / double(Sagoma(rosso)), 0.78, 0.05);
    EXPECT_NEAR(Sagoma(blu) / double(Sagoma(rosso)), 0.45, 0.1);
}

TEST(Luce, ALitOneLiesOverItsNeighboursAndGoesOutWithoutATrace) {
    Palco palco([](FormDiProva& form) {
        for (Etichetta* luce : {&form.scritta, &form.toccabile}) {
            luce->stile = "luce";
            luce->BackColor = grigio;
            luce->Top = 600;
            luce->Width = 120;
            luce->Height = 165;
        }
        form.scritta.Left = 600;
        form.toccabile.Left = 720;
    });
    const auto foto = [&] { return Fotografa(palco.scrivania); };
    const QImage spente = foto();
    palco.NellaLogica([](FormDiProva& form) { form.scritta.BackColor = rosso; });
    const QImage accesa = foto();
    const Cosa luce = Trova(palco.scrivania, "scritta");
    EXPECT_FALSE(luce.Fermata());
    const QPoint prima = luce.NellaFinestra(luce.rect().center());
    EXPECT_EQ(accesa.pixelColor(prima), InQt(rosso, {}));
    EXPECT_EQ(accesa.pixelColor(prima + QPoint(7, 0)), InQt(rosso, {})) << "its neighbour hides it";
    palco.NellaLogica([](FormDiProva& form) { form.scritta.BackColor = grigio; });
    EXPECT_EQ(foto(), spente);
    palco.NellaLogica([](FormDiProva& form) { form.scritta.Visible = false; });
    EXPECT_NE(foto(), spente);
}

}  // namespace
}  // namespace corvana::prova
