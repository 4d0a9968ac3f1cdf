// Plays of a range of the soprano, which the other voices join where the range begins.
#include <gtest/gtest.h>

#include "composer/play_panel.h"
#include "tests/composer/composer_rig.h"

namespace corvana::prova {

namespace {

/// Six quarter notes in the soprano.
struct BancoTratto : BancoComposer {
    BancoTratto() { Voce(soprano, "60;62;64;65;67;69;", "1"); }

    std::vector<int> TastiAccesi() const {
        std::vector<int> accesi;
        for (int tasto = 0; tasto < tastiTastiera; ++tasto)
            if (finestra.tasti.lb[static_cast<std::size_t>(tasto)].BackStyle() == fondoOpaco)
                accesi.push_back(tasto);
        return accesi;
    }
};

const Mandati daTreACinque = {
    {1, 1, 64, 96}, {32, 1, 64, 0}, {33, 1, 65, 96}, {64, 1, 65, 0}, {65, 1, 67, 96}};

}  // namespace

TEST(TrattoRiproduzione, ARangeEndsOneTickBeforeTheEndOfItsLastNoteWhoseReleaseComesWithTheEnd) {
    BancoTratto b;
    b.Tratto(3, 5);
    std::vector<int> accesi;
    b.NelTick(95, [&] { accesi = b.TastiAccesi(); });
    b.Suona();
    EXPECT_EQ(b.Messaggi(), daTreACinque);
    EXPECT_EQ(b.TickPassati(), 95);
    EXPECT_EQ(accesi, std::vector{67 - 36});
    EXPECT_EQ(b.TastiAccesi(), std::vector<int>{});
    EXPECT_EQ(b.uscita.NoteAccese().size(), 0U);
}

TEST(TrattoRiproduzione, AContraltoNoteBegunBeforeTheRangeSoundsForTheRemainderOnly) {
    BancoTratto b;
    b.Voce(contralto, "48;50;", "2.5;3.5;", "a;n;");
    b.Tratto(3, 5);
    b.Suona();
    EXPECT_EQ(b.Messaggi(1), daTreACinque);
    EXPECT_EQ(b.Messaggi(2), (Mandati{{1, 2, 48, 125}, {16, 2, 48, 0}, {17, 2, 50, 96}}));
    EXPECT_EQ(b.uscita.NoteAccese().size(), 0U);
}

TEST(TrattoRiproduzione, ANoteWhoseGateHasPassedBeforeTheRangeStaysSilent) {
    BancoTratto b;
    b.Voce(contralto, "48;50;", "2.5;1;", "s;n;");
    b.Voce(tenore, "47;", "4;", "t;");  // the gate is the very tick before the range
    b.Voce(basso, "40;", "5;", "t;");   // and here 16 ticks later
    b.Tratto(3, 5);
    b.Suona();
    EXPECT_EQ(b.Messaggi(2), (Mandati{{17, 2, 50, 96}, {48, 2, 50, 0}}));
    EXPECT_EQ(b.Messaggi(3), Mandati{});
    EXPECT_EQ(b.Messaggi(4), (Mandati{{1, 4, 40, 98}, {16, 4, 40, 0}}));
}

TEST(TrattoRiproduzione, ANoteThatBeginsWithTheRangeBeginsInItsFirstTick) {
    BancoTratto b;
    b.Voce(contralto, "48;50;", "2;1;", "n;n;");
    b.Voce(tenore, "43;45;", "2.03125;1;", "n;n;");  // a tick later
    b.Voce(basso, "36;38;", "1.96875;1;", "n;n;");   // a tick before
    b.Tratto(3, 5);
    b.Suona();
    EXPECT_EQ(b.Messaggi(2), (Mandati{{1, 2, 50, 96}, {32, 2, 50, 0}}));
    EXPECT_EQ(b.Messaggi(3), (Mandati{{2, 3, 45, 96}, {33, 3, 45, 0}}));
    EXPECT_EQ(b.Messaggi(4), (Mandati{{1, 4, 38, 96}, {31, 4, 38, 0}}));
}

TEST(TrattoRiproduzione, AVoiceThatEndsBeforeTheRangeOrIsEmptyStaysOutOfIt) {
    BancoTratto b;
    b.Voce(contralto, "48;50;", "1");
    b.Voce(tenore, "45;", "0.25");
    b.Tratto(3, 5);
    b.NelTick(1, [&] {
        EXPECT_EQ(b.stato.voci[contralto].posizione, 2);
        EXPECT_EQ(b.stato.voci[basso].ultima, -1);
    });
    b.Suona();
    EXPECT_EQ(b.Messaggi(), daTreACinque);
}

TEST(TrattoRiproduzione, ARangeUpToTheLastNoteButNotFromTheFirstIsOneTickShortOfTheFullLength) {
    BancoTratto b;
    b.Tratto(5, 6);
    b.Suona();
    EXPECT_TRUE(b.stato.parziale);
    EXPECT_EQ(b.Messaggi(), (Mandati{{1, 1, 67, 96}, {32, 1, 67, 0}, {33, 1, 69, 96}}));
    EXPECT_EQ(b.TickPassati(), 63);
    EXPECT_EQ(b.uscita.NoteAccese().size(), 0U);
}

TEST(TrattoRiproduzione, ARangeFromTheFirstNoteLetsAllVoicesBeginAtTheirBeginning) {
    BancoTratto b;
    b.Voce(contralto, "48;50;", "0.75;4;", "n;n;");
    b.Tratto(1, 2);
    b.Suona();
    EXPECT_TRUE(b.stato.parziale);
    EXPECT_EQ(b.Messaggi(), (Mandati{{1, 1, 60, 96},
                                     {1, 2, 48, 96},
                                     {24, 2, 48, 0},
                                     {25, 2, 50, 96},
                                     {32, 1, 60, 0},
                                     {33, 1, 62, 96}}));
    EXPECT_EQ(b.TickPassati(), 63);
}

TEST(TrattoRiproduzione, ARangeOfOneNoteIsOneTickShorterThanTheNote) {
    BancoTratto b;
    b.Tratto(4, 4);
    b.Suona();
    EXPECT_EQ(b.Messaggi(), (Mandati{{1, 1, 65, 96}}));
    EXPECT_EQ(b.TickPassati(), 31);
}

TEST(TrattoRiproduzione, ARangeThatEndsBeforeItBeginsPlaysNothing) {
    BancoTratto b;
    b.Tratto(4, 2);
    b.Suona();
    EXPECT_EQ(b.Messaggi(), Mandati{});
    EXPECT_EQ(b.TickPassati(), 0);
    EXPECT_EQ(b.finestra.play.cmdPlay.Caption(), "Play");
}

TEST(TrattoRiproduzione, ARangeOverTheWholeSopranoIsAWholePlay) {
    BancoTratto b;
    b.Voce(contralto, "48;", "8");
    for (const auto& [prima, ultima] :
         std::vector<std::pair<int, int>>{{1, 6}, {1, 7}, {1, 100}, {0, 6}, {-3, 6}}) {
        b.Tratto(prima, ultima);
        b.Suona();
        EXPECT_FALSE(b.stato.parziale);
        EXPECT_EQ(b.TickPassati(), 256);
        EXPECT_EQ(b.Messaggi(1).front(), (Mandato{1, 1, 60, 96}));
    }
}

TEST(TrattoRiproduzione, WithAnEmptySopranoThePlayIsWholeWhateverTheRange) {
    BancoTratto b;
    b.Voce(soprano, "", "", "");
    b.Voce(contralto, "48;", "1");
    b.Suona([&] { b.finestra.play.SuonaMelodia(3, 4, false); });
    EXPECT_FALSE(b.stato.parziale);
    EXPECT_EQ(b.Messaggi(), (Mandati{{1, 2, 48, 96}, {32, 2, 48, 0}}));
}

TEST(TrattoRiproduzione, ATripletThatStraddlesTheStartOfTheRangeIsntCorrected) {
    BancoComposer b;
    const std::string terzo = "0.333333333333333;";
    b.Voce(soprano, "60;62;64;65;67;", "1;" + terzo + terzo + terzo + "1;", "n;n;n;n;n;");
    b.Tratto(3, 5);
    b.Suona();
    EXPECT_EQ(b.stato.tickPrimaInizio, 43);
    EXPECT_EQ(b.stato.tickFineRange, 96);
    EXPECT_EQ(
        b.Messaggi(),
        (Mandati{
            {1, 1, 64, 96}, {11, 1, 64, 0}, {12, 1, 65, 96}, {22, 1, 65, 0}, {23, 1, 67, 96}}));
    EXPECT_EQ(b.TickPassati(), 52);
}

TEST(TrattoRiproduzione, ATripletOfALowerVoiceIsCorrectedBeforeTheRangeButNotAcrossItsStart) {
    BancoTratto b;
    const std::string terzo = "0.666666666666667;";
    b.Voce(contralto, "48;50;52;53;", terzo + terzo + terzo + "4;", "n;n;n;n;");
    b.Voce(tenore, "43;45;47;40;", terzo + terzo + terzo + "4;", "n;n;n;n;");
    b.Tratto(2, 3);
    b.Suona();
    // 21 ticks of the first and 11 of the second have gone by; the third keeps its 21.
    EXPECT_EQ(
        b.Messaggi(2),
        (Mandati{
            {1, 2, 50, 96}, {10, 2, 50, 0}, {11, 2, 52, 96}, {31, 2, 52, 0}, {32, 2, 53, 96}}));
    b.Tratto(3, 4);
    b.Suona();
    EXPECT_EQ(b.Messaggi(3), (Mandati{{1, 3, 40, 96}}));
}

TEST(TrattoRiproduzione, RangesOfTheOtherVoicesNeverSteerThePlayWhichOverwritesThem) {
    BancoTratto b;
    b.Voce(contralto, "48;50;52;", "1");
    VoceMelodia& voce = b.melodia.voci[contralto];
    voce.primaNota = voce.ultimaNota = 1;
    b.finestra.voci.lblNiniC.Text = "2";
    b.finestra.voci.lblNfineC.Text = "2";
    std::int16_t durante = -1;
    b.NelTick(40, [&] { durante = voce.primaNota; });
    b.Suona();
    EXPECT_EQ(b.Messaggi(2), (Mandati{{1, 2, 48, 96},
                                      {32, 2, 48, 0},
                                      {33, 2, 50, 96},
                                      {64, 2, 50, 0},
                                      {65, 2, 52, 96},
                                      {96, 2, 52, 0}}));
    EXPECT_EQ(durante, 1);
    EXPECT_EQ(voce.primaNota, 0);
    EXPECT_EQ(voce.ultimaNota, 2);
    EXPECT_EQ(b.finestra.voci.lblNiniC.Text(), "2");
    EXPECT_EQ(b.finestra.voci.lblNfineC.Text(), "2");
}

TEST(TrattoRiproduzione, TheSopranosRangeOutlastsAPlay) {
    BancoTratto b;
    b.Tratto(3, 5);
    b.NelTick(1, [&] { EXPECT_EQ(b.stato.voci[soprano].ultima, 5); });
    b.Suona();
    EXPECT_EQ(b.melodia.voci[soprano].primaNota, 2);
    EXPECT_EQ(b.melodia.voci[soprano].ultimaNota, 4);
    b.Suona();
    EXPECT_EQ(b.Messaggi(), daTreACinque);
}

TEST(TrattoRiproduzione, TheLastOfTwoThousandWholeNotesIsFoundInAllVoices) {
    BancoComposer b;
    std::string note, basse;
    for (int i = 0; i < 2000; ++i) {
        note += i == 1999 ? "72;" : "60;";
        basse += i == 1999 ? "50;" : "48;";
    }
    b.Voce(soprano, note, "4");
    b.Voce(contralto, basse, "4");
    b.Tratto(2000, 2000);
    b.Suona();
    EXPECT_EQ(b.stato.tickPrimaInizio, 255872);
    EXPECT_EQ(b.Messaggi(), (Mandati{{1, 1, 72, 96}, {1, 2, 50, 96}}));
    EXPECT_EQ(b.TickPassati(), 127);
}

}  // namespace corvana::prova
