#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "desktop/letter_painter.h"

namespace corvana::prova {
namespace {

double Lineare(double canale) {
    return canale <= 0.04045 ? canale / 12.92 : std::pow((canale + 0.055) / 1.055, 2.4);
}

/// As the guidelines for readable text reckon it.
double Luminanza(const QColor& c) {
    return 0.2126 * Lineare(c.redF()) + 0.7152 * Lineare(c.greenF()) + 0.0722 * Lineare(c.blueF());
}

double Contrasto(const QColor& a, const QColor& b) {
    const auto [scura, chiara] = std::minmax({Luminanza(a), Luminanza(b)});
    return (chiara + 0.05) / (scura + 0.05);
}

TEST(Lettera, KeepsItsColourAndStandsOutFromItsPlateWhateverColourThatIs) {
    for (const Colore colore : {Rgb(255, 0, 0), Rgb(0, 255, 0), Rgb(0, 0, 255)}) {
        Aspetto aspetto;
        aspetto.stile << QStringLiteral("lettera");
        aspetto.Caption = "b";
        aspetto.ForeColor = colore;
        QImage foto(60, 22, QImage::Format_RGB32);
        foto.fill(QColor(202, 143, 85));
        QPainter p(&foto);
        DipingiLettera(p, foto.rect(), aspetto, 1, {});
        p.end();
        const QColor fondo = foto.pixelColor(8, 11);
        int sua = 0;
        double migliore = 0;
        for (int x = 20; x < 40; ++x)
            for (int y = 2; y < 20; ++y) {
                const QColor punto = foto.pixelColor(x, y);
                sua += punto == InQt(colore, {});
                migliore = std::max(migliore, Contrasto(punto, fondo));
            }
        EXPECT_GT(sua, 8) << "its own colour can't be seen";
        EXPECT_GT(migliore, 7) << "nothing of it stands out";
    }
}

}  // namespace
}  // namespace corvana::prova
