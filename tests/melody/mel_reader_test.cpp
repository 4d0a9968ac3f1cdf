#include "melody/mel_reader.h"

#include <gtest/gtest.h>

#include "tests/melody/mel_lines.h"

namespace corvana::prova {

namespace {

using Campi = std::vector<std::string>;

LetturaMel Leggi(std::string_view byte, char separatore = '.') {
    return LeggiMel(byte, separatore);
}

int NumeroGuasto(const LetturaMel& letta) {
    return letta.guasto ? letta.guasto->Numero() : 0;
}

}  // namespace

TEST(LeggiMel, AWholeFileGivesAllThatItHolds) {
    const std::string byte =
        Righe({"60;62;64;65;", "1;1;1;1;", "n;n;n;n;", " 60 ", "16;2;4;1",
               "1 \xF7 4 \xF7Tutta;2 \xF7 3 \xF7 motivo;", "basso;32", "48;43;", "2;2;", "n;n;"});
    const LetturaMel letta = Leggi(byte);
    EXPECT_EQ(NumeroGuasto(letta), 0);
    EXPECT_EQ(letta.soprano, (TestiVoce{"60;62;64;65;", "1;1;1;1;", "n;n;n;n;"}));
    EXPECT_EQ(letta.tempo, " 60 ");
    EXPECT_EQ(letta.strumento, (Campi{"16", "2", "4", "1"}));
    EXPECT_TRUE(letta.conRiferimenti);
    EXPECT_EQ(letta.riferimenti, (Campi{"1 ÷ 4 ÷Tutta", "2 ÷ 3 ÷ motivo"}));
    ASSERT_EQ(letta.blocchi.size(), 1U);
    EXPECT_EQ(letta.blocchi[0].voce, 3U);
    EXPECT_EQ(letta.blocchi[0].strumento, "32");
    EXPECT_EQ(letta.blocchi[0].testi, (Campi{"48;43;", "2;2;", "n;n;"}));
}

TEST(LeggiMel, FiveLinesAreASopranoAlone) {
    const LetturaMel letta = Leggi(ConQuinta(" 16 "));
    EXPECT_EQ(NumeroGuasto(letta), 0);
    EXPECT_EQ(letta.strumento, Campi{"16"});
    EXPECT_FALSE(letta.conRiferimenti);
    EXPECT_TRUE(letta.riferimenti.empty());
    EXPECT_TRUE(letta.blocchi.empty());
}

TEST(LeggiMel, LinesMayEndInAnyWay) {
    for (const char* fine : {"\r\n", "\n", "\r"}) {
        const LetturaMel letta =
            Leggi(Righe({"60;", "1;", "n;", " 60 ", " 16 ", "basso;32", "48;", "2;", "s;"}, fine));
        EXPECT_EQ(NumeroGuasto(letta), 0);
        EXPECT_EQ(letta.soprano, (TestiVoce{"60;", "1;", "n;"}));
        ASSERT_EQ(letta.blocchi.size(), 1U);
        EXPECT_EQ(letta.blocchi[0].testi, (Campi{"48;", "2;", "s;"}));
    }
}

TEST(LeggiMel, TheWaysMayChangeWithinAFileAndAnEmptyLineIsOne) {
    const LetturaMel letta = Leggi("60;\n1;\rn;\r\n 60 \r\r16\n");
    EXPECT_EQ(letta.soprano, (TestiVoce{"60;", "1;", "n;"}));
    EXPECT_EQ(letta.tempo, " 60 ");
    EXPECT_EQ(letta.strumento, Campi{""});
    EXPECT_TRUE(letta.conRiferimenti);
    EXPECT_EQ(NumeroGuasto(letta), 0);
}

TEST(LeggiMel, TheLastLineNeedsNoEnd) {
    const LetturaMel letta = Leggi("60;\r\n1;\r\nn;\r\n 60 \r\n 16 ");
    EXPECT_EQ(NumeroGuasto(letta), 0);
    EXPECT_EQ(letta.strumento, Campi{"16"});
    EXPECT_FALSE(letta.conRiferimenti);
}

TEST(LeggiMel, AFileThatIsTooShortGivesTheLinesItHas) {
    const std::vector<std::string_view> righe = {"60;62;", "1;0.5;", "n;s;", " 72 ", " 16 "};
    std::string byte;
    for (std::size_t quante = 0; quante < righe.size(); ++quante) {
        const LetturaMel letta = Leggi(byte);
        EXPECT_EQ(NumeroGuasto(letta), guastoFineFile) << quante;
        for (std::size_t i = 0; i < 3; ++i)
            EXPECT_EQ(letta.soprano[i], i < quante ? righe[i] : "") << quante;
        EXPECT_EQ(letta.tempo, quante > 3 ? " 72 " : "") << quante;
        EXPECT_TRUE(letta.strumento.empty()) << quante;
        byte.append(righe[quante]).append("\r\n");
    }
    EXPECT_EQ(NumeroGuasto(Leggi(byte)), 0);
}

TEST(LeggiMel, AFileThatEndsWithinABlockGivesWhatItHasOfIt) {
    const std::vector<std::string_view> testi = {"48;", "2;", "n;"};
    std::string byte = Dietro({"contralto;48", "55;", "4;", "t;", "basso;32"});
    for (std::size_t quanti = 0; quanti < testi.size(); ++quanti) {
        const LetturaMel letta = Leggi(byte);
        EXPECT_EQ(NumeroGuasto(letta), guastoFineFile) << quanti;
        ASSERT_EQ(letta.blocchi.size(), 2U) << quanti;
        EXPECT_EQ(letta.blocchi[0].testi, (Campi{"55;", "4;", "t;"}));
        EXPECT_EQ(letta.blocchi[1].strumento, "32");
        EXPECT_EQ(letta.blocchi[1].testi,
                  Campi(testi.begin(), testi.begin() + static_cast<long>(quanti)));
        byte.append(testi[quanti]).append("\r\n");
    }
    EXPECT_EQ(NumeroGuasto(Leggi(byte)), 0);
}

TEST(LeggiMel, AHeaderWithoutInstrumentIsAFaultThatKeepsWhatCameBefore) {
    const LetturaMel letta =
        Leggi(Dietro({"basso;32", "48;", "2;", "n;", "contralto", "55;", "4;", "n;"}));
    EXPECT_EQ(NumeroGuasto(letta), guastoIndice);
    ASSERT_EQ(letta.blocchi.size(), 1U);
    EXPECT_EQ(letta.blocchi[0].voce, 3U);
}

TEST(LeggiMel, BothSeparatorsOfDurationsBecomeTheOneAskedFor) {
    const std::string byte = Righe({"60;62;64;", "0.5;0,25;1;", "n;n;n;", " 60 ", " 16 ",
                                    "tenore;1", "48;48;", "1,5;1.5;", "n;n;"});
    const LetturaMel conVirgola = Leggi(byte, ',');
    EXPECT_EQ(conVirgola.soprano[1], "0,5;0,25;1;");
    EXPECT_EQ(conVirgola.blocchi.at(0).testi.at(1), "1,5;1,5;");
    const LetturaMel conPunto = Leggi(byte, '.');
    EXPECT_EQ(conPunto.soprano[1], "0.5;0.25;1;");
    EXPECT_EQ(conPunto.blocchi.at(0).testi.at(1), "1.5;1.5;");
}

TEST(LeggiMel, PointsAndCommasOfOtherLinesStay) {
    const std::string byte = Righe({"6.0;6,2;", "1;1;", ".;,;", " 60.5,0 ", "1.6;2,5;4;1",
                                    "1 \xF7 2 \xF7 a.b,c;2 \xF7 2 \xF7 d;"});
    for (const char separatore : {',', '.'}) {
        const LetturaMel letta = Leggi(byte, separatore);
        EXPECT_EQ(letta.soprano, (TestiVoce{"6.0;6,2;", "1;1;", ".;,;"}));
        EXPECT_EQ(letta.tempo, " 60.5,0 ");
        EXPECT_EQ(letta.strumento, (Campi{"1.6", "2,5", "4", "1"}));
        EXPECT_EQ(letta.riferimenti, (Campi{"1 ÷ 2 ÷ a.b,c", "2 ÷ 2 ÷ d"}));
    }
}

TEST(LeggiMel, TextsComeOutOfTheCodePage) {
    const LetturaMel letta = Leggi(Dietro({"1 \xF7 4 \xF7 perch\xE9;2 \xF7 3 \xF7 \x80uro;"}));
    EXPECT_EQ(letta.riferimenti, (Campi{"1 ÷ 4 ÷ perché", "2 ÷ 3 ÷ €uro"}));
}

TEST(LeggiMel, TokensAreNeitherCountedNorConverted) {
    const LetturaMel letta = Leggi(Righe({"60;62;64;65;", "1;x;", "n;n;n;", "fast", "?"}));
    EXPECT_EQ(NumeroGuasto(letta), 0);
    EXPECT_EQ(letta.soprano, (TestiVoce{"60;62;64;65;", "1;x;", "n;n;n;"}));
    EXPECT_EQ(letta.tempo, "fast");
    EXPECT_EQ(letta.strumento, Campi{"?"});
}

TEST(LeggiMel, ALineMayBeVeryLong) {
    std::string note;
    for (int i = 0; i < 100000; ++i)
        note += "60;";
    const LetturaMel letta = Leggi(Righe({note, note, note, " 60 ", " 16 "}));
    EXPECT_EQ(NumeroGuasto(letta), 0);
    EXPECT_EQ(letta.soprano[0].size(), 300000U);
}

}  // namespace corvana::prova
