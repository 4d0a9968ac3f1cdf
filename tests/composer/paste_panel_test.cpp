// The paste of a voice's range at its own end, and the label that waits between its two clicks.
#include <gtest/gtest.h>

#include "tests/composer/hand_rig.h"
#include "tests/composer/mel_lines.h"

namespace corvana::prova {

namespace {

struct BancoIncolla : BancoAMano {
    BancoIncolla() {
        Voce(soprano, "60;62;64;", "1;0.5;2;", "n;s;t;");
        finestra.incolla.cmdPaste.Enabled = true;
    }
    bool Attende() const { return finestra.incolla.lblIncolla.Visible(); }
    void Incolla() { Tocca("cmdPaste"); }
    void DueVolte() {
        Incolla();
        Incolla();
    }
    std::pair<std::string, std::string> Caselle(std::size_t voce) const {
        return {finestra.voci.perVoce[voce].prima.Text(),
                finestra.voci.perVoce[voce].ultima.Text()};
    }
    /// Types a range of the soprano, leaving each box.
    void Scrivi(const std::string& prima, const std::string& ultima) {
        ScriviIn("lblNini", prima);
        Esci("lblNini");
        ScriviIn("lblNfine", ultima);
        Esci("lblNfine");
    }
};

const TestiVoce treNote = {"60;62;64;", "1;0.5;2;", "n;s;t;"};
using Estremi = std::pair<std::string, std::string>;

}  // namespace

TEST(CmdPaste, TheFirstClickChangesNothingButShowsTheLabelAndAClickOnThatCancels) {
    BancoIncolla b;
    b.Incolla();
    EXPECT_TRUE(b.Attende());
    EXPECT_EQ(b.Testi(), treNote);
    EXPECT_FALSE(b.Modificata());
    b.Tocca("lblIncolla");
    EXPECT_FALSE(b.Attende());
    b.Incolla();
    EXPECT_TRUE(b.Attende());
    EXPECT_EQ(b.Testi(), treNote);
    EXPECT_FALSE(b.Modificata());
}

TEST(CmdPaste, TwoClicksPasteRange2To3AtTheEndAndTheRangeIs2To5) {
    BancoIncolla b;
    b.Scrivi("2", "3");
    b.DueVolte();
    EXPECT_EQ(b.Testi(), (TestiVoce{"60;62;64;62;64;", "1;0.5;2;0.5;2;", "n;s;t;s;t;"}));
    EXPECT_EQ(b.Caselle(soprano), (Estremi{"2", "5"}));
    EXPECT_EQ(b.melodia.voci[soprano].primaNota, 1);
    EXPECT_EQ(b.melodia.voci[soprano].ultimaNota, 4);
    EXPECT_EQ(b.melodia.voci[soprano].noteVoce.size(), 6U);
    EXPECT_EQ(b.finestra.stato.lblNt.Caption(), "5");
    EXPECT_EQ(b.finestra.voci.LblNoteString.Caption(), "Do;Re;Mi;Re;Mi;");
    EXPECT_FALSE(b.Attende());
    EXPECT_TRUE(b.Modificata());
}

TEST(CmdPaste, AFurtherPasteTakesTheLongerRange) {
    BancoIncolla b;
    b.Scrivi("2", "3");
    b.DueVolte();
    b.DueVolte();
    EXPECT_EQ(b.Testi()[0], "60;62;64;62;64;62;64;62;64;");
    EXPECT_EQ(b.Caselle(soprano), (Estremi{"2", "9"}));
}

TEST(CmdPaste, OnAnEmptyVoiceDoesNothingVisible) {
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        BancoIncolla b;
        if (voce == soprano) b.Tocca("cmdReset");
        b.Tocca("VoceAttiva" + std::to_string(voce));
        b.DueVolte();
        EXPECT_FALSE(b.Attende());
        EXPECT_FALSE(b.Modificata());
        EXPECT_EQ(b.Testi(voce), TestiVoce{});
        EXPECT_EQ(b.Caselle(voce), Estremi{});
        EXPECT_EQ(b.melodia.voci[voce].numeroNote, -1);
        EXPECT_TRUE(b.riquadri.messaggi.empty());
    }
}

