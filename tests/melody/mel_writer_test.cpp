#include "melody/mel_writer.h"

#include <gtest/gtest.h>

#include "tests/melody/fault_number.h"
#include "tests/melody/mel_content.h"
#include "tests/melody/mel_lines.h"

namespace corvana::prova {

namespace {

VoceMelodia Voce(const std::string& note, const std::string& durate, const std::string& attributi,
                 int strumento) {
    VoceMelodia voce;
    voce.testoNote = note;
    voce.testoDurate = durate;
    voce.testoAttributi = attributi;
    voce.strumento = strumento;
    return voce;
}

ContenutoMel Soprano(int strumento = 16) {
    ContenutoMel melodia;
    melodia.voci[soprano] = Voce("60;62;", "1;0,75;", "n;s;", strumento);
    return melodia;
}

}  // namespace

TEST(ScriviMel, AWholeFileByteForByte) {
    ContenutoMel melodia;
    melodia.voci[soprano] = Voce("60;62;64;65;", "1;1;1;1;", "n;n;n;n;", 16);
    melodia.voci[basso] = Voce("48;43;", "2;2;", "n;n;", 32);
    melodia.metronomo = MetronomoMel{"2", "4", 1};
    melodia.riferimenti = {"1 ÷ 4 ÷Tutta", "2 ÷ 3 ÷ motivo"};
    EXPECT_EQ(melodia.Byte(),
              "60;62;64;65;\r\n1;1;1;1;\r\nn;n;n;n;\r\n 60 \r\n16;2;4;1\r\n"
              "1 \xF7 4 \xF7Tutta;2 \xF7 3 \xF7 motivo;\r\n"
              "basso;32\r\n48;43;\r\n2;2;\r\nn;n;\r\n");
}

TEST(ScriviMel, ASopranoAloneWithoutMetronomeIsExactlyFiveLines) {
    EXPECT_EQ(Soprano().Byte(), "60;62;\r\n1;0,75;\r\nn;s;\r\n 60 \r\n 16 \r\n");
}

TEST(ScriviMel, TempoAndInstrumentHaveABlankOnEachSide) {
    ContenutoMel melodia = Soprano(127);
    melodia.tempo = 250;
    EXPECT_EQ(melodia.Byte(), "60;62;\r\n1;0,75;\r\nn;s;\r\n 250 \r\n 127 \r\n");
    melodia.tempo = 20;
    melodia.voci[soprano].strumento = 0;
    EXPECT_EQ(melodia.Byte(), "60;62;\r\n1;0,75;\r\nn;s;\r\n 20 \r\n 0 \r\n");
}

TEST(ScriviMel, TheFieldsOfTheMetronomeHaveNoBlanksAndNoClosingSemicolon) {
    ContenutoMel melodia = Soprano(127);
    melodia.metronomo = MetronomoMel{"9", "16", 9};
    EXPECT_EQ(melodia.Byte(), "60;62;\r\n1;0,75;\r\nn;s;\r\n 60 \r\n127;9;16;9\r\n");
}

TEST(ScriviMel, TheSopranoIsWrittenAlsoWhenItIsEmpty) {
    ContenutoMel melodia;
    melodia.voci[tenore] = Voce("50;", "1;", "n;", 19);
    EXPECT_EQ(melodia.Byte(), "\r\n\r\n\r\n 60 \r\n 0 \r\ntenore;19\r\n50;\r\n1;\r\nn;\r\n");
}

TEST(ScriviMel, TheVoicesStandInTheirOrderWithTheirInstruments) {
    ContenutoMel melodia = Soprano();
    melodia.voci[basso] = Voce("43;", "4;", "t;", 32);
    melodia.voci[tenore] = Voce("50;", "2;", "s;", 127);
    melodia.voci[contralto] = Voce("00;", "1;", "p;", 0);
    EXPECT_EQ(melodia.Byte(),
              Soprano().Byte() + Righe({"contralto;0", "00;", "1;", "p;", "tenore;127", "50;", "2;",
                                        "s;", "basso;32", "43;", "4;", "t;"}));
}

TEST(ScriviMel, OnlyTheNoteTextTellsWhetherAVoiceIsThere) {
    ContenutoMel melodia = Soprano();
    melodia.voci[contralto] = Voce("55;", "", "", 48);
    melodia.voci[tenore] = Voce("", "1;", "n;", 19);
    EXPECT_EQ(melodia.Byte(), Soprano().Byte() + "contralto;48\r\n55;\r\n\r\n\r\n");
}

TEST(ScriviMel, WithoutBookmarksThereIsNoLineForThem) {
    ContenutoMel melodia = Soprano();
    melodia.voci[basso] = Voce("43;", "4;", "t;", 32);
    EXPECT_EQ(melodia.Byte(), Soprano().Byte() + Righe({"basso;32", "43;", "4;", "t;"}));
}

TEST(ScriviMel, EachBookmarkIsClosedByASemicolonAlsoASingleOne) {
    ContenutoMel melodia = Soprano();
    melodia.riferimenti = {"1 ÷ 2 ÷Tutta"};
    EXPECT_EQ(melodia.Byte(), Soprano().Byte() + "1 \xF7 2 \xF7Tutta;\r\n");
}

TEST(ScriviMel, TextsAreWrittenInTheCodePage) {
    ContenutoMel melodia = Soprano();
    melodia.riferimenti = {"1 ÷ 2 ÷Tutta", "2 ÷ 2 ÷ perché €"};
    EXPECT_EQ(melodia.Byte(),
              Soprano().Byte() + "1 \xF7 2 \xF7Tutta;2 \xF7 2 \xF7 perch\xE9 \x80;\r\n");
}

TEST(ScriviMel, ACharacterThatThePageDoesntHaveIsAFault) {
    ContenutoMel melodia = Soprano();
    melodia.riferimenti = {"1 ÷ 2 ÷Tutta", "2 ÷ 2 ÷ fa♯"};
    EXPECT_EQ(NumeroDelGuasto([&] { melodia.Byte(); }), guastoArgomento);
}

}  // namespace corvana::prova
