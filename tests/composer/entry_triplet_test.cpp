// Triplets by the buttons and the keys: their count, their accent, and where they end.
#include <gtest/gtest.h>

#include "tests/composer/hand_rig.h"

namespace corvana::prova {

namespace {

constexpr const char* dueTerzi = "0.333333333333333;0.333333333333333;";
constexpr const char* treTerzi = "0.333333333333333;0.333333333333333;0.333333333333333;";

}  // namespace

TEST(TerzinaAMano, ThreeDoubleClicksMakeATriplet) {
    BancoAMano b;
    b.Figura(3);
    b.Attributo(3);
    EXPECT_TRUE(b.AccentoInVista() && b.AccentoAcceso());
    b.DoppioClick(60);
    EXPECT_TRUE(b.AccentoInVista());
    EXPECT_FALSE(b.AccentoAcceso());
    b.DoppioClick(62);
    b.DoppioClick(64);
    EXPECT_EQ(b.Testi(), (TestiVoce{"60;62;64;", treTerzi, "a;n;n;"}));
    EXPECT_FALSE(b.AccentoInVista());
    EXPECT_EQ(b.AttributoAcceso(), 6);
    EXPECT_EQ(b.inserimento.contaTerzina, 0);
}

TEST(TerzinaAMano, ByTheButtonATripletEndsWithItsSecondNote) {
    BancoAMano b;
    b.Figura(3);
    b.Attributo(3);
    b.Nota();
    EXPECT_EQ(b.AttributoAcceso(), 3);
    b.Nota();
    EXPECT_EQ(b.AttributoAcceso(), 6);
    EXPECT_FALSE(b.AccentoInVista());
    b.Nota();
    EXPECT_EQ(b.Testi(), (TestiVoce{"60;60;60;", dueTerzi + std::string("0.5;"), "a;n;n;"}));
}

TEST(TerzinaAMano, ARestThatClosesATripletLeavesTheAccentOnTheScreen) {
    BancoAMano b;
    b.Figura(3);
    b.Attributo(3);
    for (int volta = 0; volta < 3; ++volta)
        b.Pausa();
    EXPECT_EQ(b.Testi(), (TestiVoce{"00;00;00;", treTerzi, "p;p;p;"}));
    EXPECT_EQ(b.AttributoAcceso(), 6);
    EXPECT_TRUE(b.AccentoInVista() && b.AccentoAcceso());
}

TEST(TerzinaAMano, TheAccentCanBeClickedOffTheFirstAndOntoTheSecondNoteOfATriplet) {
    BancoAMano b;
    b.Attributo(3);
    b.Tocca("lblAt");
    EXPECT_FALSE(b.AccentoAcceso());
    b.DoppioClick(60);
    b.Tocca("lblAt");
    EXPECT_TRUE(b.AccentoAcceso());
    b.DoppioClick(60);
    b.DoppioClick(60);
    EXPECT_EQ(b.Testi()[2], "n;a;n;");
}

TEST(TerzinaAMano, AnotherAttributeInATripletsMidstLeavesItsCountAndItsAccent) {
    BancoAMano b;
    b.Attributo(3);
    b.DoppioClick(60);
    b.Attributo(1);
    EXPECT_EQ(b.AttributoAcceso(), 1);
    EXPECT_EQ(b.inserimento.contaTerzina, 1);
    EXPECT_TRUE(b.AccentoInVista());
}

TEST(TerzinaAMano, AMelodyThatEndsWithinATripletKeepsTheCountForTheNextOne) {
    BancoAMano b;
    b.Attributo(3);
    b.DoppioClick(60);
    b.Tocca("cmdReset");
    EXPECT_TRUE(b.melodia.voci[soprano].Vuota());
    EXPECT_EQ(b.inserimento.contaTerzina, 1);
    EXPECT_EQ(b.AttributoAcceso(), 3);
}

TEST(TerzinaAMano, ADoubleClickAndTwoPressesOfTheButtonMissTheThree) {
    BancoAMano b;
    b.Figura(3);
    b.Attributo(3);
    b.DoppioClick(60);
    EXPECT_EQ(b.inserimento.contaTerzina, 1);
    b.Nota();
    EXPECT_EQ(b.inserimento.contaTerzina, 3);
    b.Nota();
    EXPECT_EQ(b.inserimento.contaTerzina, 4);
    EXPECT_EQ(b.AttributoAcceso(), 6);
    EXPECT_TRUE(b.AccentoInVista());
    EXPECT_EQ(b.Testi()[1], treTerzi);
    b.Attributo(3);
    b.Attributo(3);
    EXPECT_EQ(b.inserimento.contaTerzina, 0);
    EXPECT_FALSE(b.AccentoInVista());
}

}  // namespace corvana::prova
