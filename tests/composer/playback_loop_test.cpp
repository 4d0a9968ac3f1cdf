// Rounds of a repeated play, and Stop.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/composer/composer_rig.h"

namespace corvana::prova {

namespace {

constexpr double tick = 0.031;
constexpr double pausa = 0.502;

/// Four notes of 8 ticks, to be repeated.
struct BancoGiri : BancoComposer {
    BancoGiri() {
        Voce(soprano, "60;62;64;65;", "0.25");
        finestra.play.chekLoop.Value = true;
    }

    /// Stops in the tick `nelGiro` of round `giro`, whose rounds take `tickGiro`; all from 1.
    void FermaNelGiro(int giro, int tickGiro, int nelGiro) {
        Clicca((giro - 1) * (tickGiro * tick + pausa) + (nelGiro - 0.5) * tick, "cmdPlay");
    }
    bool Muto() const {
        return uscita.NoteAccese().empty() &&
               std::none_of(finestra.tasti.lb.begin(), finestra.tasti.lb.end(),
                            [](const Etichetta& tasto) { return tasto.BackStyle() == fondoOpaco; });
    }
    std::vector<int> PostiCursore() const {
        std::vector<int> posti;
        for (const auto& cambio : specchio.cambi)
            if (cambio.controllo == "Cursore" && cambio.nome == &Valori::Left)
                posti.push_back(std::get<int>(cambio.valore));
        return posti;
    }
};

const Mandati giroIntero = {{1, 1, 60, 96},  {8, 1, 60, 0},  {9, 1, 62, 96},  {16, 1, 62, 0},
                            {17, 1, 64, 96}, {24, 1, 64, 0}, {25, 1, 65, 96}, {32, 1, 65, 0}};

}  // namespace

TEST(GiriRiproduzione,
     BetweenRoundsOfARangeTheHeldNotesAreSwitchedOffAndThePauseIs500Milliseconds) {
    BancoGiri b;
    b.Voce(contralto, "48;", "1");
    b.Voce(tenore, "43;00;", "0.25;0.75;", "n;p;");
    b.Tratto(2, 3);
    bool muto = false;
    b.Quando(15 * tick + 0.25, [&] { muto = b.Muto(); });
    b.FermaNelGiro(3, 15, 4);
    b.Suona();
    // What is held at the end, the soprano and the contralto, goes off with the last tick; the
    // tenor's rest has no note.
    const Mandati giro = {{1, 1, 62, 96}, {1, 2, 48, 96}, {8, 1, 62, 0},
                          {9, 1, 64, 96}, {16, 1, 64, 0}, {16, 2, 48, 0}};
    EXPECT_EQ(b.MessaggiDelGiro(1, 15), giro);
    EXPECT_EQ(b.MessaggiDelGiro(2, 15), giro);
    EXPECT_EQ(b.MessaggiDelGiro(3, 15), (Mandati{{1, 1, 62, 96}, {1, 2, 48, 96}}));
    EXPECT_TRUE(muto);
    EXPECT_TRUE(b.Muto());
    EXPECT_NEAR(b.pompa.Adesso(), 2 * (15 * tick + pausa) + 4 * tick, 1e-9);
}

TEST(GiriRiproduzione, WithEachRoundTheCursorReturnsToTheLeft) {
    BancoGiri b;
    b.Voce(soprano, "60;62;64;", "0.125");
    b.Tratto(2, 2);
    b.specchio.registra = true;
    b.FermaNelGiro(2, 3, 2);
    b.Suona();
    EXPECT_EQ(b.PostiCursore(), (std::vector{2780, 3370, 2190, 2780, 2190}));
}

TEST(GiriRiproduzione, AWholePlayIsRepeatedFromItsBeginning) {
    BancoGiri b;
    b.FermaNelGiro(11, 32, 32);
    b.Suona();
    for (int giro = 1; giro <= 11; ++giro)
        EXPECT_EQ(b.MessaggiDelGiro(giro, 32), giroIntero) << giro;
    EXPECT_NEAR(b.pompa.Adesso(), 10 * (32 * tick + pausa) + 32 * tick, 1e-9);
}

TEST(GiriRiproduzione, ATripletTallyBeginsAnewWithEachRound) {
    BancoGiri b;
    b.Voce(soprano, "60;62;", "0.333333333333333");
    b.FermaNelGiro(3, 22, 22);
    b.Suona();
    for (int giro = 1; giro <= 3; ++giro)
        EXPECT_EQ(b.MessaggiDelGiro(giro, 22),
                  (Mandati{{1, 1, 60, 96}, {11, 1, 60, 0}, {12, 1, 62, 96}, {22, 1, 62, 0}}));
}

TEST(GiriRiproduzione, TheTickBoxCountsAtTheEndOfEachRound) {
    BancoGiri b;
    b.finestra.play.chekLoop.Value = false;
    const double giro = 32 * tick + pausa;
    b.Clicca(2 * tick, "chekLoop", 1);
    b.Clicca(giro + 2 * tick, "chekLoop", 0);
    b.Clicca(giro + 3 * tick, "chekLoop", 1);
    b.Clicca(2 * giro + 31.5 * tick, "chekLoop", 0);
    b.Suona();
    EXPECT_EQ(b.MessaggiDelGiro(3, 32), giroIntero);
    EXPECT_NEAR(b.pompa.Adesso(), 2 * giro + 32 * tick, 1e-9);
}

TEST(GiriRiproduzione, ClearedDuringThePauseItLetsOneMoreRoundPass) {
    BancoGiri b;
    b.Clicca(32 * tick + 0.1, "chekLoop", 0);
    b.Clicca(1000, "cmdPlay");
    b.Suona();
    EXPECT_EQ(b.MessaggiDelGiro(2, 32), giroIntero);
    EXPECT_NEAR(b.pompa.Adesso(), 64 * tick + pausa, 1e-9);
}

TEST(GiriRiproduzione, AfterAStopDuringThePauseNoFurtherTickRuns) {
    BancoGiri b;
    const double istante = 32 * tick + 0.2;
    b.Clicca(istante, "cmdPlay");
    b.Clicca(1000, "cmdPlay");
    b.specchio.registra = true;
    b.Suona();
    EXPECT_EQ(b.Messaggi(), giroIntero);
    EXPECT_EQ(b.PostiCursore().size(), 32U);  // 31 steps and the way back
    EXPECT_NEAR(b.pompa.Adesso(), istante, 1e-9);
    EXPECT_EQ(b.finestra.play.cmdPlay.Caption(), "Play");
    EXPECT_FALSE(b.finestra.stato.inEsecuzione);
}

TEST(GiriRiproduzione, OtherClicksDuringThePauseDontShortenIt) {
    BancoGiri b;
    for (const double dopo : {0.1, 0.2, 0.3})
        b.Clicca(32 * tick + dopo, "VoceAttiva1");
    b.FermaNelGiro(2, 32, 1);
    b.Suona();
    EXPECT_EQ(b.MessaggiDelGiro(2, 32), (Mandati{{1, 1, 60, 96}}));
}

TEST(GiriRiproduzione, AVolumeSetDuringThePauseCountsInTheNextRoundAndATempoDoesnt) {
    BancoGiri b;
    b.Fa(32 * tick + 0.1, Fatto::Change, "VolS", 50);
    b.Fa(32 * tick + 0.1, Fatto::Change, "Slider1", 250);
    b.FermaNelGiro(2, 32, 10);
    b.Suona();
    b.melodia.tempo = 60;
    EXPECT_EQ(b.MessaggiDelGiro(2, 32), (Mandati{{1, 1, 60, 48}, {8, 1, 60, 0}, {9, 1, 62, 48}}));
    EXPECT_NEAR(b.pompa.Adesso(), 42 * tick + pausa, 1e-9);
}

TEST(GiriRiproduzione, PulsesBeginAnewWithEachRoundAndAreSilentInThePause) {
    BancoGiri b;
    b.Voce(soprano, "60;", "0.375");
    b.finestra.pulsi.lblTs_Click();
    b.finestra.pulsi.Pulsazioni.PonTesto("3");
    b.finestra.pulsi.DurataPulsazioni.PonTesto("16");
    b.NelTick(2, [&] { b.finestra.pulsi.InizioPuls.PonValore(2); });
    b.FermaNelGiro(2, 12, 12);
    b.Suona();
    const auto giro = [](int primo) {
        return Mandati{{1, 10, primo, 120}, {1, 1, 60, 96}, {8, 10, primo, 0},
                       {9, 10, 36, 120},    {12, 1, 60, 0}, {13, 10, 36, 0}};
    };
    EXPECT_EQ(b.MessaggiDelGiro(1, 12), giro(81));
    EXPECT_EQ(b.MessaggiDelGiro(2, 12), giro(36));
}

TEST(GiriRiproduzione, ANoteThatTheKeyboardHasntIsReleasedBetweenRoundsOfARangeToo) {
    BancoGiri b;
    b.Voce(soprano, "60;30;", "0.25");
    b.Tratto(2, 2);
    b.FermaNelGiro(2, 7, 3);
    b.Suona();
    EXPECT_EQ(b.MessaggiDelGiro(1, 7), (Mandati{{1, 1, 30, 96}, {8, 1, 30, 0}}));
    EXPECT_EQ(b.MessaggiDelGiro(2, 7), (Mandati{{1, 1, 30, 96}, {4, 1, 30, 0}}));
    EXPECT_TRUE(b.Muto());
}

TEST(GiriRiproduzione, StopTakesEffectWithinOneTick) {
    for (const int fermata : {1, 2, 8, 9, 31, 32}) {
        BancoGiri b;
        b.CliccaNelTick(fermata, "cmdPlay");
        b.Suona();
        EXPECT_EQ(b.TickPassati(), fermata);
        Mandati attesi = giroIntero;
        std::erase_if(attesi, [&](const Mandato& m) { return m.tick > fermata; });
        EXPECT_EQ(b.Messaggi(), attesi) << fermata;
        EXPECT_TRUE(b.Muto()) << fermata;
    }
}

TEST(GiriRiproduzione, AnyCallToPlayWhileItPlaysIsTheStop) {
    BancoGiri b;
    b.NelTick(5, [&] {
        b.finestra.play.SuonaMelodia(0, 0, true);
        EXPECT_EQ(b.finestra.play.cmdPlay.Caption(), "Play");
        EXPECT_EQ(b.finestra.play.cmdPlay.BackColor(), b.finestra.stato.lblNe.BackColor());
    });
    b.Suona();
    EXPECT_EQ(b.TickPassati(), 5);
    EXPECT_EQ(b.Messaggi(), (Mandati{{1, 1, 60, 96}}));
}

TEST(GiriRiproduzione, StopAndPlayInOneTickPlayFromTheBeginningWithoutTheNotesThatWereHeld) {
    BancoGiri b;
    b.finestra.play.chekLoop.Value = false;
    b.Voce(contralto, "30;", "1");
    b.Voce(tenore, "43;", "1");
    b.CliccaNelTick(10, "cmdPlay");
    b.NelTick(10, [&] { b.Voce(contralto, "31;", "1"); });
    b.NelTick(10, [&] { b.Voce(tenore, "44;", "1"); });
    b.CliccaNelTick(10, "cmdPlay");
    std::vector<std::pair<int, int>> accese;
    bool tastoSpento = false;
    b.NelTick(11, [&] {
        accese = b.uscita.NoteAccese();
        tastoSpento = b.finestra.tasti.lb[43 - 36].BackStyle() == fondoTrasparente;
    });
    b.Suona();
    EXPECT_EQ(accese, (std::vector<std::pair<int, int>>{{1, 60}, {2, 31}, {3, 44}}));
    EXPECT_TRUE(tastoSpento);
    EXPECT_EQ(b.TickPassati(), 42);
    EXPECT_TRUE(b.Muto());
    EXPECT_EQ(b.finestra.play.cmdPlay.Caption(), "Play");
}

TEST(GiriRiproduzione, StopAndPlayInOneTickReleaseAPulseThatWasHeld) {
    BancoGiri b;
    b.finestra.play.chekLoop.Value = false;
    b.finestra.pulsi.lblTs_Click();
    b.CliccaNelTick(10, "cmdPlay");
    b.CliccaNelTick(10, "lblTs");
    b.CliccaNelTick(10, "cmdPlay");
    b.Suona();
    EXPECT_EQ(b.Messaggi(10), (Mandati{{1, 10, 81, 120}, {11, 10, 81, 0}}));
    EXPECT_TRUE(b.Muto());
}

}  // namespace corvana::prova