TEST(CmdPaste, WorksWithinTheActiveVoiceAlone) {
    for (std::size_t voce = contralto; voce < numeroVoci; ++voce) {
        BancoIncolla b;
        b.Voce(voce, "48;50;", "1");
        b.Tocca("VoceAttiva" + std::to_string(voce));
        b.DueVolte();
        EXPECT_EQ(b.Testi(voce)[0], "48;50;48;50;");
        EXPECT_EQ(b.Caselle(voce), (Estremi{"1", "4"}));
        EXPECT_EQ(b.Testi(), treNote);
    }
}

TEST(CmdPaste, AfterAChangeOfVoiceAndRangeTheNextClickPastesAtOnceUnderTheNewRange) {
    BancoIncolla b;
    b.Voce(tenore, "48;50;52;", "1");
    b.Incolla();
    b.Tocca("VoceAttiva2");
    b.ScriviIn("lblNfineT", "3");
    b.ScriviIn("lblNiniT", "2");
    b.Esci("lblNiniT");
    EXPECT_TRUE(b.Attende());
    b.Incolla();
    EXPECT_EQ(b.Testi(tenore)[0], "48;50;52;50;52;");
    EXPECT_EQ(b.Testi(), treNote);
    EXPECT_FALSE(b.Attende());
}

TEST(CmdPaste, AnEmptyVoiceLeavesThePasteWaiting) {
    BancoIncolla b;
    b.Incolla();
    b.Tocca("VoceAttiva3");
    b.Incolla();
    EXPECT_TRUE(b.Attende());
    b.Tocca("VoceAttiva0");
    b.Incolla();
    EXPECT_EQ(b.Testi()[0], "60;62;64;60;62;64;");
}

TEST(CmdPaste, ARefusedLastNoteOfALowerVoiceIsReadFromItsBoxAndNotFromTheField) {
    BancoIncolla b;
    b.Voce(contralto, "48;50;52;53;", "1");
    b.ScriviIn("lblNfineC", "3");
    b.Esci("lblNfineC");
    b.ScriviIn("lblNfineC", "2");
    b.Esci("lblNfineC");
    EXPECT_EQ(b.melodia.voci[contralto].ultimaNota, 2);
    EXPECT_EQ(b.Caselle(contralto), (Estremi{"1", "4"}));
    b.DueVolte();
    EXPECT_EQ(b.Testi(contralto)[0], "48;50;52;53;48;50;52;53;");
}

TEST(CmdPaste, ARangeOutOfTheVoiceIsAFaultInTheBoxAndNothingIsHalfPasted) {
    for (const auto& [prima, ultima] : {std::pair{1, 4}, {0, 2}, {4, 4}, {-5, 1}, {1, 32767}}) {
        BancoIncolla b;
        b.Tratto(prima, ultima);
        b.DueVolte();
        EXPECT_EQ(b.riquadri.messaggi, std::vector<std::string>{"9\r\nSubscript out of range"});
        EXPECT_EQ(b.Testi(), treNote);
        EXPECT_EQ(b.melodia.voci[soprano].noteVoce.size(), 4U);
        // The order of the steps: the label is down and the mark up before the range is read.
        EXPECT_FALSE(b.Attende());
        EXPECT_TRUE(b.Modificata());
    }
}

