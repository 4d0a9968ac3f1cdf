#include <gtest/gtest.h>

#include "tests/desktop/stage.h"
#include "trainer/positions.h"

namespace corvana::prova {
namespace {

Cosa RegoloDi(Palco& palco) {
    return Trova(palco.scrivania, "Regolo");
}

TEST(Regolo, AClickTellsItsHeightInTwips) {
    Palco palco;
    Clicca(RegoloDi(palco), {8, 120});
    ASSERT_EQ(palco.Diario(), (Righe{"Regolo 1800"}));
    const Posizione* segnata = PosizioneDaRegolo(1800);
    ASSERT_TRUE(segnata);
    EXPECT_EQ(segnata->numero, 45);
}

TEST(Regolo, TheArrowsChooseABandAndTheSpaceBarMarksIt) {
    Palco palco;
    RegoloDi(palco).setFocus(Qt::TabFocusReason);
    Batti(palco.scrivania, Qt::Key_Up);
    Batti(palco.scrivania, Qt::Key_Space);
    const Posizione* fa = CercaPosizione(47);
    const int mezzo = (fa->fasciaDa + fa->fasciaA) / 2;
    const Righe diario = palco.Diario();
    EXPECT_NE(std::find(diario.begin(), diario.end(), "Regolo " + std::to_string(mezzo)),
              diario.end());
}

TEST(Regolo, TheArrowsStopAtItsEnds) {
    Palco palco;
    RegoloDi(palco).setFocus(Qt::TabFocusReason);
    for (int i = 0; i < 60; ++i)
        Batti(palco.scrivania, Qt::Key_Down);
    palco.Diario();
    Batti(palco.scrivania, Qt::Key_Space);
    const Posizione* prima = CercaPosizione(posizioneMinima);
    const std::string attesa = "Regolo " + std::to_string((prima->fasciaDa + prima->fasciaA) / 2);
    const Righe diario = palco.Diario();
    EXPECT_NE(std::find(diario.begin(), diario.end(), attesa), diario.end());
}

TEST(Regolo, TheBandUnderThePointerStandsOut) {
    Palco palco;
    const Cosa regolo = RegoloDi(palco);
    const QImage prima = Fotografa(regolo);
    Muovi(regolo, {8, 120});
    ASSERT_TRUE(Aspetta([&] { return Fotografa(regolo) != prima; }));
    EXPECT_NE(Fotografa(regolo).pixelColor(8, 120), prima.pixelColor(8, 120));
}

TEST(Regolo, AScreenReaderSaysWhatItIsFor) {
    Palco palco;
    EXPECT_EQ(RegoloDi(palco).accessibleName(), "Segna l'intervallo");
}

}  // namespace
}  // namespace corvana::prova
