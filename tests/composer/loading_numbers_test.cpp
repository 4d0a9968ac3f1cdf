// Files with numbers that can't be taken: what is told, what is left.
#include <gtest/gtest.h>

#include "tests/composer/loading_rig.h"

namespace corvana::prova {

namespace {

using Avvisi = std::vector<std::string>;

}  // namespace

TEST(CaricaGuasto, ATempoOutsideOf20To250FailsWithTheNotesShownAndTheTempoAsItWas) {
    for (const char* tempo : {" 19 ", " 251 ", " 0 ", "-60 ", " 65596 "}) {
        BancoGuasti b;
        b.CaricaCon({{4, tempo}});
        b.EsceGuasto(valoreErrato);
        EXPECT_EQ(b.finestra.voci.LblNoteString.Caption(), "Do;Re;Mi;Fa;") << tempo;
        EXPECT_EQ(b.Programmi().size(), 4U) << tempo;
        EXPECT_EQ(b.melodia.tempo, 60) << tempo;
        EXPECT_EQ(b.finestra.play.Slider1.Value(), 60) << tempo;
        EXPECT_EQ(b.finestra.voci.LblNoteStringB.Caption(), "") << tempo;
    }
}

TEST(CaricaGuasto, ATempoThatIsNoNumberFails) {
    for (const auto& [tempo, box] : {std::pair("fast", nonNumero), std::pair("", nonNumero),
                                     std::pair(" 99999999999999999999 ", troppo)}) {
        BancoGuasti b;
        b.CaricaCon({{4, tempo}});
        b.EsceGuasto(box);
        EXPECT_EQ(b.V(basso).testoNote, "48;43;") << tempo;
    }
}

TEST(CaricaGuasto, AnInstrumentThatIsNoNumberFailsBehindTheBlocksAndBeforeAnythingIsSent) {
    for (const auto& [linea, box] : {std::pair("abc", nonNumero), std::pair("", nonNumero),
                                     std::pair("abc;2;4;1", nonNumero)}) {
        BancoGuasti b;
        b.CaricaCon({{5, linea}});
        b.EsceGuasto(box);
        EXPECT_EQ(b.V(basso).testoNote, "48;43;") << linea;
        EXPECT_EQ(b.V(basso).strumento, 32) << linea;
        EXPECT_EQ(b.V(soprano).strumento, 16) << linea;
        EXPECT_TRUE(b.Programmi().empty()) << linea;
    }
}

TEST(CaricaGuasto, AMetronomeThatItsControlsCantShowFailsBeforeTheBookmarks) {
    for (const auto& [linea, box] :
         {std::pair("16;x;4;1", valoreErrato), std::pair("16;10;4;1", valoreErrato),
          std::pair("16;3;5;1", valoreErrato), std::pair("16;3;8;4", valoreErrato),
          std::pair("16;3;8;0", valoreErrato), std::pair("16;3;8;y", nonNumero),
          std::pair("16;3;8", nessunElemento), std::pair("16;3", nessunElemento),
          std::pair("1616", nessunElemento)}) {
        BancoGuasti b;
        b.CaricaCon({{5, linea}});
        b.EsceGuasto(box);
        EXPECT_EQ(b.V(soprano).testoAttributi, "n;n;n;n;") << linea;
        EXPECT_TRUE(b.finestra.riferimenti.lstBookMark.List->empty()) << linea;
        EXPECT_TRUE(b.V(basso).Vuota()) << linea;
    }
}

TEST(CaricaGuasto, WhatWasSetOfTheMetronomeBeforeTheFaultStays) {
    BancoGuasti b;
    b.CaricaCon({{5, "16;3;8;4"}});
    EXPECT_EQ(b.finestra.pulsi.Pulsazioni.Text(), "3");
    EXPECT_EQ(b.finestra.pulsi.DurataPulsazioni.Text(), "8");
    EXPECT_EQ(b.finestra.pulsi.InizioPuls.Value(), 1);
}

TEST(CaricaGuasto, AVoicesInstrumentThatIsNoNumberFailsBeforeItsTexts) {
    for (const auto& [testata, box] :
         {std::pair("basso;x", nonNumero), std::pair("basso;", nonNumero),
          std::pair("basso;4294967296", troppo)}) {
        BancoGuasti b;
        b.CaricaCon({{7, testata}});
        b.EsceGuasto(box);
        EXPECT_TRUE(b.V(basso).Vuota()) << testata;
        EXPECT_EQ(b.V(basso).strumento, 16) << testata;
        EXPECT_EQ(b.finestra.riferimenti.lstBookMark.List->size(), 2U) << testata;
    }
}

TEST(CaricaGuasto, AVoicesHeaderWithoutAnInstrumentFails) {
    BancoGuasti b;
    b.CaricaCon({{7, "basso"}});
    b.EsceGuasto(nessunElemento);
    EXPECT_TRUE(b.V(basso).Vuota());
}

TEST(CaricaGuasto, ANoteThatIsNoNumberFailsBeforeThePlay) {
    BancoGuasti b;
    b.CaricaCon({{1, "60;xx;64;65;"}});
    b.EsceGuasto(nonNumero);
    EXPECT_EQ(b.V(soprano).testoNote, "60;xx;64;65;");
    EXPECT_EQ(b.V(soprano).numeroNote, 4);
    BancoGuasti altra;
    altra.CaricaCon({{8, "48;xx;"}});
    altra.EsceGuasto(nonNumero);
    EXPECT_EQ(altra.finestra.voci.LblNoteString.Caption(), "Do;Re;Mi;Fa;");
}

TEST(CaricaGuasto, ADurationThatIsNoNumberEndsThePlayThatItMeets) {
    BancoGuasti b;
    b.CaricaCon({{2, "1;x;1;1;"}});
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{nonNumero});
    EXPECT_EQ(b.finestra.play.cmdPlay.Caption(), "Play");
    EXPECT_FALSE(b.finestra.stato.inEsecuzione);
    EXPECT_FALSE(b.melodia.inCaricamento);
    EXPECT_TRUE(b.uscita.NoteAccese().empty());
}

TEST(Carica, ATempoIsTakenAsANumberWithItsFractionRoundedHalvesToTheEvenOne) {
    for (const auto& [linea, tempo] : std::vector<std::pair<std::string, int>>{{" 60.5 ", 60},
                                                                               {" 61.5 ", 62},
                                                                               {"60,7", 61},
                                                                               {"\t90\t", 90},
                                                                               {" \t 45 \t", 45},
                                                                               {"1E2", 100},
                                                                               {"250.5", 250},
                                                                               {"19.5", 20}}) {
        BancoGuasti b;
        b.CaricaCon({{4, linea}});
        EXPECT_EQ(b.riquadri.messaggi, Avvisi{}) << linea;
        EXPECT_EQ(b.melodia.tempo, tempo) << linea;
        EXPECT_TRUE(b.HaSuonato()) << linea;
    }
    for (const char* linea : {"250.6", "19.4"}) {
        BancoGuasti b;
        b.CaricaCon({{4, linea}});
        b.EsceGuasto(valoreErrato);
    }
}

TEST(Carica, TheOtherNumbersOfAFileAreTakenTheSameWay) {
    BancoGuasti b;
    b.CaricaCon({{5, "16.4;3;4;1.5"}, {7, "basso;31.5"}});
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{});
    EXPECT_EQ(b.V(soprano).strumento, 16);
    EXPECT_EQ(b.V(basso).strumento, 32);
    EXPECT_EQ(b.finestra.pulsi.InizioPuls.Value(), 2);
}

}  // namespace corvana::prova
