#include <gtest/gtest.h>

#include "desktop/aspect.h"

namespace corvana {
namespace {

TEST(Aspetto, CaptionsLoseTheMarksOfTheirAccessKeys) {
    EXPECT_EQ(SenzaAccesso("&File"), "File");
    EXPECT_EQ(SenzaAccesso("A && B"), "A & B");
    EXPECT_EQ(SenzaAccesso("Fine&"), "Fine");
}

TEST(Aspetto, TheToolTipNamesAControlBeforeItsCaptionDoes) {
    Aspetto aspetto;
    aspetto.Caption = "&?";
    EXPECT_EQ(NomeAccessibile(aspetto), "?");
    aspetto.ToolTipText = "Mostra il nome";
    EXPECT_EQ(NomeAccessibile(aspetto), "Mostra il nome");
}

TEST(Aspetto, FifteenTwipsAreAPixelAtTheDesignedSize) {
    EXPECT_EQ(InPixel({15, 30, 150, 45}, 1), QRect(1, 2, 10, 3));
    EXPECT_EQ(InPixel({15, 30, 150, 45}, 2), QRect(2, 4, 20, 6));
}

TEST(Aspetto, EdgesThatMeetInTwipsMeetInPixelsAtAnyScale) {
    for (double scala = 0.8; scala < 3; scala += 0.07) {
        const QRect sinistra = InPixel({0, 0, 2355, 10}, scala);
        const QRect destra = InPixel({2355, 0, 1110, 10}, scala);
        EXPECT_EQ(sinistra.right() + 1, destra.left()) << scala;
    }
}

TEST(Aspetto, ColoursAreReadWithRedInTheLowestByte) {
    EXPECT_EQ(InQt(Rgb(255, 128, 0), Qt::black), QColor(255, 128, 0));
    EXPECT_EQ(InQt(coloreDiSistema, Qt::black), QColor(Qt::black));
}

TEST(Aspetto, ACopyTakesEveryPropertyOfItsControl) {
    CopiaControllo copia;
    copia.nome = "Velocità";
    copia.stile = "titolo centro";
    copia.proprieta = {{&Valori::Caption, std::string("a\r\nb")},
                       {&Valori::Left, 45},
                       {&Valori::Visible, false},
                       {&Valori::List, Righe{"x", "y"}}};
    const Aspetto aspetto = AspettoDa(copia);
    EXPECT_EQ(aspetto.nome, QString::fromUtf8("Velocità"));
    EXPECT_TRUE(aspetto.Ha("titolo") && aspetto.Ha("centro"));
    EXPECT_EQ(InQt(aspetto.Caption), "a\nb");
    EXPECT_EQ(aspetto.Left, 45);
    EXPECT_FALSE(aspetto.Visible);
    EXPECT_EQ(InQt(aspetto.List), QStringList({"x", "y"}));
}

}  // namespace
}  // namespace corvana
