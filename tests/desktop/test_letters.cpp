#include <gtest/gtest.h>

#include <algorithm>

#include "desktop/letter_painter.h"
#include "tests/desktop/text_witness.h"

namespace corvana::prova {
namespace {

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
