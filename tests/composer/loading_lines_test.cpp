// The optional lines of a melody's file, and the forms that its texts may have.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/composer/loading_rig.h"

namespace corvana::prova {

namespace {

Linee Con(Linee linee, const Linee& altre) {
    linee.insert(linee.end(), altre.begin(), altre.end());
    return linee;
}

/// The lines of a voice's block with one note.
Linee Blocco(const std::string& testata, const std::string& nota) {
    return {testata, nota + ";", "1;", "n;"};
}

}  // namespace

TEST(Carica, ABookmarkListOfTwoOrMoreRowsIsReadBackRowForRow) {
    BancoCarica b;
    const Righe righe = {"1 ÷ 4 ÷Tutta", "2 ÷ 3 ÷ motivo", "1 ÷ 2 ÷ a? -b", "4 ÷ 4 ÷ è"};
    b.finestra.riferimenti.lstBookMark.List = Righe{"1 ÷ 9 ÷Tutta", "5 ÷ 6 ÷ before"};
    b.CaricaCon({{6,
                  "1 \xF7 4 \xF7Tutta;2 \xF7 3 \xF7 motivo;1 \xF7 2 \xF7 a? -b;"
                  "4 \xF7 4 \xF7 \xE8;"}});
    EXPECT_EQ(b.finestra.riferimenti.lstBookMark.List(), righe);
    EXPECT_TRUE(b.finestra.riferimenti.frBookMark.Visible());
    EXPECT_EQ(b.V(basso).testoNote, "48;43;");
}

TEST(Carica, ABookmarkLineOfExactlyOneRowIsTakenForAVoiceThatIsUnknownAndDropped) {
    BancoCarica b;
    b.CaricaCon({{6, "1 \xF7 4 \xF7Tutta;"}});
    EXPECT_TRUE(b.finestra.riferimenti.lstBookMark.List->empty());
    EXPECT_FALSE(b.finestra.riferimenti.frBookMark.Visible());
    EXPECT_EQ(b.V(basso).testoNote, "48;43;");
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(Carica, TheWholeMelodysBookmarkTakesTheCountAndTheLabelOfToday) {
    BancoCarica b;
    b.CaricaCon({{6, "1 \xF7 9 \xF7Tout;2 \xF7 3 \xF7 motivo;"}});
    EXPECT_EQ(b.finestra.riferimenti.lstBookMark.List(), (Righe{"1 ÷ 4 ÷Tutta", "2 ÷ 3 ÷ motivo"}));
}

TEST(Carica, AFileWithoutBookmarksClearsThoseOfTheMelodyBefore) {
    BancoCarica b;
    b.finestra.riferimenti.lstBookMark.List = Righe{"1 ÷ 9 ÷Tutta", "5 ÷ 6 ÷ before"};
    b.Carica(soloSoprano);
    EXPECT_TRUE(b.finestra.riferimenti.lstBookMark.List->empty());
}

TEST(Carica, ABlockOrderOfBassoAndContraltoLoads) {
    BancoCarica b;
    b.Carica(Con(Con(soloSoprano, Blocco("basso;32", "40")), Blocco("contralto;48", "55")));
    EXPECT_EQ(b.V(basso).testoNote, "40;");
    EXPECT_EQ(b.V(basso).strumento, 32);
    EXPECT_EQ(b.V(contralto).testoNote, "55;");
    EXPECT_EQ(b.V(contralto).strumento, 48);
    EXPECT_EQ(b.finestra.voci.lblNfineB.Text() + b.finestra.voci.lblNfineC.Text(), "11");
}

TEST(Carica, AFourthBlockIsIgnored) {
    BancoCarica b;
    Linee linee = soloSoprano;
    for (const char* testata : {"basso;32", "contralto;48", "basso;33", "tenore;20"})
        linee = Con(linee, Blocco(testata, testata == std::string("basso;33") ? "41" : "40"));
    b.Carica(linee);
    EXPECT_EQ(b.V(basso).testoNote, "41;");
    EXPECT_EQ(b.V(basso).strumento, 33);
    EXPECT_TRUE(b.V(tenore).Vuota());
    EXPECT_EQ(b.V(tenore).strumento, 16);
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(Carica, AHeaderOfAnyOtherNameIsDroppedAsALineAndCaseCounts) {
    BancoCarica b;
    b.Carica(Con(Con(soloSoprano, {"soprano;3", "Basso;4"}), Blocco("tenore;5", "50")));
    EXPECT_EQ(b.V(soprano).strumento, 16);
    EXPECT_TRUE(b.V(basso).Vuota());
    EXPECT_EQ(b.V(tenore).testoNote, "50;");
    EXPECT_EQ(b.V(tenore).strumento, 5);
}

TEST(Carica, AVoiceWithUnequalTextsInItsBlockLoadsWithoutAWord) {
    BancoCarica b;
    b.CaricaCon({{9, "2;"}, {10, ""}});
    EXPECT_EQ(b.V(basso).testoDurate, "2;");
    EXPECT_EQ(b.V(basso).numeroNote, 2);
    EXPECT_TRUE(b.riquadri.messaggi.empty());
    EXPECT_FALSE(b.melodia.inCaricamento);
}

TEST(Carica, DurationsWithCommaAndPointComeOutWithTheSystemsSeparator) {
    for (const char separatore : {'.', ','}) {
        BancoCarica b(separatore);
        b.CaricaCon({{2, "1.5;0,75;0.25;0,333333333333333;"}, {9, "0.5;0,375;"}});
        EXPECT_TRUE(b.riquadri.messaggi.empty());
        const auto conSeparatore = [&](std::string testo) {
            std::replace(testo.begin(), testo.end(), '.', separatore);
            return testo;
        };
        EXPECT_EQ(b.V(soprano).testoDurate, conSeparatore("1.5;0.75;0.25;0.333333333333333;"));
        EXPECT_EQ(b.V(basso).testoDurate, conSeparatore("0.5;0.375;"));
        const std::array<std::string, 4> parole = {"(1/4).", "(1/8).", "1/16", "na"};
        for (std::int16_t i = 0; i < 4; ++i) {
            b.passo.IndiceNotaPP = i;
            EXPECT_EQ(b.finestra.modifica.TestoDurata(), parole.at(static_cast<std::size_t>(i)));
        }
    }
}

TEST(Carica, AFileWithPlainLineEndsAndNoneAtItsEndLoadsTheSame) {
    BancoCarica b;
    std::string byte;
    for (const std::string& linea : dueVoci)
        byte += (byte.empty() ? "" : "\n") + linea;
    b.Carica(byte);
    EXPECT_EQ(b.V(soprano).testoNote, "60;62;64;65;");
    EXPECT_EQ(b.V(basso).testoAttributi, "n;n;");
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

}  // namespace corvana::prova
