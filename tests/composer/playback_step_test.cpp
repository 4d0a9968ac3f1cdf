// A note that is sounded alone: in the step mode, and behind an edit.
#include <gtest/gtest.h>

#include "tests/composer/composer_rig.h"

namespace corvana::prova {

namespace {

struct BancoPasso : BancoComposer {
    BancoPasso() {
        Voce(soprano, "60;62;64;", "1");
        Voce(contralto, "48;50;", "0.5");
    }
    /// As the step mode sounds the note under it.
    void Passo(std::int16_t indice) {
        passo.modoPasso = true;
        Suona([this, indice] { finestra.play.SuonaMelodia(indice, indice, passo.modoPasso); });
    }
    /// As an edit sounds the note that it has made.
    void SuonaSola(std::int16_t indice) {
        Suona([this, indice] { finestra.play.SuonaMelodia(indice, indice, true); });
    }
    bool TastoAcceso(std::size_t nota) const {
        return finestra.tasti.lb[nota - 36].BackStyle() == fondoOpaco;
    }
};

}  // namespace

TEST(PassoRiproduzione, OfAllVoicesOnlyTheActiveOneSoundsAndOfItTheOneNote) {
    BancoPasso b;
    bool acceso = false;
    b.NelTick(31, [&] { acceso = b.TastoAcceso(62); });
    b.Passo(1);
    EXPECT_EQ(b.Messaggi(), (Mandati{{1, 1, 62, 96}, {32, 1, 62, 0}}));
    EXPECT_TRUE(acceso);
    EXPECT_FALSE(b.TastoAcceso(62));
    EXPECT_EQ(b.stato.voci[contralto].ultima, -1);
}

TEST(PassoRiproduzione, TheNoteEndsBeforeItsLastTickSleepsAndItsReleaseIsTheEndProcedures) {
    BancoPasso b;
    b.melodia.voci[soprano].attributiVoce[1] = "t";
    b.Passo(1);
    EXPECT_EQ(b.TickPassati(), 31);
    // Its gate shut in tick 16; what goes off in the end is each voice's note, sounding or not.
    EXPECT_EQ(b.Messaggi(), (Mandati{{1, 1, 62, 98}, {16, 1, 62, 0}, {32, 1, 62, 0}}));
}

TEST(PassoRiproduzione, AStepOfALowerVoiceSoundsOnItsChannel) {
    BancoPasso b;
    b.finestra.mix.VoceAttiva_Click(contralto);
    b.Passo(1);
    EXPECT_EQ(b.Messaggi(), (Mandati{{1, 2, 50, 96}, {16, 2, 50, 0}}));
    EXPECT_EQ(b.TickPassati(), 15);
    EXPECT_EQ(b.finestra.stato.lblNe.Caption(), "2");
}

TEST(PassoRiproduzione, ARestTakesItsTimeAndSendsNothing) {
    BancoPasso b;
    b.Voce(soprano, "00;", "1;", "p;");
    b.Passo(0);
    EXPECT_EQ(b.Messaggi(), Mandati{});
    EXPECT_EQ(b.TickPassati(), 31);
    EXPECT_EQ(b.finestra.stato.lblPnn.Caption(), "P");
}

TEST(PassoRiproduzione, NumberAndNameOfTheStepsNoteStayAndCmdCancStaysDisabled) {
    BancoPasso b;
    b.NelTick(3, [&] { b.finestra.modifica.cmdCanc.Enabled = true; });
    b.Passo(2);
    EXPECT_EQ(b.finestra.stato.lblNe.Caption(), "3");
    EXPECT_EQ(b.finestra.stato.lblPnn.Caption(), "Mi");
    EXPECT_FALSE(b.finestra.modifica.cmdCanc.Enabled());
    EXPECT_TRUE(b.finestra.inserimento.cmdInsNota.Enabled());
    EXPECT_TRUE(b.passo.modoPasso);
    EXPECT_EQ(b.finestra.play.cmdPlay.Caption(), "Play");
}

TEST(PassoRiproduzione, TheActiveVoiceStaysTheActiveOneThoughItIsEmpty) {
    BancoPasso b;
    b.finestra.mix.VoceAttiva_Click(3);
    b.finestra.stato.lblNt.Caption = "as it was";
    b.passo.modoPasso = true;
    b.melodia.voci[3].noteVoce = {"40", ""};
    b.melodia.voci[3].durateVoce = {"1", ""};
    b.melodia.voci[3].attributiVoce = {"n", ""};
    b.Passo(0);
    EXPECT_EQ(b.melodia.voceAttiva, "basso");
    EXPECT_EQ(b.finestra.stato.lblNt.Caption(), "as it was");
}

TEST(PassoRiproduzione, NoMetronomeTicksAlong) {
    BancoPasso b;
    b.finestra.pulsi.lblTs_Click();
    b.Passo(0);
    EXPECT_EQ(b.Messaggi(10), Mandati{});
    b.SuonaSola(0);
    EXPECT_EQ(b.Messaggi(10), Mandati{});
}

TEST(PassoRiproduzione, AVoiceChosenMeanwhileEndsTheStepModeAndThePlayRunsToTheMelodysEnd) {
    BancoPasso b;
    b.finestra.pulsi.lblTs_Click();
    b.CliccaNelTick(40, "lblTs");
    b.CliccaNelTick(5, "VoceAttiva1");
    b.Passo(0);
    EXPECT_FALSE(b.passo.modoPasso);
    // From the 6th tick on the pulses join, the note is released in its own last tick.
    EXPECT_EQ(b.Messaggi(), (Mandati{{1, 1, 60, 96},
                                     {6, 10, 81, 120},
                                     {32, 1, 60, 0},
                                     {37, 10, 81, 0},
                                     {38, 10, 36, 120},
                                     {97, 10, 36, 0}}));
    EXPECT_EQ(b.TickPassati(), 96);
    EXPECT_EQ(b.finestra.stato.lblNe.Caption(), "");
    EXPECT_TRUE(b.finestra.modifica.cmdCanc.Enabled());
}

TEST(PassoRiproduzione, BehindAnEditAllVoicesJoinAndTheFirstNoteToEndEndsThePlay) {
    BancoPasso b;
    b.melodia.voci[soprano].attributiVoce[1] = "t";
    b.Voce(contralto, "48;50;", "1.5;4;", "n;n;");
    b.SuonaSola(1);
    // The contralto's first note ends 16 ticks into the range, in the tick in which the soprano's
    // gate shuts: none of that tick's messages is sent.
    EXPECT_EQ(b.Messaggi(), (Mandati{{1, 1, 62, 98}, {1, 2, 48, 96}}));
    EXPECT_EQ(b.TickPassati(), 15);
    EXPECT_EQ(b.uscita.NoteAccese().size(), 0U);
    EXPECT_FALSE(b.TastoAcceso(62));
    EXPECT_FALSE(b.TastoAcceso(48));
}

TEST(PassoRiproduzione, AVoiceBelowTheOneThatEndsIsntSteppedAnyMore) {
    BancoPasso b;
    b.Voce(soprano, "60;", "0.5");
    b.Voce(contralto, "48;50;", "0.5");
    b.SuonaSola(0);
    EXPECT_EQ(b.Messaggi(), (Mandati{{1, 1, 60, 96}, {1, 2, 48, 96}}));
    EXPECT_EQ(b.stato.voci[contralto].tickCorrente, 15);
}

TEST(PassoRiproduzione, ALoneNoteOfOneTickEndsInItsFirstTick) {
    BancoPasso b;
    b.Voce(soprano, "60;", "0.03125");
    b.SuonaSola(0);
    EXPECT_EQ(b.Messaggi(), Mandati{});
    EXPECT_EQ(b.TickPassati(), 0);
    EXPECT_EQ(b.finestra.play.cmdPlay.Caption(), "Play");
}

TEST(PassoRiproduzione, StopEndsAStepWithinOneTick) {
    BancoPasso b;
    b.NelTick(7, [&] { b.finestra.play.SuonaMelodia(0, 0, true); });
    b.Passo(0);
    EXPECT_EQ(b.TickPassati(), 7);
    EXPECT_EQ(b.Messaggi(), (Mandati{{1, 1, 60, 96}, {8, 1, 60, 0}}));
    EXPECT_EQ(b.uscita.NoteAccese().size(), 0U);
}

TEST(PassoRiproduzione, WhatThePlayBeforeLeftLoadedIsReleasedInTheOrderOfTheVoices) {
    BancoPasso b;
    b.Voce(2, "30;", "1");  // off the keyboard
    b.Voce(3, "36;", "1");
    b.Suona();
    b.Passo(0);
    EXPECT_EQ(b.Messaggi(),
              (Mandati{{1, 1, 60, 96}, {32, 1, 60, 0}, {32, 2, 50, 0}, {32, 4, 36, 0}}));
}

TEST(PassoRiproduzione, TheRangeFieldsOfTheLowerVoicesAreThePlaysAndTheirBoxesKeepTheRange) {
    BancoPasso b;
    b.Voce(2, "43;45;47;", "1");
    b.finestra.voci.lblNiniC.Text = "2";
    b.finestra.voci.lblNfineT.Text = "2";
    b.finestra.mix.VoceAttiva_Click(contralto);
    b.Passo(0);
    // What the step leaves behind in them is no range that an editor could read.
    EXPECT_EQ(b.melodia.voci[contralto].ultimaNota, 0);
    EXPECT_EQ(b.melodia.voci[2].ultimaNota, -1);
    EXPECT_EQ(b.melodia.voci[3].ultimaNota, -1);
    EXPECT_EQ(b.melodia.voci[contralto].primaNota, 0);
    EXPECT_EQ(b.finestra.voci.lblNiniC.Text(), "2");
    EXPECT_EQ(b.finestra.voci.lblNfineC.Text(), "2");
    EXPECT_EQ(b.finestra.voci.lblNfineT.Text(), "2");
    // The soprano has fields of its own for its plays.
    EXPECT_EQ(b.melodia.voci[soprano].ultimaNota, 2);
}

TEST(PassoRiproduzione, BehindAStepNamesAreShownAsFarAsTheBoxSays) {
    BancoPasso b;
    b.Voce(2, "43;45;47;", "1");
    b.finestra.voci.lblNfineT.Text = "2";
    b.Passo(0);
    b.finestra.mix.VoceAttiva_Click(2);
    b.finestra.voci.MostraNoteVoce();
    EXPECT_EQ(b.finestra.voci.LblNoteStringT.Caption(), "Sol;La;");
}

TEST(PassoRiproduzione, BehindAStepAWholePlayHasAllNotesOfAllVoicesAgain) {
    BancoPasso b;
    b.Passo(0);
    b.passo.modoPasso = false;
    b.Suona();
    EXPECT_EQ(b.Messaggi(1).size(), 6U);
    EXPECT_EQ(b.Messaggi(2).size(), 4U);
    // A play moves a lower voice's place and puts it back to the start, whatever its range was.
    b.melodia.voci[contralto].primaNota = 1;
    b.Suona();
    EXPECT_EQ(b.Messaggi(2).size(), 4U);
    EXPECT_EQ(b.melodia.voci[contralto].primaNota, 0);
    EXPECT_EQ(b.melodia.voci[contralto].ultimaNota, 1);
}

}  // namespace corvana::prova
