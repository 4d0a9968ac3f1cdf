// The keys on the screen, and how an entered note sounds.
#include <gtest/gtest.h>

#include "tests/composer/hand_rig.h"

namespace corvana::prova {

TEST(TastiDiInserimento, APressSoundsItsNoteForTheValueAndMakesItTheActiveOne) {
    BancoAMano b;
    EXPECT_EQ(b.Sentite([&] { b.PremiTasto(64); }),
              (NoteSentite{{0, 1, 64, 90}, {1002, 1, 64, 0}, {1002, 1, 64, 0}}));
    EXPECT_EQ(b.inserimento.notaAttiva, 64);
    EXPECT_EQ(b.finestra.stato.lblActNote.Caption(), "Mi");
    EXPECT_EQ(b.finestra.tasti.tastoCorrente, 28);
    EXPECT_TRUE(b.melodia.voci[soprano].Vuota());
    EXPECT_FALSE(b.Modificata());
}

TEST(TastiDiInserimento, TheKeyIsLitWhileItsNoteSoundsAndNoEventComesMeanwhile) {
    BancoAMano b;
    bool acceso = false;
    b.Quando(b.pompa.Adesso() + 0.5, [&] {
        acceso = b.finestra.tasti.lb[28].BackStyle() == fondoOpaco;
        b.coda.Aggiungi(b.Fatta({}, "cmdInsPausa"));
    });
    b.Quando(b.pompa.Adesso() + 0.9, [&] { EXPECT_TRUE(b.melodia.voci[soprano].Vuota()); });
    b.PremiTasto(64);
    EXPECT_TRUE(acceso);
    EXPECT_EQ(b.finestra.tasti.lb[28].BackStyle(), fondoTrasparente);
    b.pompa.PompaEventi();
    EXPECT_EQ(b.Testi()[0], "00;");
}

TEST(TastiDiInserimento, WithTheTieLitAPressSoundsButTheActiveNoteStays) {
    BancoAMano b;
    b.Attributo(2);
    EXPECT_EQ(b.Sentite([&] { b.PremiTasto(64); }).front(), (NotaSentita{0, 1, 64, 90}));
    EXPECT_EQ(b.inserimento.notaAttiva, 60);
    EXPECT_EQ(b.finestra.stato.lblActNote.Caption(), "Do");
}

TEST(TastiDiInserimento, ADoubleClickInsertsInSilenceWithATick) {
    BancoAMano b;
    b.PremiTasto(67);
    b.specchio.fuochi.clear();
    EXPECT_EQ(b.Sentite([&] { b.Subito(Fatto::DblClick, "lb31"); }),
              (NoteSentite{{0, 10, 81, 60}, {0, 10, 81, 0}}));
    EXPECT_EQ(b.Testi(), (TestiVoce{"67;", "1;", "n;"}));
    EXPECT_EQ(b.specchio.fuochi, Fuochi{"cmdPlay"});
    EXPECT_TRUE(b.Modificata());
    EXPECT_FALSE(b.inserimento.soloAscolto);
    EXPECT_FALSE(b.inserimento.senzaSuono);
    // The next one by the button sounds again.
    EXPECT_EQ(b.Sentite([&] { b.Nota(); }).size(), 2U);
}

TEST(TastiDiInserimento, AKeyThatIsOnlyHeardDoesntCountInATriplet) {
    BancoAMano b;
    b.Attributo(3);
    for (int volta = 0; volta < 4; ++volta)
        b.PremiTasto(60);
    EXPECT_EQ(b.inserimento.contaTerzina, 0);
    EXPECT_TRUE(b.inserimento.soloAscolto);
}

TEST(TastiDiInserimento, TheSilenceThatWasMeantForANoteBeyondTheKeysIsTheNextOnes) {
    BancoAMano b;
    b.Attributo(2);
    b.inserimento.notaAttiva = 0;
    b.DoppioClick(60);
    EXPECT_TRUE(b.melodia.voci[soprano].Vuota());
    b.inserimento.notaAttiva = 60;
    EXPECT_EQ(b.Sentite([&] { b.Nota(); }), NoteSentite{});
    EXPECT_EQ(b.Testi()[0], "60;");
}

TEST(TastiDiInserimento, ADoubleClickWhileAMelodyPlaysAddsTheNoteAndThePlayGoesOn) {
    BancoAMano b;
    b.Voce(soprano, "60;62;", "1");
    b.inserimento.notaAttiva = 64;
    b.NelTick(5, [&] { b.coda.Aggiungi(b.Fatta({.fatto = Fatto::DblClick}, "lb28")); });
    b.Suona();
    EXPECT_EQ(b.Testi()[0], "60;62;64;");
    EXPECT_EQ(b.TickPassati(), 64);
    EXPECT_EQ(b.Messaggi(1),
              (Mandati{{1, 1, 60, 96}, {32, 1, 60, 0}, {33, 1, 62, 96}, {64, 1, 62, 0}}));
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(SuonaAnteprima, LastsAndSoundsByTheAttributeThatIsLit) {
    struct Caso {
        int attributo, ms, velocita;
    };
    for (const Caso& caso : {Caso{0, 1500, 90},
                             {1, 200, 90},
                             {2, 1000, 90},
                             {3, 667, 90},
                             {4, 500, 90},
                             {5, 1000, 127}}) {
        BancoAMano b;
        b.Tocca("ckConsAtt", 1);
        b.Attributo(caso.attributo);
        EXPECT_EQ(b.Sentite([&] { b.Nota(); }),
                  (NoteSentite{{0, 1, 60, caso.velocita}, {caso.ms + 2, 1, 60, 0}}));
    }
}

TEST(SuonaAnteprima, AnAttributeThatHasGoneOutIsHeardNoMore) {
    BancoAMano b;
    b.Attributo(1);
    EXPECT_EQ(b.Sentite([&] { b.Nota(); }), (NoteSentite{{0, 1, 60, 90}, {1002, 1, 60, 0}}));
    EXPECT_EQ(b.Testi()[2], "s;");
}

TEST(SuonaAnteprima, TheNoteThatEndsATripletSoundsForThePlainValue) {
    BancoAMano b;
    b.Attributo(3);
    EXPECT_EQ(b.Sentite([&] { b.Nota(); }).back().ms, 669);
    EXPECT_EQ(b.Sentite([&] { b.Nota(); }).back().ms, 1002);
    EXPECT_EQ(b.Testi()[1], "0.666666666666667;0.666666666666667;");
}

TEST(SuonaAnteprima, ATiedNoteSoundsForWhatWasAddedAlone) {
    BancoAMano b;
    b.Voce(soprano, "60;", "4");
    b.Attributo(2);
    EXPECT_EQ(b.Sentite([&] { b.Nota(); }).back().ms, 1002);
    EXPECT_EQ(b.Testi()[1], "5;");
}

TEST(SuonaAnteprima, AWholeAtTheSlowestTempoHoldsTheThreadForTwelveSecondsAndClicksComeAfter) {
    BancoAMano b;
    b.Tocca("Slider1", 0);
    b.Subito(Fatto::Change, "Slider1", 20);
    b.Figura(0);
    b.Quando(b.pompa.Adesso() + 1, [&] { b.coda.Aggiungi(b.Fatta({}, "cmdSimbNote3")); });
    b.Quando(b.pompa.Adesso() + 11.9, [&] { EXPECT_EQ(b.inserimento.figuraAttiva, 0); });
    const double prima = b.pompa.Adesso();
    b.finestra.inserimento.cmdInsNota_Click();
    EXPECT_NEAR(b.pompa.Adesso() - prima, 12.002, 1e-9);
    EXPECT_EQ(b.inserimento.figuraAttiva, 0);
    b.pompa.PompaEventi();
    EXPECT_EQ(b.inserimento.figuraAttiva, 3);
}

TEST(SuonaAnteprima, IsOnChannel1WhicheverVoiceIsActive) {
    BancoAMano b;
    b.Tocca("VoceAttiva3");
    EXPECT_EQ(b.Sentite([&] { b.Nota(); }).front(), (NotaSentita{0, 1, 60, 90}));
}

}  // namespace corvana::prova
