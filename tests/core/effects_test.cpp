#include "core/effects.h"

#include <gtest/gtest.h>

#include "forms/form.h"

namespace corvana::prova {

namespace {

struct FinestraEffetti : Form {
    FinestraEffetti() : Form("frmEffetti") {
        figura.Left = 100;
        figura.Top = 200;
        altra.Left = 300;
        altra.Top = 400;
        fondo.Top = 1500;
        fondo.Height = 1620;
    }
    Figura figura{*this, "figura"}, altra{*this, "altra"};
    Figura fondo{*this, "fondo"}, barra{*this, "barra"};
    Etichetta etichetta{*this, "etichetta"};
    StatoHover hover;
};

}  // namespace

TEST(Gradiente, KeepsBothColoursTheDirectionAndTheForm) {
    FinestraEffetti f;
    Gradiente(f.figura, 1, 2, 3, 4, 5, 6, "ab", "i");
    EXPECT_EQ(f.figura.Sfondo(), (Sfumatura{Rgb(1, 2, 3), Rgb(4, 5, 6), false, false}));
    Gradiente(f.figura, 1, 2, 3, 4, 5, 6, "ds", "d2");
    EXPECT_EQ(f.figura.Sfondo(), (Sfumatura{Rgb(1, 2, 3), Rgb(4, 5, 6), true, true}));
}

TEST(Gradiente, MovesAndResizesNothing) {
    FinestraEffetti f;
    Gradiente(f.figura, 0, 0, 0, 255, 255, 255, "ds", "i");
    EXPECT_EQ(f.figura.Left(), 100);
    EXPECT_EQ(f.figura.Top(), 200);
}

TEST(ImpostaBarra, WithNothingIsABarOfNoHeightAtTheBottom) {
    FinestraEffetti f;
    ImpostaBarra(f.barra, f.fondo, 0, "v");
    EXPECT_EQ(f.barra.Height(), 0);
    EXPECT_EQ(f.barra.Top(), 1500 + 1620);
}

TEST(ImpostaBarra, WithAllCoversItsBackground) {
    FinestraEffetti f;
    ImpostaBarra(f.barra, f.fondo, 1, "v");
    EXPECT_EQ(f.barra.Height(), 1620);
    EXPECT_EQ(f.barra.Top(), 1500);
}

TEST(ImpostaBarra, GrowsFromTheBottom) {
    FinestraEffetti f;
    for (const float rapporto : {0.1F, 0.25F, 1.0F / 3.0F, 0.5F, 0.999F}) {
        ImpostaBarra(f.barra, f.fondo, rapporto, "v");
        EXPECT_NEAR(f.barra.Height(), rapporto * 1620, 0.5);
        EXPECT_EQ(f.barra.Top() + f.barra.Height(), 1500 + 1620);
    }
}

TEST(ImpostaBarra, KnowsTheVerticalBarOnly) {
    FinestraEffetti f;
    for (const char* orientamento : {"o", "", "V", "h"})
        ImpostaBarra(f.barra, f.fondo, 1, orientamento);
    EXPECT_EQ(f.barra.Height(), 0);
    EXPECT_EQ(f.barra.Top(), 0);
}

TEST(EffettoImmagine, SinksByTenTwipsAndComesBack) {
    FinestraEffetti f;
    EffettoImmagine(f.hover, f.figura, "over");
    EXPECT_EQ(f.figura.Left(), 110);
    EXPECT_EQ(f.figura.Top(), 210);
    EXPECT_TRUE(f.hover.HoverAttivo);
    EffettoImmagine(f.hover, f.figura, "out");
    EXPECT_EQ(f.figura.Left(), 100);
    EXPECT_EQ(f.figura.Top(), 200);
    EXPECT_FALSE(f.hover.HoverAttivo);
}

TEST(EffettoImmagine, TwoOverCallsInARowMoveAControlOnlyOnce) {
    FinestraEffetti f;
    EffettoImmagine(f.hover, f.figura, "over");
    EffettoImmagine(f.hover, f.figura, "over");
    EXPECT_EQ(f.figura.Left(), 110);
    EXPECT_EQ(f.figura.Top(), 210);
}

TEST(EffettoImmagine, WhileOneIsSunkNoOtherSinks) {
    FinestraEffetti f;
    EffettoImmagine(f.hover, f.figura, "over");
    EffettoImmagine(f.hover, f.altra, "over");
    EXPECT_EQ(f.altra.Left(), 300);
    EXPECT_EQ(f.hover.HoverControllo, &f.figura);
}

TEST(EffettoImmagine, OutPutsBackTheOneThatSankWhicheverIsNamed) {
    FinestraEffetti f;
    EffettoImmagine(f.hover, f.figura, "over");
    EffettoImmagine(f.hover, f.altra, "out");
    EXPECT_EQ(f.figura.Left(), 100);
    EXPECT_EQ(f.figura.Top(), 200);
    EXPECT_EQ(f.altra.Left(), 300);
    EXPECT_EQ(f.altra.Top(), 400);
}

TEST(EffettoImmagine, OutWithNothingSunkAndAnyOtherStateDoNothing) {
    FinestraEffetti f;
    EffettoImmagine(f.hover, f.figura, "out");
    EffettoImmagine(f.hover, f.figura, "sopra");
    EXPECT_EQ(f.figura.Left(), 100);
    EXPECT_FALSE(f.hover.HoverAttivo);
}

TEST(EffettoPulsante, ThePictureSinksOnceAndTheLabelTakesTheColour) {
    FinestraEffetti f;
    for (int i = 0; i < 2; ++i)
        EffettoPulsante(f.hover, f.figura, f.etichetta, "over", 255);
    EXPECT_EQ(f.figura.Left(), 110);
    EXPECT_EQ(f.figura.Top(), 210);
    EXPECT_EQ(f.etichetta.ForeColor(), 255);
    for (int i = 0; i < 2; ++i)
        EffettoPulsante(f.hover, f.figura, f.etichetta, "out", 0xFF0000);
    EXPECT_EQ(f.figura.Left(), 100);
    EXPECT_EQ(f.figura.Top(), 200);
    EXPECT_EQ(f.etichetta.ForeColor(), 0xFF0000);
}

TEST(EffettoPulsante, ThePictureIsRememberedWithItsPlaceSoThatAnyOutPutsItBack) {
    FinestraEffetti f;
    f.hover.HoverTop = f.hover.HoverLeft = 5;  // of one that sank long ago
    EffettoPulsante(f.hover, f.figura, f.etichetta, "over", 255);
    EXPECT_EQ(f.hover.HoverControllo, &f.figura);
    EffettoImmagine(f.hover, f.altra, "out");
    EXPECT_EQ(f.figura.Left(), 100);
    EXPECT_EQ(f.figura.Top(), 200);
    EXPECT_EQ(f.altra.Left(), 300);
}

TEST(RitagliaForm, GivesTheWindowItsSizeOfFifteenTwipsToThePixelAndRoundCorners) {
    FinestraEffetti f;
    RitagliaForm(f, 345, 240);
    EXPECT_EQ(f.Width(), 5175);
    EXPECT_EQ(f.Height(), 3600);
    EXPECT_EQ(f.stile, "arrotondata");
}

}  // namespace corvana::prova
