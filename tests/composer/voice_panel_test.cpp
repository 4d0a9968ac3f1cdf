// The texts of a voice, and what is split and counted from them.
#include <gtest/gtest.h>

#include "tests/composer/composer_rig.h"
#include "tests/composer/mel_lines.h"
#include "tests/melody/fault_number.h"

namespace corvana::prova {

namespace {

struct BancoVoci : BancoComposer {
    /// Gives the texts and makes the voice the active one, without splitting them.
    void Testi(std::size_t voce, const std::string& note) {
        melodia.voceAttiva = nomiVoci[voce];
        melodia.voci[voce].testoNote = note;
        const int numero = static_cast<int>(note.size()) / 3;
        melodia.voci[voce].testoDurate = Ripetuto("1;", numero);
        melodia.voci[voce].testoAttributi = Ripetuto("n;", numero);
    }
    void Aggiorna(std::size_t voce, const std::string& note) {
        Testi(voce, note);
        finestra.voci.AggiornaVoce();
    }
};

}  // namespace

TEST(AggiornaVoce, On60GivesNumeroNote1ArraysOfTwoElementsAndUltimaNota0) {
    BancoVoci b;
    b.Aggiorna(soprano, "60;");
    const VoceMelodia& voce = b.melodia.voci[soprano];
    EXPECT_EQ(voce.numeroNote, 1);
    EXPECT_EQ(voce.noteVoce, (std::vector<std::string>{"60", ""}));
    EXPECT_EQ(voce.durateVoce, (std::vector<std::string>{"1", ""}));
    EXPECT_EQ(voce.attributiVoce, (std::vector<std::string>{"n", ""}));
    EXPECT_EQ(voce.ultimaNota, 0);
}

TEST(AggiornaVoce, OnAnEmptySopranoGivesMinus1EmptyRangeBoxesAndAnEmptyBookmarkList) {
    BancoVoci b;
    b.Aggiorna(soprano, "60;62;64;");
    b.finestra.riferimenti.lstBookMark.List = Righe{"1 ÷ 3 ÷Tutta", "2 ÷ 3 ÷ a"};
    b.melodia.voci[soprano].primaNota = 2;
    b.Aggiorna(soprano, "");
    EXPECT_EQ(b.melodia.voci[soprano].numeroNote, -1);
    EXPECT_EQ(b.melodia.voci[soprano].primaNota, 0);
    EXPECT_EQ(b.finestra.voci.lblNini.Text(), "");
    EXPECT_EQ(b.finestra.voci.lblNfine.Text(), "");
    EXPECT_TRUE(b.finestra.riferimenti.lstBookMark.List->empty());
}

TEST(AggiornaVoce, PullsTheSopranosLastNoteToItsEndAndLeavesItsFirstOne) {
    BancoVoci b;
    b.Aggiorna(soprano, "60;62;64;65;");
    b.Tratto(2, 3);
    b.Aggiorna(soprano, "60;62;64;65;67;");
    EXPECT_EQ(b.melodia.voci[soprano].primaNota, 1);
    EXPECT_EQ(b.melodia.voci[soprano].ultimaNota, 4);
    EXPECT_EQ(b.finestra.voci.lblNini.Text(), "2");
    EXPECT_EQ(b.finestra.voci.lblNfine.Text(), "5");
    EXPECT_EQ(b.finestra.stato.lblNt.Caption(), "5");
}

TEST(AggiornaVoce, OfTheSopranoRefreshesTheFirstBookmarkWhenThereIsAny) {
    BancoVoci b;
    b.Aggiorna(soprano, "60;");
    EXPECT_TRUE(b.finestra.riferimenti.lstBookMark.List->empty());
    b.finestra.riferimenti.lstBookMark.List = Righe{"1 ÷ 1 ÷Tutta", "1 ÷ 1 ÷ a"};
    b.Aggiorna(soprano, "60;62;");
    EXPECT_EQ(b.finestra.riferimenti.lstBookMark.List(), (Righe{"1 ÷ 2 ÷Tutta", "1 ÷ 1 ÷ a"}));
}

TEST(AggiornaVoce, OfAnotherVoiceFillsItsFirstBoxOnlyWhenItIsBlankAndLeavesPrimaNota) {
    BancoVoci b;
    for (std::size_t voce = contralto; voce < numeroVoci; ++voce) {
        b.melodia.voci[voce].primaNota = 7;
        b.Aggiorna(voce, "60;62;");
        EXPECT_EQ(b.finestra.voci.perVoce[voce].prima.Text(), "1");
        EXPECT_EQ(b.finestra.voci.perVoce[voce].ultima.Text(), "2");
        EXPECT_EQ(b.melodia.voci[voce].ultimaNota, 1);
        b.finestra.voci.perVoce[voce].prima.Text = "2";
        b.Aggiorna(voce, "60;62;64;");
        EXPECT_EQ(b.finestra.voci.perVoce[voce].prima.Text(), "2");
        EXPECT_EQ(b.finestra.voci.perVoce[voce].ultima.Text(), "3");
        EXPECT_EQ(b.melodia.voci[voce].primaNota, 7);
    }
    EXPECT_EQ(b.finestra.stato.lblNt.Caption(), "");
}

TEST(AggiornaVoce, OfAnotherVoiceThatIsEmptyClearsItsTwoBoxesAndTheBookmarksStay) {
    BancoVoci b;
    b.finestra.riferimenti.lstBookMark.List = Righe{"1 ÷ 3 ÷Tutta", "2 ÷ 3 ÷ a"};
    for (std::size_t voce = contralto; voce < numeroVoci; ++voce) {
        b.Aggiorna(voce, "60;62;");
        b.melodia.voci[voce].primaNota = 1;
        b.Aggiorna(voce, "");
        EXPECT_EQ(b.melodia.voci[voce].primaNota, 0);
        EXPECT_EQ(b.melodia.voci[voce].numeroNote, -1);
        EXPECT_EQ(b.finestra.voci.perVoce[voce].prima.Text(), "");
        EXPECT_EQ(b.finestra.voci.perVoce[voce].ultima.Text(), "");
    }
    EXPECT_EQ(b.finestra.riferimenti.lstBookMark.List->size(), 2U);
}

TEST(AggiornaVoce, SplitsTheActiveVoiceAlone) {
    BancoVoci b;
    b.Testi(contralto, "48;50;");
    b.Aggiorna(soprano, "60;");
    EXPECT_TRUE(b.melodia.voci[contralto].noteVoce.empty());
    EXPECT_EQ(b.finestra.voci.lblNfineC.Text(), "");
}

TEST(AggiornaVoce, OneNoteTooManyIsAFaultThatLeavesTheVoiceAsItWas) {
    BancoVoci b;
    b.Aggiorna(soprano, "60;");
    b.Testi(soprano, Ripetuto("60;", 32768));
    EXPECT_EQ(NumeroDelGuasto([&] { b.finestra.voci.AggiornaVoce(); }), 6);
    EXPECT_EQ(b.melodia.voci[soprano].numeroNote, 1);
    EXPECT_EQ(b.finestra.voci.lblNfine.Text(), "1");
    b.Aggiorna(soprano, Ripetuto("60;", 32767));
    EXPECT_EQ(b.melodia.voci[soprano].numeroNote, 32767);
    EXPECT_EQ(b.melodia.voci[soprano].ultimaNota, 32766);
}

namespace {

/// All four voices with a note, their ranges and counts.
struct BancoPieno : BancoVoci {
    BancoPieno() {
        for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
            Voce(voce, "60;62;64;", "1");
            melodia.voci[voce].primaNota = 1;
            melodia.voci[voce].strumento = 40;
        }
        melodia.voceAttiva = "tenore";
        melodia.tempo = 99;
        stato.posizioneSoprano = stato.ultimaSoprano = 2;
        finestra.stato.lblNe.Caption = "x";
        finestra.stato.lblPnn.Caption = "x";
        finestra.voci.AzzeraMelodia();
    }
};

}  // namespace

