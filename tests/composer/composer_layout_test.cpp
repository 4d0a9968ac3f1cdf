// What the melody window's controls hold before it is opened.
#include <gtest/gtest.h>

#include <array>

#include "tests/composer/composer_rig.h"

namespace corvana::prova {

namespace {

struct BancoChiuso : Banco {
    frmComposer finestra{Tutto(), {[] { return ""; }, [] { return ""; }, {}}};
};

using Luogo = std::array<int, 4>;  ///< left, top, width, height

Luogo DoveSta(const Controllo& c) {
    return {c.Left(), c.Top(), c.Width(), c.Height()};
}

using Corsa = std::array<int, 3>;  ///< left or upper end, the other end, value

Corsa CorsaDi(const Barra& barra) {
    return {barra.Min(), barra.Max(), barra.Value()};
}

}  // namespace

TEST(ControlliComposer, TheTempoIs60Of20To250) {
    BancoChiuso b;
    EXPECT_EQ(b.finestra.play.Slider1.Value(), 60);
    EXPECT_TRUE(b.finestra.play.Slider1.Contiene(20) && b.finestra.play.Slider1.Contiene(250));
    EXPECT_FALSE(b.finestra.play.Slider1.Contiene(19) || b.finestra.play.Slider1.Contiene(251));
}

TEST(ControlliComposer, TheListOfDurationsHasTheThirteenWordsAndTheOneForAnyOther) {
    const Righe parole = {"4/4",    "(4/4).", "2/4",     "(2/4).", "1/4",     "(1/4).", "1/8",
                          "(1/8).", "1/16",   "(1/16).", "1/32",   "(1/32).", "1/64",   "na"};
    BancoChiuso b;
    EXPECT_EQ(b.finestra.modifica.cmbDurata.List(), parole);
}

TEST(ControlliComposer, TheMultipliersAre1To12AndOneIsChosen) {
    BancoChiuso b;
    const Righe numeri = {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12"};
    EXPECT_EQ(b.finestra.modifica.cmbPer.List(), numeri);
    EXPECT_EQ(b.finestra.modifica.cmbPer.Text(), "1");
    EXPECT_EQ(b.finestra.inserimento.PausaPer.Text(), "1");
}

TEST(ControlliComposer, TheAttributesAreTheLettersOfTheTokens) {
    BancoChiuso b;
    EXPECT_EQ(b.finestra.modifica.cmbAttributi.List(), (Righe{"n", "s", "t", "a", "p"}));
}

TEST(ControlliComposer, TheFirstPulseIs1Of8) {
    BancoChiuso b;
    EXPECT_EQ(CorsaDi(b.finestra.pulsi.InizioPuls), (Corsa{8, 1, 1}));
    EXPECT_EQ(b.finestra.pulsi.LblInizioPuls.Caption(), "1");
}

TEST(ControlliComposer, ThePulsesAre1To9OfFiveLengths) {
    BancoChiuso b;
    EXPECT_EQ(b.finestra.pulsi.Pulsazioni.List(),
              (Righe{"1", "2", "3", "4", "5", "6", "7", "8", "9"}));
    EXPECT_EQ(b.finestra.pulsi.Pulsazioni.Text(), "2");
    EXPECT_EQ(b.finestra.pulsi.DurataPulsazioni.List(), (Righe{"1", "2", "4", "8", "16"}));
    EXPECT_EQ(b.finestra.pulsi.DurataPulsazioni.Text(), "4");
}

TEST(ControlliComposer, TheVolumesGoFromSilentToFullAndReadAsFullFromTheStart) {
    BancoChiuso b;
    for (const auto& voce : b.finestra.mix.perVoce) {
        EXPECT_EQ(CorsaDi(voce.volume), (Corsa{98, 0, 2}));
        EXPECT_EQ(voce.percento.Caption(), "100");
    }
    EXPECT_EQ(b.finestra.pulsi.VolumeMetro.Min(), 120);
    EXPECT_EQ(b.finestra.pulsi.VolumeMetro.Max(), 0);
}

TEST(ControlliComposer, EachVoiceHasItsColourAndTheSopranoIsTheGreenOne) {
    constexpr std::array colori = {Rgb(216, 252, 255), Rgb(197, 247, 241), Rgb(252, 241, 171),
                                   Rgb(255, 224, 163)};
    BancoChiuso b;
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        EXPECT_EQ(b.finestra.mix.lblInstr[voce].BackColor(), colori.at(voce));
        EXPECT_EQ(b.finestra.voci.perVoce[voce].nomi.BackColor(), colori.at(voce));
        EXPECT_EQ(b.finestra.mix.VoceAttiva[voce].BackColor(),
                  voce == soprano ? Rgb(0, 255, 0) : Rgb(255, 0, 0));
    }
}

TEST(ControlliComposer, TheMetronomeReadsOffInWhiteOnRed) {
    BancoChiuso b;
    EXPECT_EQ(b.finestra.pulsi.lblTs.Caption(), "Off");
    EXPECT_EQ(b.finestra.pulsi.lblTs.BackColor(), Rgb(255, 0, 0));
    EXPECT_EQ(b.finestra.pulsi.lblTs.ForeColor(), Rgb(255, 255, 255));
    EXPECT_EQ(b.finestra.pulsi.lblTs.ToolTipText(), "Metronomo On/Off");
}

TEST(ControlliComposer, TheRulerAndItsCursorLieWhereTheirMovesAreMeasured) {
    BancoChiuso b;
    EXPECT_EQ(DoveSta(b.finestra.regolo.Regolo), (Luogo{75, 945, 360, 3120}));
    EXPECT_EQ(DoveSta(b.finestra.regolo.lblCursore), (Luogo{60, 0, 75, 165}));
    EXPECT_EQ(DoveSta(b.finestra.regolo.lblAccidente), (Luogo{135, 0, 165, 165}));
    EXPECT_EQ(b.finestra.regolo.Regolo.BackColor(), Rgb(224, 255, 255));
    EXPECT_EQ(b.finestra.regolo.lblCursore.BackColor(), Rgb(255, 0, 0));
    EXPECT_EQ(b.finestra.regolo.lblAccidente.Caption(), "#");
    EXPECT_EQ(b.finestra.regolo.lblCursore.Padre(), &b.finestra.regolo.Regolo);
}

TEST(ControlliComposer, AllSixtyKeysAreDark) {
    BancoChiuso b;
    ASSERT_EQ(b.finestra.tasti.lb.size(), 60U);
    for (std::size_t i = 0; i < b.finestra.tasti.lb.size(); ++i) {
        EXPECT_EQ(b.finestra.tasti.lb[i].Name, "lb" + std::to_string(i));
        EXPECT_EQ(b.finestra.tasti.lb[i].BackStyle(), fondoTrasparente) << i;
    }
}

TEST(ControlliComposer, WhatOpensOnDemandIsHidden) {
    BancoChiuso b;
    for (const char* nome :
         {"lblModificato", "lblAccidente", "frmModifica", "frMetro", "lblDebug", "frBookMark",
          "lblIncolla", "Fr2", "Secondo0", "Secondo1", "Secondo2", "Secondo3", "Secondo4"})
        EXPECT_FALSE(b.finestra.Trova(nome)->Visible()) << nome;
    EXPECT_FALSE(b.finestra.incolla.cmdPaste.Enabled());
}

TEST(ControlliComposer, ThePlayButtonReadsPlayOnItsColourAtRest) {
    BancoChiuso b;
    EXPECT_EQ(b.finestra.play.cmdPlay.Caption(), "Play");
    EXPECT_EQ(b.finestra.play.cmdPlay.BackColor(), b.finestra.stato.lblNe.BackColor());
    EXPECT_NE(b.finestra.play.cmdPlay.BackColor(), b.finestra.inserimento.cmdInsNota.BackColor());
}

}  // namespace corvana::prova
