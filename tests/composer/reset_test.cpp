// Emptying the whole melody.
#include <gtest/gtest.h>

#include "tests/composer/composer_rig.h"

namespace corvana::prova {

namespace {

/// A melody in full use: all voices, a name, bookmarks, the step mode, lit keys.
struct BancoReset : BancoComposer {
    BancoReset() {
        for (std::size_t voce = 0; voce < numeroVoci; ++voce)
            Voce(voce, "60;62;", "1");
        finestra.mix.VoceAttiva_Click(2);
        melodia.nomeMelodia = finestra.stato.lblNome.Caption = "song";
        passo.modoPasso = true;
        finestra.riferimenti.lstBookMark.List = Righe{"1 ÷ 2 ÷Tutta", "1 ÷ 2 ÷ a"};
        for (Controllo* visto : {static_cast<Controllo*>(&finestra.stato.lblModificato),
                                 static_cast<Controllo*>(&finestra.modifica.frmModifica)})
            visto->Visible = true;
        for (Bottone* spento : {&finestra.inserimento.cmdInsNota, &finestra.inserimento.cmdInsPausa,
                                &finestra.modifica.cmdCanc})
            spento->Enabled = false;
        finestra.tasti.MostraTasto(24, true);
        uscita.messaggi.clear();
        specchio.fuochi.clear();
    }
};

}  // namespace

TEST(Reset, MakesTheSopranoTheActiveVoiceAgain) {
    BancoReset b;
    b.finestra.cmdReset_Click();
    EXPECT_EQ(b.melodia.voceAttiva, "soprano");
    EXPECT_EQ(b.finestra.mix.VoceAttiva[soprano].BackColor(), Rgb(0, 255, 0));
    EXPECT_EQ(b.finestra.mix.VoceAttiva[2].BackColor(), Rgb(255, 0, 0));
    EXPECT_TRUE(b.finestra.riferimenti.cmdAddBm.Enabled());
}

TEST(Reset, EmptiesAllVoicesTheNameAndTheBookmarksWithoutAQuestion) {
    BancoReset b;
    b.finestra.cmdReset_Click();
    for (const VoceMelodia& voce : b.melodia.voci)
        EXPECT_TRUE(voce.Vuota());
    EXPECT_EQ(b.melodia.nomeMelodia, "");
    EXPECT_EQ(b.finestra.stato.lblNome.Caption(), "");
    EXPECT_EQ(b.finestra.stato.lblNt.Caption(), "");
    EXPECT_TRUE(b.finestra.riferimenti.lstBookMark.List->empty());
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(Reset, LowersTheFlagAndEndsTheStepMode) {
    BancoReset b;
    b.finestra.cmdReset_Click();
    EXPECT_FALSE(b.finestra.stato.lblModificato.Visible());
    EXPECT_FALSE(b.passo.modoPasso);
    EXPECT_FALSE(b.finestra.modifica.frmModifica.Visible());
}

TEST(Reset, GivesTheButtonsBackAndTheInsertionTheFocus) {
    BancoReset b;
    b.finestra.cmdReset_Click();
    EXPECT_TRUE(b.finestra.inserimento.cmdInsNota.Enabled());
    EXPECT_TRUE(b.finestra.inserimento.cmdInsPausa.Enabled());
    EXPECT_TRUE(b.finestra.modifica.cmdCanc.Enabled());
    EXPECT_EQ(b.specchio.fuochi, std::vector<std::string>{"cmdInsNota"});
}

TEST(Reset, ClearsTheKeysAndSilencesFirstChannel1AndThenAllFour) {
    BancoReset b;
    b.finestra.cmdReset_Click();
    ASSERT_EQ(b.uscita.messaggi.size(), 60U + 240U);
    EXPECT_EQ(b.uscita.messaggi[0].messaggio, 0x2490U);
    EXPECT_EQ(b.uscita.messaggi[1].messaggio, 0x2590U);
    EXPECT_EQ(b.uscita.messaggi[60].messaggio, 0x2490U);
    EXPECT_EQ(b.uscita.messaggi[61].messaggio, 0x2491U);
    EXPECT_EQ(b.finestra.tasti.lb[24].BackStyle(), fondoTrasparente);
}

TEST(Reset, LeavesInstrumentsTempoVolumesAndTheMetronome) {
    BancoReset b;
    b.finestra.play.Slider1.PonValore(100);
    b.melodia.voci[1].strumento = 40;
    b.finestra.mix.VolC.PonValore(50);
    b.finestra.pulsi.lblTs_Click();
    b.finestra.cmdReset_Click();
    EXPECT_EQ(b.melodia.tempo, 100);
    EXPECT_EQ(b.melodia.voci[1].strumento, 40);
    EXPECT_EQ(b.finestra.mix.VolC.Value(), 50);
    EXPECT_TRUE(b.finestra.pulsi.battuta.metroAttivo);
}

TEST(Reset, NothingCountsAsPlayingAfterIt) {
    BancoReset b;
    b.finestra.stato.inEsecuzione = true;
    b.finestra.cmdReset_Click();
    EXPECT_FALSE(b.finestra.stato.inEsecuzione);
    EXPECT_EQ(b.finestra.play.cmdPlay.Caption(), "Play");
}

TEST(Reset, StopsThePlayThatGoesOn) {
    BancoReset b;
    b.NelTick(5, [&] {
        EXPECT_TRUE(b.finestra.stato.inEsecuzione);
        b.finestra.cmdReset_Click();
        EXPECT_FALSE(b.finestra.stato.inEsecuzione);
        EXPECT_EQ(b.finestra.play.cmdPlay.Caption(), "Play");
    });
    b.Suona();
    EXPECT_EQ(b.TickPassati(), 5);
    EXPECT_TRUE(b.uscita.NoteAccese().empty());
    EXPECT_TRUE(b.melodia.voci[soprano].Vuota());
}

}  // namespace corvana::prova