TEST(AzzeraMelodia, EmptiesTheTextsTheDisplaysAndTheRangesOfAllVoices) {
    BancoPieno b;
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        const VoceMelodia& v = b.melodia.voci[voce];
        EXPECT_EQ(v.testoNote + v.testoDurate + v.testoAttributi, "");
        EXPECT_EQ(v.primaNota, 0);
        EXPECT_EQ(v.ultimaNota, 0);
        EXPECT_EQ(b.finestra.voci.perVoce[voce].nomi.Caption(), "");
        EXPECT_EQ(b.finestra.voci.perVoce[voce].prima.Text(), "");
        EXPECT_EQ(b.finestra.voci.perVoce[voce].ultima.Text(), "");
    }
    EXPECT_EQ(b.finestra.stato.lblNt.Caption() + b.finestra.stato.lblNe.Caption(), "");
    EXPECT_EQ(b.finestra.stato.lblPnn.Caption(), "");
    EXPECT_EQ(b.stato.posizioneSoprano, 0);
    EXPECT_EQ(b.stato.ultimaSoprano, 0);
}

TEST(AzzeraMelodia, LeavesTheArraysAndTheCountOfEveryVoiceButTheSoprano) {
    BancoPieno b;
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        EXPECT_EQ(b.melodia.voci[voce].noteVoce.size(), 4U);
        EXPECT_EQ(b.melodia.voci[voce].numeroNote, voce == soprano ? 0 : 3);
    }
}

TEST(AzzeraMelodia, TouchesNeitherInstrumentsNorTempoNorTheActiveVoice) {
    BancoPieno b;
    for (const VoceMelodia& voce : b.melodia.voci)
        EXPECT_EQ(voce.strumento, 40);
    EXPECT_EQ(b.melodia.tempo, 99);
    EXPECT_EQ(b.melodia.voceAttiva, "tenore");
}

}  // namespace corvana::prova
