// The loop in which the keys are polled.
#include <gtest/gtest.h>

#include "tests/composer/composer_rig.h"

namespace corvana::prova {

namespace {

constexpr int f4 = 115;
constexpr int sinistra = 37, su = 38, destra = 39, giu = 40;

/// The window's loop runs; instants are told as seconds of the script.
struct BancoCiclo : BancoComposer {
    BancoCiclo() { uscita.messaggi.clear(); }
    void Esegui(double fine) {
        Fine(fine);
        SvolgiCopione([this] { finestra.CicloResidente(); });
    }
    /// Notes that were struck, as "instant note velocity", the instant in thousandths.
    std::vector<std::string> Battute() const {
        std::vector<std::string> battute;
        for (const auto& [istante, m] : uscita.messaggi)
            if ((m & 0xFFU) == 0x90U && m >> 16 != 0)
                battute.push_back(std::to_string(std::lround(istante * 1000)) + " " +
                                  std::to_string(m >> 8 & 0xFFU) + " " + std::to_string(m >> 16));
        return battute;
    }
};

using Testi = std::vector<std::string>;

}  // namespace

TEST(CicloTasti, UpAndDownMoveTheCursorOnceForEachPress) {
    BancoCiclo b;
    b.Premi(1, su);
    b.Lascia(2, su);
    b.Tasto(3, 65);
    b.Premi(4, giu);
    b.Premi(4.5, giu);
    b.Esegui(6);
    EXPECT_EQ(b.Battute(), (Testi{"1000 61 100", "4000 60 100"}));
}

TEST(CicloTasti, RightIsF6AndLeftIsF5AndInsertingTakesTheFocus) {
    BancoCiclo b;
    b.specchio.fuochi.clear();
    b.Premi(1, destra);
    b.Lascia(3, destra);
    b.Premi(4, sinistra);
    b.Quando(6, [&] {
        EXPECT_EQ(b.specchio.fuochi, (Testi{"cmdInsNota", "cmdInsNota"}));
        b.uscita.messaggi.clear();
    });
    b.Lascia(7, sinistra);
    b.Esegui(8);
    EXPECT_EQ(b.finestra.tasti.tastoCorrente, 23);
    ASSERT_EQ(b.uscita.messaggi.size(), 1U) << "the release of the current key";
    EXPECT_EQ(b.uscita.messaggi[0].messaggio, 0x90U | 59U << 8);
}

TEST(CicloTasti, KeysThatWentDownTogetherActInTheOrderOfThePoll) {
    BancoCiclo b;
    b.Quando(1, [&] {
        for (const int codice : {int{'X'}, int{'Z'}, giu, su, sinistra, destra}) {
            Evento e;
            e.fatto = Fatto::KeyDown;
            e.codice = codice;
            b.coda.Aggiungi(b.Fatta(e, ""));
        }
    });
    b.Esegui(6);
    // A quarter at tempo 60 is heard for most of a second.
    Testi note;
    for (const std::string& battuta : b.Battute())
        note.push_back(battuta.substr(battuta.find(' ') + 1));
    ASSERT_EQ(note.size(), 6U);
    EXPECT_TRUE(note[0].starts_with("60 ")) << "right";
    EXPECT_TRUE(note[1].starts_with("59 ")) << "left";
    EXPECT_EQ(note[2], "61 100") << "up";
    EXPECT_EQ(note[3], "60 100") << "down";
    EXPECT_EQ(note[4], "48 90") << "Z";
    EXPECT_EQ(note[5], "50 90") << "X";
}

TEST(CicloTasti, F4CallsTheDelayedPlayAtEachPassWhileItIsHeld) {
    BancoCiclo b;
    b.Voce(soprano, "60;", "1");
    b.Premi(1, f4);
    b.Quando(14, [&] { b.Lascia(14, f4); });
    b.Esegui(30);
    // Five seconds, a quarter, and again as long as the key is down.
    const Testi battute = b.Battute();
    ASSERT_EQ(battute.size(), 3U);
    EXPECT_TRUE(battute[0].starts_with("60"));
}

TEST(CicloTasti, F4WithoutAMelodyDoesNothingAndTheLoopStillTurns) {
    BancoCiclo b;
    b.Premi(1, f4);
    b.Premi(2, 'Z');
    b.Esegui(3);
    EXPECT_EQ(b.Battute(), Testi{"2000 48 90"});
}

TEST(CicloTasti, PSoundsAt100AndAllOtherKeysOfThePollAt90) {
    BancoCiclo b;
    b.finestra.tasti.baseTastiera = 60;
    b.Premi(2, 'P');
    b.Premi(3, 'O');
    b.Esegui(4);
    EXPECT_EQ(b.Battute(), (Testi{"2000 88 100", "3000 86 90"}));
}

TEST(CicloTasti, WhileAMelodyPlaysTheArrowsF4AndThePolledPianoAreDead) {
    BancoCiclo b;
    b.Voce(soprano, "60;", "4");
    b.Clicca(1, "cmdPlay");
    for (const int codice : {f4, destra, sinistra, su, giu, int{'Z'}})
        b.Tasto(2, codice);
    b.Quando(3, [&] {
        EXPECT_TRUE(b.finestra.stato.inEsecuzione);
        EXPECT_EQ(b.Battute().size(), 1U);
    });
    b.Esegui(10);
    EXPECT_EQ(b.Battute().size(), 1U);
    EXPECT_EQ(b.finestra.regolo.notaCursore, 60);
}

TEST(CicloTasti, AKeyHeldThroughAPlaySoundsWhenItHasEnded) {
    BancoCiclo b;
    b.Voce(soprano, "60;", "1");
    b.Clicca(1, "cmdPlay");
    b.Premi(1.5, 'Z');
    b.Esegui(5);
    const Testi battute = b.Battute();
    ASSERT_EQ(battute.size(), 2U);
    EXPECT_TRUE(battute[1].ends_with(" 48 90"));
    EXPECT_NEAR(std::stoi(battute[1]), 2000, 20) << "a quarter after the beginning";
}

TEST(CicloTasti, WhenTheProgramLosesTheKeyboardTheHeldNotesEnd) {
    BancoCiclo b;
    b.Premi(1, 'Z');
    b.Premi(1.1, 188);
    b.Fa(2, Fatto::FuocoPerso, "");
    b.Quando(1.5, [&] { EXPECT_EQ(b.uscita.NoteAccese().size(), 2U); });
    b.Esegui(3);
    EXPECT_TRUE(b.uscita.NoteAccese().empty());
}

TEST(CicloTasti, TheClosingOfTheWindowEndsTheLoop) {
    BancoCiclo b;
    b.Premi(1, 'Z');
    b.Fa(2, Fatto::Chiudi, "");
    b.Fine(100);
    EXPECT_FALSE(b.SvolgiCopione([&] { b.finestra.CicloResidente(); }));
    EXPECT_EQ(b.orologio.Adesso(), 2);
    EXPECT_TRUE(b.uscita.NoteAccese().empty());
}

TEST(CicloTasti, ClosedDuringADelayedStartByF4ItEndsWithoutAPlay) {
    for (const bool lasciato : {false, true}) {
        BancoCiclo b;
        b.Voce(soprano, "60;", "1");
        b.Premi(1, f4);
        if (lasciato) b.Lascia(2, f4);
        b.Fa(3, Fatto::Chiudi, "");
        b.Fine(100);
        EXPECT_FALSE(b.SvolgiCopione([&] { b.finestra.CicloResidente(); })) << lasciato;
        EXPECT_LT(b.orologio.Adesso(), 7);
        EXPECT_TRUE(b.Battute().empty());
    }
}

TEST(AttivazioneComposer, TicksTheNotationInUseAndGoesBackToTheStart) {
    for (const bool anglo : {false, true}) {
        BancoCiclo b;
        b.globali.NomiAnglo = anglo;
        b.finestra.tasti.baseTastiera = 60;
        b.finestra.comandi.fineTastiera = true;
        b.specchio.fuochi.clear();
        b.finestra.Form_Activate();
        EXPECT_EQ(b.finestra.menu.mnuNotAnglo.Checked(), anglo);
        EXPECT_EQ(b.finestra.menu.mnuNotLat.Checked(), !anglo);
        EXPECT_EQ(b.finestra.tasti.baseTastiera, 48);
        EXPECT_FALSE(b.finestra.comandi.fineTastiera);
        EXPECT_EQ(b.specchio.fuochi, Testi{"cmdInsNota"});
    }
}

}  // namespace corvana::prova
