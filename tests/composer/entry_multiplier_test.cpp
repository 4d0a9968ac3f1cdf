// The multiplier of step entry: its box, and the label beside it that counts it up.
#include <gtest/gtest.h>

#include "tests/composer/hand_rig.h"

namespace corvana::prova {

TEST(Moltiplicatore, WhatTheBoxIsLeftWithIsANumberFrom0To100OrOne) {
    for (const auto& [scritto, rimane] : {std::pair{"", "1"},
                                          {"x", "1"},
                                          {"-1", "1"},
                                          {"101", "1"},
                                          {"100.5", "1"},
                                          {"0", "0"},
                                          {"100", "100"},
                                          {"2.5", "2.5"},
                                          {"2,5", "2,5"},
                                          {"7", "7"}}) {
        BancoAMano b;
        b.ScriviIn("PausaPer", scritto);
        EXPECT_EQ(b.finestra.inserimento.PausaPer.Text(), scritto);
        b.Esci("PausaPer");
        EXPECT_EQ(b.finestra.inserimento.PausaPer.Text(), rimane) << scritto;
    }
}

TEST(Moltiplicatore, EnterValidatesItAndGivesTheFocusToThePlayButton) {
    BancoAMano b;
    b.ScriviIn("PausaPer", "500");
    b.specchio.fuochi.clear();
    b.Subito(Fatto::Invio, "PausaPer");
    EXPECT_EQ(b.finestra.inserimento.PausaPer.Text(), "1");
    EXPECT_EQ(b.specchio.fuochi, Fuochi{"cmdPlay"});
}

TEST(Moltiplicatore, ItsLabelCountsUpWithoutALimitAndADoubleClickSetsItBack) {
    BancoAMano b;
    b.ScriviIn("PausaPer", "99");
    for (const char* atteso : {"100", "101", "102"}) {
        b.Tocca("Label4");
        EXPECT_EQ(b.finestra.inserimento.PausaPer.Text(), atteso);
    }
    b.specchio.fuochi.clear();
    b.Subito(Fatto::DblClick, "Label4");
    EXPECT_EQ(b.finestra.inserimento.PausaPer.Text(), "1");
    EXPECT_EQ(b.specchio.fuochi, Fuochi{"cmdInsNota"});
    b.finestra.inserimento.Abilita(false);
    b.Subito(Fatto::DblClick, "Label4");
    EXPECT_EQ(b.specchio.fuochi, Fuochi{"cmdInsNota"});
}

TEST(Moltiplicatore, AFractionIsRoundedToTheEvenWholeWhereItIsUsedAndZeroPasses) {
    for (const auto& [per, durata] :
         {std::pair{"2.5", "2;"}, {"3.5", "4;"}, {"0", "0;"}, {"100", "100;"}}) {
        BancoAMano b;
        b.ScriviIn("PausaPer", per);
        b.Pausa();
        EXPECT_EQ(b.Testi()[1], durata) << per;
    }
}

TEST(Moltiplicatore, ATextThatIsNoNumberAndStillUnderTheCaretIsAFaultThatInsertsNothing) {
    BancoAMano b;
    b.ScriviIn("PausaPer", "x");
    b.finestra.inserimento.Abilita(true);
    b.Nota();
    EXPECT_EQ(b.riquadri.messaggi, std::vector<std::string>{"13\r\nType mismatch"});
    EXPECT_TRUE(b.melodia.voci[soprano].Vuota());
}

}  // namespace corvana::prova
