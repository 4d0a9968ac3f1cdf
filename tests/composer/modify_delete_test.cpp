// Deleting the note under the step, and dropping a voice's last one.
#include <gtest/gtest.h>

#include "tests/composer/hand_rig.h"

namespace corvana::prova {

namespace {

struct BancoCancella : BancoAMano {
    BancoCancella() {
        Voce(soprano, "60;62;64;65;", "1;0.5;2;4;", "n;s;t;a;");
        Voce(contralto, "48;50;52;", "1");
        finestra.riferimenti.lstBookMark.List = Righe{"1 ÷ 4 ÷Tutta", "1 ÷ 2 ÷ a"};
    }
    void Passi(int quanti) {
        for (int i = 0; i < quanti; ++i)
            Passo(1);
        finestra.stato.lblModificato.Visible = false;
    }
    void Cancella() { Tocca("cmdCancNota"); }
    std::size_t Riferimenti() const { return finestra.riferimenti.lstBookMark.List().size(); }
    std::string Scatola(const char* nome) const {
        return dynamic_cast<const Casella&>(*finestra.Trova(nome)).Text();
    }
};

}  // namespace

TEST(CancellaAMano, TakesTheNoteOutWithoutASoundAndLoadsTheOneBefore) {
    BancoCancella b;
    b.Passi(3);
    EXPECT_EQ(b.Sentite([&] { b.Cancella(); }), NoteSentite{});
    EXPECT_EQ(b.Testi(), (TestiVoce{"60;62;65;", "1;0.5;4;", "n;s;a;"}));
    EXPECT_TRUE(b.Modificata());
    EXPECT_EQ(b.finestra.stato.lblNe.Caption(), "2");
    EXPECT_EQ(b.finestra.stato.lblNt.Caption(), "3");
    EXPECT_EQ(b.finestra.modifica.lblActualNote.Caption(), "Re");
    EXPECT_EQ(b.finestra.modifica.cmbDurata.Text(), "1/8");
    EXPECT_EQ(b.finestra.modifica.cmbAttributi.Text(), "s");
    EXPECT_EQ(b.inserimento.notaAttiva, 64);
    EXPECT_EQ(b.finestra.voci.LblNoteString.Caption(), "Do;Re;Fa;");
    EXPECT_EQ(b.Scatola("lblNfine"), "3");
}

TEST(CancellaAMano, TheNextStepForwardLandsOnTheNoteBehindTheOneDeleted) {
    BancoCancella b;
    b.Passi(3);
    b.Cancella();
    b.Passo(1);
    EXPECT_EQ(b.inserimento.notaAttiva, 65);
    EXPECT_EQ(b.finestra.stato.lblNe.Caption(), "3");
}

TEST(CancellaAMano, ADurationThatTheListHasNoWordForLocksTheChange) {
    BancoCancella b;
    b.Voce(soprano, "60;62;", "0.333333333333333;1;", "n;n;");
    b.Passi(2);
    b.Cancella();
    EXPECT_EQ(b.finestra.modifica.cmbDurata.Text(), "na");
    EXPECT_FALSE(b.finestra.modifica.cmdModifica[0].Enabled());
}

TEST(CancellaAMano, OfTheFirstNoteTheStepIsOnTheNewFirstOneWithoutLoadingIt) {
    BancoCancella b;
    b.Passi(1);
    b.Cancella();
    EXPECT_EQ(b.Testi()[0], "62;64;65;");
    EXPECT_EQ(b.passo.IndiceNotaPP, 0);
    EXPECT_EQ(b.melodia.voci[soprano].primaNota, 0);
    EXPECT_EQ(b.Scatola("lblNini"), "1");
    EXPECT_EQ(b.finestra.modifica.lblActualNote.Caption(), "Do");
    EXPECT_EQ(b.finestra.modifica.cmbDurata.Text(), "1/4");
    EXPECT_EQ(b.Riferimenti(), 0U);
}

TEST(CancellaAMano, OfTheRangesFirstNoteTheRangeFollowsTheStepDown) {
    BancoCancella b;
    b.Tratto(3, 4);
    b.Passi(1);
    b.Cancella();
    EXPECT_EQ(b.Testi()[0], "60;62;65;");
    EXPECT_EQ(b.melodia.voci[soprano].primaNota, 1);
    EXPECT_EQ(b.Scatola("lblNini"), "2");
}

TEST(CancellaAMano, OfTheOnlyNoteTheVoiceIsEmpty) {
    BancoCancella b;
    b.Voce(contralto, "48;", "1");
    b.Tocca("VoceAttiva1");
    b.Passi(1);
    b.Cancella();
    EXPECT_EQ(b.Testi(contralto), (TestiVoce{"", "", ""}));
    EXPECT_EQ(b.melodia.voci[contralto].numeroNote, -1);
    EXPECT_EQ(b.passo.IndiceNotaPP, 0);
    EXPECT_EQ(b.finestra.stato.lblNe.Caption(), "");
    EXPECT_EQ(b.finestra.stato.lblNt.Caption(), "");
    EXPECT_EQ(b.finestra.voci.LblNoteStringC.Caption(), "");
    EXPECT_EQ(b.Scatola("lblNiniC"), "");
    EXPECT_TRUE(b.Modificata());
    b.finestra.stato.lblModificato.Visible = false;
    b.Cancella();
    EXPECT_TRUE(b.Modificata());
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(CancellaAMano, OfASopranoNoteAllBookmarksGoAndOfAContraltoNoteTheyStay) {
    for (const bool conSoprano : {true, false}) {
        BancoCancella b;
        b.Tocca(conSoprano ? "VoceAttiva0" : "VoceAttiva1");
        b.Passi(2);
        b.Cancella();
        EXPECT_EQ(b.Riferimenti(), conSoprano ? 0U : 2U);
    }
}

TEST(CancellaAMano, OneByOneAVoiceIsEmptiedFromWhereverTheStepStands) {
    BancoCancella b;
    b.Passi(3);
    for (const char* note : {"60;62;65;", "60;65;", "65;", ""}) {
        b.Cancella();
        EXPECT_EQ(b.Testi()[0], note);
    }
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(CancellaAMano, AnAttributeThatTheToolsDontKnowIsAFaultThatLeavesTheNotes) {
    BancoCancella b;
    b.Voce(soprano, "60;62;64;", "1;1;1;", "?;n;n;");
    b.Tratto(2, 3);
    b.Passi(1);
    b.Cancella();
    ASSERT_EQ(b.riquadri.messaggi.size(), 1U);
    EXPECT_EQ(b.riquadri.messaggi[0].substr(0, 3), "380");
    EXPECT_EQ(b.Testi()[0], "60;62;64;");
    EXPECT_EQ(b.melodia.voci[soprano].numeroNote, 3);
    EXPECT_EQ(b.passo.IndiceNotaPP, 1);
    EXPECT_EQ(b.Scatola("lblNini"), "2");
    EXPECT_EQ(b.Riferimenti(), 2U);
}

TEST(CancellaAMano, WhereNoNoteIsBeforeTheStepItIsAFaultThatLeavesTheVoice) {
    BancoCancella b;
    b.Passi(4);
    b.Tocca("VoceAttiva1");
    b.passo.IndiceNotaPP = 5;
    b.Cancella();
    EXPECT_EQ(b.riquadri.messaggi, std::vector<std::string>{"9\r\nSubscript out of range"});
    EXPECT_EQ(b.Testi(contralto)[0], "48;50;52;");
    EXPECT_EQ(b.melodia.voci[contralto].numeroNote, 3);
    EXPECT_EQ(b.passo.IndiceNotaPP, 5);
}

TEST(TagliaAMano, DropsTheLastNoteAndRaisesTheFlag) {
    BancoCancella b;
    b.specchio.fuochi.clear();
    b.Tocca("cmdCanc");
    EXPECT_EQ(b.Testi(), (TestiVoce{"60;62;64;", "1;0.5;2;", "n;s;t;"}));
    EXPECT_TRUE(b.Modificata());
    EXPECT_EQ(b.specchio.fuochi, Fuochi{"cmdInsNota"});
    EXPECT_EQ(b.finestra.voci.LblNoteString.Caption(), "Do;Re;Mi;");
}

TEST(TagliaAMano, OfTheOnlyNoteItLeavesAnEmptyVoiceAndTheFlagAsItWas) {
    BancoCancella b;
    b.Voce(soprano, "60;62;", "1");
    b.Tocca("cmdCanc");
    EXPECT_EQ(b.Testi()[0], "60;");
    b.finestra.stato.lblModificato.Visible = false;
    b.Tocca("cmdCanc");
    EXPECT_EQ(b.Testi(), (TestiVoce{"", "", ""}));
    EXPECT_FALSE(b.Modificata());
    EXPECT_EQ(b.melodia.voci[soprano].numeroNote, -1);
    EXPECT_EQ(b.Riferimenti(), 0U);
    b.Tocca("cmdCanc");
    EXPECT_FALSE(b.Modificata());
}

TEST(TagliaAMano, MakesTheWholeSopranoItsRangeAndTheFirstBookmarkFollow) {
    BancoCancella b;
    b.Tratto(3, 4);
    b.Tocca("cmdCanc");
    EXPECT_EQ(b.Scatola("lblNini"), "1");
    EXPECT_EQ(b.Scatola("lblNfine"), "3");
    EXPECT_EQ(b.melodia.voci[soprano].primaNota, 0);
    EXPECT_EQ(b.melodia.voci[soprano].ultimaNota, 2);
    EXPECT_EQ(b.finestra.stato.lblNt.Caption(), "3");
    EXPECT_EQ(b.finestra.riferimenti.lstBookMark.List()[0].substr(0, 6), "1 ÷ 3");
}

TEST(TagliaAMano, OfALowerVoiceItLeavesTheRangesStart) {
    BancoCancella b;
    b.Tratto(2, 3);
    b.Tocca("VoceAttiva1");
    b.finestra.voci.lblNiniC.Text = "2";
    b.Tocca("cmdCanc");
    EXPECT_EQ(b.Scatola("lblNini"), "2");
    EXPECT_EQ(b.Scatola("lblNfine"), "3");
    EXPECT_EQ(b.Testi(contralto)[0], "48;50;");
    EXPECT_EQ(b.Scatola("lblNiniC"), "2");
    EXPECT_EQ(b.Scatola("lblNfineC"), "2");
    EXPECT_EQ(b.Testi()[0], "60;62;64;65;");
}

TEST(TagliaAMano, ANoteOfOneCharacterCantBeDroppedAlone) {
    BancoCancella b;
    b.Voce(soprano, "0;", "1;", "n;");
    b.Tocca("cmdCanc");
    EXPECT_EQ(b.Testi()[0], "0;");
    EXPECT_FALSE(b.Modificata());
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(TagliaAMano, TextsThatAreNotParallelAreAFaultThatIsReportedAndChangesNothing) {
    BancoCancella b;
    b.melodia.voci[soprano].testoDurate = "1;";
    b.Tocca("cmdCanc");
    ASSERT_EQ(b.riquadri.messaggi.size(), 1U);
    EXPECT_EQ(b.riquadri.messaggi[0].substr(0, 1), "5");
    EXPECT_EQ(b.Testi()[0], "60;62;64;65;");
}

}  // namespace corvana::prova
