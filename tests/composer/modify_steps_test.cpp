// The walk of the step mode, and what each step loads and sounds.
#include <gtest/gtest.h>

#include "tests/composer/hand_rig.h"

namespace corvana::prova {

namespace {

struct BancoACinque : BancoAMano {
    BancoACinque() {
        Voce(soprano, "60;62;00;65;67;", "1;0.75;0.5;0.333333333333333;2;", "n;s;p;t;a;");
    }

    void Scatole(const char* prima, const char* ultima) {
        finestra.voci.lblNini.Text = prima;
        finestra.voci.lblNfine.Text = ultima;
    }
    /// Where so many steps lead, as the numbers shown.
    std::vector<std::string> Passi(int verso, int quanti) {
        std::vector<std::string> numeri;
        for (int i = 0; i < quanti; ++i) {
            Passo(verso);
            numeri.push_back(finestra.stato.lblNe.Caption());
        }
        return numeri;
    }
};

using Numeri = std::vector<std::string>;

}  // namespace

TEST(PassoAMano, TheFirstOneForwardLandsOnTheRangesFirstNoteAndTheWalkIsACircle) {
    BancoACinque b;
    b.Tratto(2, 4);
    EXPECT_EQ(b.Passi(1, 5), (Numeri{"2", "3", "4", "2", "3"}));
    EXPECT_EQ(b.finestra.stato.lblNt.Caption(), "4");
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(PassoAMano, TheFirstOneBackLandsOnTheRangesLastNote) {
    BancoACinque b;
    b.Tratto(2, 4);
    EXPECT_EQ(b.Passi(0, 4), (Numeri{"4", "3", "2", "4"}));
}

TEST(PassoAMano, BackFromTheStartTheSopranoGoesToItsFieldAndTheOthersToTheirBox) {
    BancoACinque b;
    b.Scatole("1", "3");
    EXPECT_EQ(b.Passi(0, 1), Numeri{"5"});
    b.Voce(contralto, "48;50;52;", "1");
    b.finestra.voci.lblNfineC.Text = "2";
    b.Tocca("VoceAttiva1");
    EXPECT_EQ(b.Passi(0, 1), Numeri{"2"});
}

TEST(PassoAMano, EachSoundsItsNoteAlone) {
    BancoACinque b;
    b.Voce(contralto, "48;", "4");
    // The release is the end procedure's, which comes a tick before the note's own.
    EXPECT_EQ(b.Sentite([&] { b.Passo(1); }), (NoteSentite{{0, 1, 60, 96}, {31 * 31, 1, 60, 0}}));
    EXPECT_EQ(b.finestra.stato.lblPnn.Caption(), "Do");
}

TEST(PassoAMano, LoadsTheNoteIntoTheToolsAndMakesItTheActiveOne) {
    BancoACinque b;
    struct Caso {
        const char *nome, *durata, *attributo;
        int nota;
        bool modificabile;
    };
    for (const Caso& caso : {Caso{"Do", "1/4", "n", 60, true},
                             {"Re", "(1/8).", "s", 62, true},
                             {"P", "1/8", "p", 0, true},
                             {"Fa", "na", "t", 65, false},
                             {"Sol", "2/4", "a", 67, true}}) {
        b.Passo(1);
        EXPECT_EQ(b.finestra.modifica.lblActualNote.Caption(), caso.nome);
        EXPECT_EQ(b.finestra.stato.lblActNote.Caption(), caso.nome);
        EXPECT_EQ(b.finestra.modifica.cmbDurata.Text(), caso.durata);
        EXPECT_EQ(b.finestra.modifica.cmbAttributi.Text(), caso.attributo);
        EXPECT_EQ(b.finestra.modifica.cmdModifica[0].Enabled(), caso.modificabile);
        EXPECT_EQ(b.inserimento.notaAttiva, caso.nota);
    }
    EXPECT_FALSE(b.Modificata());
}

TEST(PassoAMano, OpensTheFrameWithTheMultiplierAtOneAndForTheSopranoNothingCanBeDropped) {
    BancoACinque b;
    EXPECT_EQ(b.finestra.modifica.lblActualNote.Caption(), "Nota attiva");
    b.finestra.modifica.cmbPer.ListIndex = 4;
    b.Passo(1);
    EXPECT_TRUE(b.finestra.modifica.frmModifica.Visible());
    EXPECT_TRUE(b.passo.modoPasso);
    EXPECT_EQ(b.finestra.modifica.cmbPer.Text(), "1");
    EXPECT_FALSE(b.finestra.modifica.cmdCanc.Enabled());
    b.Tocca("cmdCanc");
    EXPECT_EQ(b.Testi()[0], "60;62;00;65;67;");
}

TEST(PassoAMano, ARangeBeyondTheVoiceIsReportedWhereTheStepLeavesIt) {
    BancoACinque b;
    b.Scatole("4", "9");
    EXPECT_EQ(b.Passi(1, 2), (Numeri{"4", "5"}));
    EXPECT_EQ(b.Sentite([&] { b.Passo(1); }), NoteSentite{});
    EXPECT_EQ(
        b.riquadri.messaggi,
        std::vector<std::string>{"From= 3\r\nTo= 8\r\nIndiceNotaPP= 5\r\nAbnormal condition !!!"});
    EXPECT_EQ(b.finestra.stato.lblNe.Caption(), "5");
    EXPECT_EQ(b.inserimento.notaAttiva, 67);
    EXPECT_TRUE(b.finestra.modifica.frmModifica.Visible());
}

TEST(PassoAMano, OfTheSopranoTheDropIsLockedAlsoWhereTheFirstStepLeavesTheVoice) {
    BancoACinque b;
    b.Scatole("6", "9");
    b.Passo(1);
    EXPECT_EQ(b.riquadri.messaggi.size(), 1U);
    EXPECT_FALSE(b.finestra.modifica.cmdCanc.Enabled());
}

TEST(PassoAMano, OfALowerVoiceBeyondItsEndTheDropStaysPossible) {
    BancoACinque b;
    b.Voce(contralto, "48;", "1");
    b.Tocca("VoceAttiva1");
    b.finestra.voci.lblNfineC.Text = "3";
    b.finestra.voci.lblNiniC.Text = "2";
    b.Passo(1);
    EXPECT_EQ(b.riquadri.messaggi.size(), 1U);
    EXPECT_TRUE(b.finestra.modifica.cmdCanc.Enabled());
}

TEST(PassoAMano, TurnsTheMetronomeAndTheLoopOffSoThatItSoundsOnce) {
    BancoACinque b;
    b.Tocca("lblTs");
    b.Tocca("chekLoop", 1);
    EXPECT_EQ(b.Sentite([&] { b.Passo(1); }).size(), 2U);
    EXPECT_FALSE(b.finestra.play.chekLoop.Value());
    EXPECT_EQ(b.finestra.pulsi.lblTs.Caption(), "Off");
    EXPECT_FALSE(b.finestra.pulsi.battuta.metroAttivo);
    EXPECT_FALSE(b.finestra.pulsi.frMetro.Visible());
    b.Tocca("lblTs");
    EXPECT_EQ(b.finestra.pulsi.lblTs.Caption(), "On");
}

TEST(PassoAMano, InAnEmptyVoiceItTurnsTheMetronomeOffAndDoesNothingElse) {
    BancoACinque b;
    b.Tocca("lblTs");
    b.Tocca("VoceAttiva2");
    b.Passo(1);
    EXPECT_EQ(b.finestra.pulsi.lblTs.Caption(), "Off");
    EXPECT_FALSE(b.passo.modoPasso);
    EXPECT_FALSE(b.finestra.modifica.frmModifica.Visible());
}

TEST(PassoAMano, WhileAMelodyPlaysItDoesNothing) {
    BancoACinque b;
    b.Tocca("lblTs");
    b.CliccaNelTick(3, "lblStep1");
    b.NelTick(5, [&] {
        EXPECT_TRUE(b.finestra.pulsi.battuta.metroAttivo);
        EXPECT_FALSE(b.finestra.modifica.frmModifica.Visible());
    });
    b.Suona();
    EXPECT_FALSE(b.passo.modoPasso);
    EXPECT_EQ(b.Messaggi(1).size(), 8U);
}

TEST(PassoAMano, WhatAStoppedPlayLeftSoundingIsSilencedThoughAStepFollowsAtOnce) {
    BancoACinque b;
    // The second note runs on into the third, which leaves it to the play's end.
    b.Voce(soprano, "60;62;64;65;", "2;0.25;4;1;", "n;?;n;n;");
    b.CliccaNelTick(90, "cmdPlay");
    b.CliccaNelTick(90, "lblStep1");
    b.Suona();
    EXPECT_TRUE(b.passo.modoPasso);
    EXPECT_EQ(b.finestra.stato.lblNe.Caption(), "1");
    EXPECT_TRUE(b.uscita.NoteAccese().empty());
}

TEST(PassoAMano, EndsByItsButtonWhichLetsNotesBeDroppedAgain) {
    BancoACinque b;
    b.Passo(1);
    b.Tocca("cmdNpp");
    EXPECT_FALSE(b.passo.modoPasso);
    EXPECT_FALSE(b.finestra.modifica.frmModifica.Visible());
    EXPECT_TRUE(b.finestra.modifica.cmdCanc.Enabled());
    // The next walk begins anew.
    b.Passo(1);
    EXPECT_EQ(b.finestra.stato.lblNe.Caption(), "1");
}

TEST(PassoAMano, AnotherVoiceEndsItAndLeavesItsFrame) {
    BancoACinque b;
    b.Voce(contralto, "48;50;", "1");
    b.Passi(1, 3);
    b.Tocca("VoceAttiva1");
    EXPECT_FALSE(b.passo.modoPasso);
    EXPECT_TRUE(b.finestra.modifica.frmModifica.Visible());
    EXPECT_EQ(b.Passi(1, 1), Numeri{"1"});
    b.Tocca("cmdPlay");
    EXPECT_FALSE(b.finestra.modifica.frmModifica.Visible());
}

TEST(PassoAMano, ABoxWithoutANumberIsAFaultThatIsReported) {
    BancoACinque b;
    b.Scatole("x", "3");
    b.Passo(1);
    EXPECT_EQ(b.riquadri.messaggi, std::vector<std::string>{"13\r\nType mismatch"});
    EXPECT_FALSE(b.passo.modoPasso);
}

TEST(PassoAMano, ATokenThatIsNoNumberOrNoAttributeIsAFaultThatIsReported) {
    BancoACinque b;
    b.Voce(soprano, "60;60;", "1;1;", "n;?;");
    b.melodia.voci[soprano].noteVoce[0] = "x";
    b.Passo(1);
    b.Passo(1);
    ASSERT_EQ(b.riquadri.messaggi.size(), 2U);
    EXPECT_EQ(b.riquadri.messaggi[0].substr(0, 2), "13");
    EXPECT_EQ(b.riquadri.messaggi[1].substr(0, 3), "380");
}

TEST(ListaDelleDurate, TheWordForAnyOtherDurationCantBeWritten) {
    BancoACinque b;
    b.Passo(1);
    b.ScegliIn("cmbDurata", "na");
    EXPECT_FALSE(b.finestra.modifica.cmdModifica[0].Enabled());
    b.ScegliIn("cmbDurata", "1/64");
    EXPECT_TRUE(b.finestra.modifica.cmdModifica[0].Enabled());
}

}  // namespace corvana::prova
