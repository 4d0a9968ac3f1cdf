// Automatic mode: notes change by the clock, the first key counts.
#include <gtest/gtest.h>

#include "tests/trainer/main_window_rig.h"

namespace corvana::prova {

namespace {

using Nomi = std::vector<std::string>;

/// An automatic run on the first row (n43, SI, key H) started at 3: notes come at 3, 5, 7 ...
struct BancoAutomatico : BancoPrincipale {
    explicit BancoAutomatico(const std::string& stato = "43;53;16;30;a") {
        PonStato(stato);
        Clicca(3, "Start");
    }
    void Tieni(double da, double a, int codice) {
        Premi(da, codice);
        Lascia(a, codice);
    }
    void Vai(double fine) {
        Fine(fine);
        EXPECT_TRUE(Avvia());
    }
};

}  // namespace

TEST(ModoAutomatico, NotesChangeByTheClockAndTheCounterCountsThem) {
    BancoAutomatico b;
    b.Quando(4.999, [&] { EXPECT_EQ(b.punteggio.conta.Text(), "1"); });
    b.Quando(5.001, [&] { EXPECT_EQ(b.punteggio.conta.Text(), "2"); });
    b.Vai(3 + 2 * 100 + 1);
    EXPECT_EQ(b.punteggio.Mostrate, 101);
    EXPECT_EQ(b.punteggio.conta.Text(), "101");
}

TEST(ModoAutomatico, ANoteWithoutAKeyGivesNoSoundAndNoCountButLowersTheScore) {
    BancoAutomatico b;
    b.Tieni(3.5, 4, 'H');
    b.Vai(10);
    EXPECT_EQ(b.punteggio.Mostrate, 4);
    EXPECT_EQ(b.punteggio.Esatte, 1);
    EXPECT_EQ(b.punteggio.PercEs.Text(), "25.00%");
    EXPECT_EQ(b.punteggio.er.Text(), "0");
    EXPECT_EQ(b.Onde(), Nomi{"rok.wav"});
    EXPECT_EQ(b.uscita.onde[0].flags, 0x20001U);
}

TEST(ModoAutomatico, AWrongAndThenARightKeyOnOneNoteAreOneWrongAnswer) {
    BancoAutomatico b;
    b.Tieni(3.5, 3.7, 'D');
    b.Tieni(4, 4.2, 'H');
    b.Vai(4.5);
    EXPECT_EQ(b.punteggio.Errate, 1);
    EXPECT_EQ(b.punteggio.Esatte, 0);
    EXPECT_EQ(b.punteggio.er.Text(), "1");
    EXPECT_EQ(b.Onde(), Nomi{"rko.wav"});
}

TEST(ModoAutomatico, EachOfTheElevenKeysGivesItsAnswer) {
    const std::vector<std::pair<int, int>> tasti = {{68, 44},  {100, 44}, {97, 45}, {70, 46},
                                                    {102, 46}, {98, 47},  {71, 48}, {103, 48},
                                                    {99, 49},  {72, 50},  {104, 50}};
    for (const auto& [codice, posizione] : tasti) {
        BancoAutomatico b;
        b.Estrai(posizione, 43, 53);
        b.Tieni(3.5, 4, codice);
        b.Vai(4.5);
        EXPECT_EQ(b.punteggio.Esatte, 1) << codice;
        EXPECT_EQ(b.punteggio.Errate, 0) << codice;
    }
}

TEST(ModoAutomatico, NoOtherKeyIsAnAnswerTheMainFiguresNeither) {
    for (int codice = 1; codice < 256; ++codice) {
        const bool risposta = codice == 68 || (codice >= 70 && codice <= 72) ||
                              (codice >= 97 && codice <= 100) || (codice >= 102 && codice <= 104);
        if (risposta || codice == 27) continue;
        BancoAutomatico b;
        b.Tieni(3.5, 4, codice);
        b.Vai(4.5);
        EXPECT_EQ(b.punteggio.Esatte + b.punteggio.Errate, 0) << codice;
    }
}

TEST(ModoAutomatico, OfTwoKeysHeldTheFirstInItsOrderCounts) {
    BancoAutomatico b;
    b.Estrai(45, 43, 53);  // RE: the keypad's 1, tested after H
    b.Premi(2.9, 97);
    b.Premi(2.9, 'H');
    b.Vai(4);
    EXPECT_EQ(b.punteggio.Errate, 1);
    EXPECT_EQ(b.punteggio.Esatte, 0);
}

TEST(ModoAutomatico, AKeyHeldFromTheNoteBeforeCountsAtOnce) {
    BancoAutomatico b;
    b.Tieni(4.5, 6, 'H');
    b.Vai(6.5);
    EXPECT_EQ(b.punteggio.Esatte, 2);
    ASSERT_EQ(b.uscita.onde.size(), 2U);
    EXPECT_DOUBLE_EQ(b.uscita.onde[0].istante, 4.5);
    EXPECT_DOUBLE_EQ(b.uscita.onde[1].istante, 5);
}

TEST(ModoAutomatico, RepeatedPressesOfAHeldKeyGiveOneAnswerToEachNote) {
    BancoAutomatico b;
    Evento e;
    e.fatto = Fatto::KeyDown;
    e.codice = 'H';
    b.Premi(3.5, 'H');
    e.ripetuto = true;
    for (double t = 4; t < 8.5; t += 0.03)
        b.Manda(t, e, "");
    b.Vai(8.6);
    EXPECT_EQ(b.punteggio.Mostrate, 3);
    EXPECT_EQ(b.punteggio.Esatte, 3);
}

TEST(ModoAutomatico, LosingTheKeyboardLetsGoOfTheHeldKey) {
    BancoAutomatico b;
    b.Premi(4, 'H');
    b.Fa(4.5, Fatto::FuocoPerso, "");
    b.Vai(9.5);
    EXPECT_EQ(b.punteggio.Mostrate, 4);
    EXPECT_EQ(b.punteggio.Esatte, 1);
    EXPECT_EQ(b.punteggio.Errate, 0);
}

TEST(ModoAutomatico, AKeyPressedAgainIsNoSecondAnswer) {
    BancoAutomatico b;
    b.Tieni(3.5, 3.6, 'H');
    b.Tieni(3.8, 3.9, 'H');
    b.Vai(4);
    EXPECT_EQ(b.punteggio.Esatte, 1);
    EXPECT_EQ(b.punteggio.Errate, 0);
}

TEST(ModoAutomatico, TheButtonsDontAnswer) {
    BancoAutomatico b;
    for (const char* bottone : {"pdo", "psi"})
        b.Clicca(4, bottone);
    b.Vai(4.5);
    EXPECT_EQ(b.punteggio.Esatte + b.punteggio.Errate, 0);
    EXPECT_FALSE(b.finestra.risposte.psi.Enabled());
}

TEST(ModoAutomatico, TheScoreIsShownBehindItsTexts) {
    BancoAutomatico b;
    b.Quando(2.9, [&] {
        b.globali.testi.TxtNoteMostrate = "note ";
        b.globali.testi.TxtPercentuale = "perc ";
    });
    b.Tieni(3.5, 4, 'H');
    b.Vai(6);
    EXPECT_EQ(b.punteggio.Ridate.Caption(), "note 2");
    EXPECT_EQ(b.punteggio.Lnmostrate.Caption(), "perc 50.00%");
    EXPECT_EQ(b.punteggio.PercMet.Height(), b.punteggio.PercBg.Height() / 2);
    EXPECT_FLOAT_EQ(b.punteggio.Rapporto, 0.5F);
}

TEST(ModoAutomatico, AFasterSliderAppliesToTheNoteThatStands) {
    BancoAutomatico b;
    b.Slitta(4, 120);  // half a second, which has passed
    b.Quando(4.001, [&] { EXPECT_EQ(b.punteggio.Mostrate, 2); });
    b.Quando(4.501, [&] { EXPECT_EQ(b.punteggio.Mostrate, 3); });
    b.Vai(5);
}

TEST(ModoAutomatico, ASlowerSliderAppliesToTheNoteThatStands) {
    BancoAutomatico b;
    b.Slitta(4, 20);  // three seconds
    b.Quando(5.999, [&] { EXPECT_EQ(b.punteggio.Mostrate, 1); });
    b.Vai(6.001);
    EXPECT_EQ(b.punteggio.Mostrate, 2);
}

TEST(ModoAutomatico, TheSliderOnItsWayCountsToo) {
    BancoAutomatico b;
    b.Fa(3.5, Fatto::Scroll, "Slider1", 60);
    b.Vai(4.001);
    EXPECT_EQ(b.punteggio.Mostrate, 2);
    EXPECT_DOUBLE_EQ(b.finestra.stato.SecondiNota, 1);
}

TEST(ModoAutomatico, WithThePlainCueARightAnswerAndANewNoteSoundTheSame) {
    BancoPrincipale b;
    b.PonStato("43;53;16;30;a");
    b.Clicca(2.5, "Suono1");
    b.Clicca(3, "Start");
    b.Premi(4, 'H');
    b.Lascia(4.5, 'H');
    b.Fine(5.5);
    b.Avvia();
    EXPECT_EQ(b.Onde(), (Nomi{"rok.wav", "rok.wav", "rok.wav"}));
    EXPECT_EQ(b.uscita.onde[1].flags, 0x20001U);
    EXPECT_EQ(b.uscita.onde[2].flags, 0x20003U);
}

TEST(ModoAutomatico, ThreeHoursOfItCountEveryNote) {
    BancoAutomatico b("14;64;16;60;a");
    constexpr int ore = 3;
    for (int i = 0; i < ore * 3600; i += 4)
        b.Tieni(3.2 + i, 3.4 + i, 'D');
    b.Clicca(3.5 + ore * 3600, "Start");
    b.Vai(4 + ore * 3600);
    EXPECT_EQ(b.punteggio.Mostrate, ore * 3600 + 1);
    EXPECT_EQ(b.punteggio.Esatte + b.punteggio.Errate, ore * 900);
    EXPECT_EQ(b.punteggio.Tempoimp.Caption(), "0:0 mm:ss");
    EXPECT_TRUE(b.uscita.NoteAccese().empty());
}

}  // namespace corvana::prova
