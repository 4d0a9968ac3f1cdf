// Transposing the whole melody.
#include <gtest/gtest.h>

#include "composer/transposition_panel.h"
#include "tests/composer/composer_rig.h"

namespace corvana::prova {

namespace {

struct BancoTrasporto : BancoComposer {
    BancoTrasporto() {
        globali.testi.msgTrasposizioneNo = "no transposition";
        globali.testi.msgNoteFuori = "notes outside";
        Voce(soprano, "60;00;62;", "1;0.5;2;", "n;p;s;");
        Voce(contralto, "55;57;", "1");
        Voce(basso, "48;", "4");
        finestra.stato.lblModificato.Visible = false;
    }
    PannelloTrasposizione& t = finestra.trasposizione;
    void Di(int semitoni) {
        for (int i = 0; i < std::abs(semitoni); ++i)
            Subito(Fatto::Click, semitoni < 0 ? "lblIDs0" : "lblIDs1");
    }
    void Trasponi(int semitoni) {
        Di(semitoni);
        specchio.fuochi.clear();
        Subito(Fatto::Click, "lblSemitoni");
    }
    std::vector<std::string> Note() const {
        std::vector<std::string> note;
        for (const VoceMelodia& voce : melodia.voci)
            note.push_back(voce.testoNote);
        return note;
    }
    bool Modificata() const { return finestra.stato.lblModificato.Visible(); }
    void NessunaAttende() {
        EXPECT_EQ(melodia.semitoni, 0);
        EXPECT_EQ(t.lblSemitoni.Caption(), "0");
    }
};

using Testi = std::vector<std::string>;

}  // namespace

TEST(LblIDsClick, Index0LowersAndIndex1RaisesByOneSemitone) {
    BancoTrasporto b;
    b.Di(3);
    EXPECT_EQ(b.melodia.semitoni, 3);
    EXPECT_EQ(b.t.lblSemitoni.Caption(), "3");
    b.Di(-5);
    EXPECT_EQ(b.melodia.semitoni, -2);
    EXPECT_EQ(b.t.lblSemitoni.Caption(), "-2");
}

TEST(LblIDsClick, ItStopsAtTwelveEitherWay) {
    BancoTrasporto b;
    b.Di(14);
    EXPECT_EQ(b.melodia.semitoni, 12);
    b.Di(-30);
    EXPECT_EQ(b.melodia.semitoni, -12);
    EXPECT_EQ(b.t.lblSemitoni.Caption(), "-12");
}

TEST(LblIDsClick, WithoutASopranoItDoesNothing) {
    BancoTrasporto b;
    b.melodia.voci[soprano].testoNote.clear();
    b.Di(3);
    b.NessunaAttende();
}

TEST(LblIDsClick, AnyOtherIndexDoesNothing) {
    BancoTrasporto b;
    b.t.lblIDs_Click(2);
    b.t.lblIDs_Click(-1);
    b.NessunaAttende();
}

TEST(Trasponi, MovesAllVoicesTogetherAndRestsStay) {
    BancoTrasporto b;
    b.Trasponi(2);
    EXPECT_EQ(b.Note(), (Testi{"62;00;64;", "57;59;", "", "50;"}));
    EXPECT_EQ(b.melodia.voci[soprano].testoDurate, "1;0.5;2;");
    EXPECT_EQ(b.melodia.voci[soprano].testoAttributi, "n;p;s;");
    EXPECT_EQ(b.melodia.voci[soprano].noteVoce, (Testi{"62", "00", "64", ""}));
    EXPECT_TRUE(b.Modificata());
    EXPECT_EQ(b.specchio.fuochi, Testi{"cmdPlay"});
    b.NessunaAttende();
}

TEST(Trasponi, DownAndUpAgainGivesTheTextsBack) {
    BancoTrasporto b;
    const Testi prima = b.Note();
    b.Trasponi(-12);
    EXPECT_EQ(b.Note(), (Testi{"48;00;50;", "43;45;", "", "36;"}));
    b.Trasponi(12);
    EXPECT_EQ(b.Note(), prima);
}

TEST(Trasponi, TwelveWithA90InTheTenorIsRefusedWhateverTheOthersHold) {
    BancoTrasporto b;
    b.Voce(tenore, "60;90;", "1");
    const Testi prima = b.Note();
    b.finestra.voci.LblNoteString.Caption = "as it was";
    b.Trasponi(12);
    EXPECT_EQ(b.Note(), prima);
    EXPECT_EQ(b.finestra.voci.LblNoteString.Caption(), "as it was");
    EXPECT_EQ(b.riquadri.messaggi, Testi{"no transposition\nnotes outside"});
    EXPECT_FALSE(b.Modificata());
    EXPECT_EQ(b.specchio.fuochi, Testi{"cmdPlay"});
    b.NessunaAttende();
}

TEST(Trasponi, TheOutermostKeysAreReachedAndNothingBeyondThem) {
    for (const auto& [nota, semitoni, riesce] :
         std::vector<std::tuple<int, int, bool>>{{94, 1, true},
                                                 {95, 1, false},
                                                 {83, 12, true},
                                                 {84, 12, false},
                                                 {37, -1, true},
                                                 {36, -1, false},
                                                 {48, -12, true},
                                                 {47, -12, false}}) {
        BancoTrasporto b;
        for (const std::size_t voce : {contralto, basso})
            b.Voce(voce, "", "1");
        b.Voce(soprano, std::to_string(nota) + ";", "1");
        b.Trasponi(semitoni);
        EXPECT_EQ(b.Note()[0], std::to_string(riesce ? nota + semitoni : nota) + ";");
        EXPECT_EQ(b.riquadri.messaggi.empty(), riesce);
    }
}

TEST(Trasponi, AMelodyOfRestsOnlyAcceptsAnyAndNothingChangesButTheMark) {
    for (const int semitoni : {-12, -1, 1, 12}) {
        BancoTrasporto b;
        for (const std::size_t voce : {soprano, contralto, basso})
            b.Voce(voce, "00;00;", "1;1;", "p;p;");
        const Testi prima = b.Note();
        b.Trasponi(semitoni);
        EXPECT_EQ(b.Note(), prima);
        EXPECT_TRUE(b.Modificata());
        EXPECT_TRUE(b.riquadri.messaggi.empty());
    }
}

TEST(Trasponi, TheNamesAreThoseOfAllNotesWhateverTheRangeAndTheirLast40Letters) {
    BancoTrasporto b;
    b.Voce(contralto, "55;57;59;", "1");
    b.finestra.voci.lblNfineC.Text = "1";
    std::string note;
    for (int i = 0; i < 30; ++i)
        note += "67;";
    b.Voce(basso, note, "1");
    b.finestra.voci.LblNoteStringT.Caption = "";
    b.Trasponi(1);
    EXPECT_EQ(b.finestra.voci.LblNoteStringC.Caption(), "Sol#;La#;Do;");
    EXPECT_EQ(b.finestra.voci.LblNoteString.Caption(), "Do#;P;Re#;");
    EXPECT_EQ(b.finestra.voci.LblNoteStringT.Caption(), "");
    const std::string basse = b.finestra.voci.LblNoteStringB.Caption();
    EXPECT_EQ(basse, "Sol#;Sol#;Sol#;Sol#;Sol#;Sol#;Sol#;Sol#;");
    EXPECT_EQ(b.finestra.voci.lblNfineC.Text(), "1");
}

TEST(Trasponi, WhileAMelodyPlaysTheClickIsIgnoredWithoutAWord) {
    BancoTrasporto b;
    b.Di(2);
    const Testi prima = b.Note();
    b.CliccaNelTick(3, "lblSemitoni");
    b.Suona();
    EXPECT_EQ(b.Note(), prima);
    EXPECT_EQ(b.melodia.semitoni, 2);
    EXPECT_TRUE(b.riquadri.messaggi.empty());
    EXPECT_FALSE(b.Modificata());
}

TEST(Trasponi, WithNoSemitonesWaitingNothingHappens) {
    BancoTrasporto b;
    b.Trasponi(0);
    EXPECT_FALSE(b.Modificata());
    EXPECT_TRUE(b.specchio.fuochi.empty());
}

TEST(Trasponi, AMelodyThatWasEmptiedMeanwhileIsntMarked) {
    BancoTrasporto b;
    b.Di(2);
    b.finestra.cmdReset_Click();
    b.Subito(Fatto::Click, "lblSemitoni");
    EXPECT_FALSE(b.Modificata());
    b.NessunaAttende();
}

}  // namespace corvana::prova
