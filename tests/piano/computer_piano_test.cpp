// The keys of the computer's keyboard, polled and as events.
#include "piano/computer_piano.h"

#include <gtest/gtest.h>

#include "tests/sound/sound_rig.h"

namespace corvana::prova {

namespace {

struct BancoPianoSolo : BancoSuono {
    PianoDaTastiera piano;
    TastiPremuti tasti;
    std::vector<int> mostrati;  ///< MIDI numbers, negative when cleared

    PianoDaTastiera::Mostra Mostra() {
        return
            [this](std::int16_t nota, bool acceso) { mostrati.push_back(acceso ? nota : -nota); };
    }
    void Gira(int codice, bool premuto, int base) {
        tasti.Segna(codice, premuto);
        piano.Esamina(tasti, static_cast<std::int16_t>(base), suono, Mostra());
    }
    void Premi(int codice) {
        tasti.Segna(codice, true);
        piano.Premi(codice, 48, suono, Mostra());
    }
    void Lascia(int codice) {
        tasti.Segna(codice, false);
        piano.Lascia(codice, 48, suono, Mostra());
    }
};

}  // namespace

TEST(TastiDelGiro, AreTwoManualsFromZAndFromQAnOctaveHigherAndOnlyTheLastSoundsAt100) {
    for (const int base : {36, 48, 60}) {
        auto nota = static_cast<std::uint32_t>(base);
        for (const char tasto : std::string("ZSXDCVGBHNJMQ2W3ER5T6Y7UI9O0P")) {
            BancoPianoSolo b;
            b.Gira(tasto, true, base);
            b.Gira(tasto, false, base);
            EXPECT_EQ(b.Messaggi(), (Pacchetti{Nota(nota, tasto == 'P' ? 100 : 90), Nota(nota, 0)}))
                << tasto;
            EXPECT_EQ(b.mostrati, (std::vector{static_cast<int>(nota), -static_cast<int>(nota)}));
            ++nota;
        }
    }
}

TEST(TastiAdEventi, EachHasItsPlaceAboveTheNoteOfZ) {
    const std::vector<std::pair<int, std::uint32_t>> tasti = {{188, 60}, {76, 61},  {190, 62},
                                                              {192, 63}, {189, 64}, {186, 77},
                                                              {221, 78}, {187, 79}, {8, 80}};
    for (const auto& [codice, nota] : tasti) {
        BancoPianoSolo b;
        b.Premi(codice);
        b.Lascia(codice);
        EXPECT_EQ(b.Messaggi(), (Pacchetti{Nota(nota, 90), Nota(nota, 0)})) << codice;
        EXPECT_EQ(b.mostrati, (std::vector{static_cast<int>(nota), -static_cast<int>(nota)}));
    }
}

TEST(TastiAdEventi, NoOtherKeyDoesAnything) {
    BancoPianoSolo b;
    for (int codice = 1; codice < 256; ++codice) {
        if (codice == 8 || codice == 76 || codice == 186 || (codice >= 187 && codice <= 190) ||
            codice == 192 || codice == 221)
            continue;
        b.Premi(codice);
        b.Lascia(codice);
    }
    EXPECT_TRUE(b.Messaggi().empty());
    EXPECT_TRUE(b.mostrati.empty());
}

TEST(TastiAdEventi, TheKeyboardsRepetitionsStrikeNothingAgain) {
    BancoPianoSolo b;
    for (const int codice : {188, 188, 188})
        b.Premi(codice);
    EXPECT_EQ(b.Messaggi(), Pacchetti{Nota(60, 90)});
}

TEST(TastiAdEventi, BackspaceStrikesAgainAtEachRepetitionAndEndsWithOneNoteOff) {
    BancoPianoSolo b;
    for (const int codice : {8, 8, 8})
        b.Premi(codice);
    b.Lascia(8);
    EXPECT_EQ(b.Messaggi(), (Pacchetti{Nota(80, 90), Nota(80, 90), Nota(80, 90), Nota(80, 0)}));
}

TEST(TastiAdEventi, BackspaceIsSilentWhileTheCommaIsDown) {
    BancoPianoSolo b;
    b.Premi(188);
    b.Premi(8);
    b.Lascia(188);
    b.Premi(8);
    EXPECT_EQ(b.Messaggi(), (Pacchetti{Nota(60, 90), Nota(60, 0), Nota(80, 90)}));
}

TEST(TastiAdEventi, AReleaseSendsItsNoteOffAlsoWhenNothingWasStruck) {
    BancoPianoSolo b;
    b.Lascia(76);
    EXPECT_EQ(b.Messaggi(), Pacchetti{Nota(61, 0)});
}

TEST(TastiAdEventi, TheyKnowNothingOfThePolledKeysOfTheSameNotes) {
    BancoPianoSolo b;
    b.tasti.Segna('Q', true);
    b.piano.Esamina(b.tasti, 48, b.suono, b.Mostra());
    b.Premi(188);
    EXPECT_EQ(b.Messaggi(), (Pacchetti{Nota(60, 90), Nota(60, 90)}));
}

TEST(TastiAdEventi, AReleaseThatNeverCameAsAnEventIsSeenAtTheNextPass) {
    BancoPianoSolo b;
    b.Premi(188);
    b.piano.Esamina(b.tasti, 48, b.suono, b.Mostra());
    EXPECT_EQ(b.Messaggi(), Pacchetti{Nota(60, 90)});
    b.tasti.LasciaTutti();
    b.piano.Esamina(b.tasti, 48, b.suono, b.Mostra());
    EXPECT_EQ(b.Messaggi(), Pacchetti{Nota(60, 0)});
    b.piano.Esamina(b.tasti, 48, b.suono, b.Mostra());
    EXPECT_TRUE(b.Messaggi().empty());
}

}  // namespace corvana::prova