TEST(CmdPaste, ABookmarkOfNotesThatNoLongerExistIsSuchARange) {
    BancoIncolla b;
    b.finestra.riferimenti.lstBookMark.List = Righe{"1 ÷ 3 ÷Tutta", "2 ÷ 9 ÷ a"};
    b.finestra.riferimenti.lstBookMark.ListIndex = 1;
    b.finestra.riferimenti.frBookMark.Visible = true;
    b.Tocca("cmdPlayBm");
    b.riquadri.messaggi.clear();
    b.DueVolte();
    EXPECT_EQ(b.riquadri.messaggi, std::vector<std::string>{"9\r\nSubscript out of range"});
    EXPECT_EQ(b.Testi(), treNote);
}

TEST(CmdPaste, ABoxThatHoldsNoNumberIsAFaultAndNothingIsPasted) {
    for (const auto& [prima, ultima, guasto] : {std::tuple{"abc", "3", "13\r\nType mismatch"},
                                                {"1", "", "13\r\nType mismatch"},
                                                {"", "3", "13\r\nType mismatch"},
                                                {"1", "99999", "6\r\nOverflow"}}) {
        BancoIncolla b;
        b.finestra.voci.lblNini.Text = prima;
        b.finestra.voci.lblNfine.Text = ultima;
        b.DueVolte();
        EXPECT_EQ(b.riquadri.messaggi, std::vector<std::string>{guasto});
        EXPECT_EQ(b.Testi(), treNote);
        EXPECT_FALSE(b.Attende());
        EXPECT_TRUE(b.Modificata());
    }
}

TEST(CmdPaste, ARangeThatEndsBeforeItBeginsPastesNothing) {
    BancoIncolla b;
    b.Tratto(3, 2);
    b.DueVolte();
    EXPECT_EQ(b.Testi(), treNote);
    EXPECT_TRUE(b.riquadri.messaggi.empty());
    EXPECT_EQ(b.Caselle(soprano), (Estremi{"3", "3"}));
    EXPECT_TRUE(b.Modificata());
}

TEST(CmdPaste, BeyondWhatAVoiceHoldsIsAFaultAndNothingIsHalfPasted) {
    BancoIncolla b;
    b.Voce(soprano, Ripetuto("60;", 20000), "1");
    const TestiVoce prima = b.Testi();
    b.DueVolte();
    EXPECT_EQ(b.riquadri.messaggi, std::vector<std::string>{"6\r\nOverflow"});
    EXPECT_EQ(b.Testi(), prima);
    EXPECT_EQ(b.melodia.voci[soprano].numeroNote, 20000);
}

TEST(CmdPaste, FollowsTheSopranoInTheWholeMelodysBookmark) {
    BancoIncolla b;
    b.finestra.riferimenti.lstBookMark.List = Righe{"1 ÷ 3 ÷Tutta", "1 ÷ 2 ÷ a"};
    b.DueVolte();
    EXPECT_EQ(b.finestra.riferimenti.lstBookMark.List(), (Righe{"1 ÷ 6 ÷Tutta", "1 ÷ 2 ÷ a"}));
}

TEST(CmdPaste, TheLabelIsHiddenAtTheStartAndOutlastsAPlayInWhichThereIsNoPaste) {
    BancoIncolla b;
    EXPECT_FALSE(b.Attende());
    b.Incolla();
    b.NelTick(40, [&] {
        EXPECT_FALSE(b.finestra.incolla.cmdPaste.Enabled());
        EXPECT_TRUE(b.Attende());
        b.Incolla();
    });
    b.Suona();
    EXPECT_TRUE(b.Attende());
    EXPECT_EQ(b.Testi(), treNote);
    EXPECT_TRUE(b.finestra.incolla.cmdPaste.Enabled());
}

TEST(CmdPaste, AfterAResetTheWaitingPasteStaysAndHasNothingToPaste) {
    BancoIncolla b;
    b.Incolla();
    b.Tocca("cmdReset");
    EXPECT_TRUE(b.Attende());
    b.Incolla();
    EXPECT_TRUE(b.Attende());
    EXPECT_EQ(b.Testi(), TestiVoce{});
}

}  // namespace corvana::prova
