// The active voice, the instruments and the volumes.
#include <gtest/gtest.h>

#include "tests/composer/composer_rig.h"

namespace corvana::prova {

namespace {

constexpr Colore verde = Rgb(0, 255, 0);
constexpr Colore rosso = Rgb(255, 0, 0);

using Programmi = std::vector<std::pair<int, int>>;

struct BancoMix : BancoComposer {
    BancoMix() { uscita.messaggi.clear(); }
    bool Modificata() const { return finestra.stato.lblModificato.Visible(); }
};

}  // namespace

TEST(VoceAttivaClick, MakesTheVoiceTheGreenOneAndTheOthersRed) {
    for (std::size_t scelta = 0; scelta < numeroVoci; ++scelta) {
        BancoMix b;
        b.Subito(Fatto::Click, "VoceAttiva" + std::to_string(scelta));
        EXPECT_EQ(b.melodia.voceAttiva, nomiVoci[scelta]);
        EXPECT_EQ(b.finestra.riferimenti.cmdAddBm.Enabled(), scelta == soprano);
        for (std::size_t voce = 0; voce < numeroVoci; ++voce)
            EXPECT_EQ(b.finestra.mix.VoceAttiva[voce].BackColor(), voce == scelta ? verde : rosso);
    }
}

TEST(VoceAttivaClick, TheSopranoGivesTheBookmarkButtonBack) {
    BancoMix b;
    b.finestra.mix.VoceAttiva_Click(2);
    b.finestra.mix.VoceAttiva_Click(0);
    EXPECT_TRUE(b.finestra.riferimenti.cmdAddBm.Enabled());
}

TEST(VoceAttivaClick, ShowsTheVoicesRangeEndAndNotItsCount) {
    BancoMix b;
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        b.Voce(voce, "60;62;64;", "1");
        b.finestra.voci.perVoce[voce].ultima.Text = std::to_string(voce + 10);
    }
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        b.finestra.mix.VoceAttiva_Click(static_cast<int>(voce));
        EXPECT_EQ(b.finestra.stato.lblNt.Caption(), std::to_string(voce + 10));
    }
}

TEST(VoceAttivaClick, SelectingAnEmptyVoiceLeavesLblNtAsItWas) {
    BancoMix b;
    b.Voce(soprano, "60;62;", "1");
    b.finestra.mix.VoceAttiva_Click(contralto);
    EXPECT_EQ(b.finestra.stato.lblNt.Caption(), "2");
}

TEST(VoceAttivaClick, InStepModeEndsTheModesFlagButLeavesFrmModificaOnTheScreen) {
    BancoMix b;
    b.passo.modoPasso = true;
    b.finestra.modifica.frmModifica.Visible = true;
    b.Subito(Fatto::Click, "VoceAttiva1");
    EXPECT_FALSE(b.passo.modoPasso);
    EXPECT_TRUE(b.finestra.modifica.frmModifica.Visible());
}

TEST(VoceAttivaClick, AnIndexOutsideOf0To3DoesNothing) {
    BancoMix b;
    b.finestra.mix.VoceAttiva_Click(contralto);
    b.passo.modoPasso = true;
    for (const int indice : {-1, 4, 100}) {
        b.finestra.mix.VoceAttiva_Click(indice);
        EXPECT_EQ(b.melodia.voceAttiva, "contralto");
        EXPECT_TRUE(b.passo.modoPasso);
        EXPECT_FALSE(b.finestra.riferimenti.cmdAddBm.Enabled());
        EXPECT_EQ(b.finestra.mix.VoceAttiva[contralto].BackColor(), verde);
    }
}

TEST(SceltaStrum, GivesTheActiveVoiceTheInstrumentOnItsChannelAndShowsIt) {
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        BancoMix b;
        b.finestra.mix.VoceAttiva_Click(static_cast<int>(voce));
        b.finestra.mix.SceltaStrum(40);
        EXPECT_EQ(b.Programmi(), (Programmi{{static_cast<int>(voce) + 1, 40}}));
        for (std::size_t i = 0; i < numeroVoci; ++i) {
            EXPECT_EQ(b.melodia.voci[i].strumento, i == voce ? 40 : 16);
            EXPECT_EQ(b.finestra.mix.lblInstr[i].Caption(),
                      i == voce ? "40-Violin" : "16-Hammond Organ");
        }
    }
}

TEST(SceltaStrum, AnotherInstrumentMarksAMelodyThatHasASoprano) {
    BancoMix b;
    b.Voce(basso, "48;", "1");
    b.finestra.mix.VoceAttiva_Click(basso);
    b.finestra.mix.SceltaStrum(40);
    EXPECT_FALSE(b.Modificata());
    b.Voce(soprano, "60;", "1");
    b.finestra.mix.SceltaStrum(41);
    EXPECT_TRUE(b.Modificata());
}

TEST(SceltaStrum, TheSameValueAsBeforeMarksNothingAndIsStillSent) {
    BancoMix b;
    b.Voce(soprano, "60;", "1");
    b.finestra.mix.SceltaStrum(16);
    EXPECT_FALSE(b.Modificata());
    EXPECT_EQ(b.Programmi(), (Programmi{{1, 16}}));
}

TEST(SceltaStrum, MarksNothingWhileAMelodyIsBeingLoaded) {
    BancoMix b;
    b.Voce(soprano, "60;", "1");
    b.melodia.inCaricamento = true;
    b.finestra.mix.SceltaStrum(40);
    EXPECT_FALSE(b.Modificata());
    EXPECT_EQ(b.melodia.voci[soprano].strumento, 40);
}

TEST(Volumi, EachBarWritesItsPercentBesideItAlone) {
    const std::array<std::string, numeroVoci> barre = {"VolS", "VolC", "VolT", "VolB"};
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        BancoMix b;
        b.Subito(Fatto::Change, barre.at(voce), 40);
        for (std::size_t i = 0; i < numeroVoci; ++i)
            EXPECT_EQ(b.finestra.mix.perVoce[i].percento.Caption(), i == voce ? "60" : "100");
    }
}

TEST(Volumi, ThePercentIs100LessTheValueAndNoughtAtTheSilentEnd) {
    BancoMix b;
    for (int valore = 0; valore <= 98; ++valore) {
        b.Subito(Fatto::Change, "VolT", valore);
        EXPECT_EQ(b.finestra.mix.lblVolT.Caption(),
                  valore == 98 ? "0" : std::to_string(100 - valore));
    }
    EXPECT_FALSE(b.Modificata());
}

}  // namespace corvana::prova
