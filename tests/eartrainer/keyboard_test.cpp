// The keys on the screen, and the computer's keyboard as a piano.
#include <gtest/gtest.h>

#include "tests/eartrainer/into_rig.h"

namespace corvana::prova {

namespace {

using P = PaginaInto;
using Tasti = std::vector<int>;

}  // namespace

TEST(TastieraInto, APressedKeyLightsWhileTheButtonIsDownOnEveryPageAndNeverSounds) {
    for (const P pagina : pagineInto) {
        BancoInto b{pagina};
        b.Fa(1, Fatto::MouseDown, "lb7");
        b.Quando(1.5, [&] {
            EXPECT_EQ(b.Accesi(), Tasti{7});
            b.uscita.messaggi.clear();
        });
        b.Fa(2, Fatto::MouseUp, "lb7");
        b.Clicca(2, "lb7");
        b.Vai(3);
        EXPECT_TRUE(b.Accesi().empty());
        EXPECT_TRUE(b.Note().empty());
    }
}

TEST(TastieraInto, APolledKeySoundsAndLightsWhileItIsHeldOnEveryPage) {
    for (const P pagina : pagineInto) {
        BancoInto b{pagina};
        b.Premi(1, 'Z');
        b.Quando(1.5, [&] { EXPECT_EQ(b.Accesi(), Tasti{12}); });
        b.Lascia(2, 'Z');
        b.Vai(3);
        EXPECT_EQ(b.Note(1), (Suonati{"0.0 48 90", "1.0 48 0"}));
        EXPECT_TRUE(b.Accesi().empty());
    }
}

TEST(TastieraInto, TheKeyPSoundsAtVelocity100) {
    BancoInto b{P::Tonalita};
    b.Premi(1, 'P');
    b.Vai(2);
    EXPECT_EQ(b.Note(1), Suonati{"0.0 76 100"});
}

TEST(TastieraInto, HoldingZOnTheTonalityPageLightsItsKeyAndAClickOnThatKeyDoesNothing) {
    BancoInto b{P::Tonalita};
    b.Premi(1, 'Z');
    b.Tasto(2, 12);
    b.Vai(3);
    EXPECT_EQ(b.Accesi(), Tasti{12});
    EXPECT_EQ(b.Punti(), "0 0 0");
    EXPECT_TRUE(b.Segnati().empty());
    EXPECT_EQ(b.Note(1), Suonati{"0.0 48 90"});
}

TEST(TastieraInto, OnThePagesOfIntervalsAndTonalityAClickOnAKeyIsNeitherALimitNorAnAnswer) {
    for (const P pagina : {P::Intervalli, P::Tonalita})
        for (const bool daIntonazione : {false, true}) {
            BancoInto b{pagina};
            b.suono.IntoAttesa = true;
            if (daIntonazione) b.globali.PaginaInto.front() = true;
            std::string passo;
            b.Quando(1, [&] { passo = b.Passo(); });
            for (const int tasto : {12, 24, 52, b.into.IntoNota + 0})
                b.Tasto(2, tasto);
            b.Vai(3);
            EXPECT_EQ(b.Passo(), passo);
            EXPECT_EQ(b.Punti(), "0 0 0");
            EXPECT_TRUE(b.Segnati().empty() && b.Visibile("cmdEsci"));
            EXPECT_TRUE(b.Note(1).empty() && b.riquadri.messaggi.empty());
        }
}

TEST(TastieraInto, ADoubleClickOnThePercentageOrOnMiddleCMovesThePianoByOctaves) {
    BancoInto b{P::Accordi};
    std::vector<int> basi;
    double t = 1;
    for (const char* dove : {"lblPerc", "Lbdoc", "lblPerc", "Lbdoc"}) {
        b.Fa(t, Fatto::DblClick, dove);
        b.Quando(t + 0.5, [&] { basi.push_back(b.finestra.BaseTastiera); });
        t += 1;
    }
    b.Clicca(t, "mnuSs");
    b.Vai(t + 1);
    EXPECT_EQ(basi, (std::vector{60, 36, 48, 60}));
    EXPECT_EQ(b.finestra.BaseTastiera, 48) << "a visit to the instruments brings it back";
}

TEST(TastieraInto, MovedWhileAKeyIsHeldTheOldNoteGoesOnAndItsKeyStaysLit) {
    BancoInto b{P::Accordi};
    b.Premi(1, 'Z');
    b.Fa(2, Fatto::DblClick, "Lbdoc");
    b.Lascia(3, 'Z');
    b.Vai(4);
    EXPECT_EQ(b.Note(1), (Suonati{"0.0 48 90", "2.0 60 0"}));
    EXPECT_EQ(b.Accesi(), Tasti{12});
    EXPECT_EQ(b.uscita.NoteAccese(), (std::vector<std::pair<int, int>>{{1, 48}}));
}

TEST(TastieraInto, TheMouseClearsTheLightOfAKeyThatTheComputersKeyboardHolds) {
    BancoInto b{P::Accordi};
    b.Premi(1, 'Z');
    b.Fa(2, Fatto::MouseDown, "lb12");
    b.Fa(3, Fatto::MouseUp, "lb12");
    b.Vai(4);
    EXPECT_TRUE(b.Accesi().empty());
    EXPECT_EQ(b.uscita.NoteAccese(), (std::vector<std::pair<int, int>>{{1, 48}}));
}

TEST(TastieraInto, TheKeysThatComeAsEventsSoundAndLightWhileTheyAreHeld) {
    const std::vector<std::pair<int, int>> tasti = {{188, 60}, {76, 61},  {190, 62},
                                                    {192, 63}, {189, 64}, {186, 77},
                                                    {221, 78}, {187, 79}, {8, 80}};
    for (const auto& [codice, nota] : tasti) {
        BancoInto b{P::Tasti};
        b.Premi(1, codice);
        b.Quando(1.5, [&b, n = nota] { EXPECT_EQ(b.Accesi(), Tasti{n - 36}); });
        b.Lascia(2, codice);
        b.Vai(3);
        const std::string n = std::to_string(nota);
        EXPECT_EQ(b.Note(1), (Suonati{"0.0 " + n + " 90", "1.0 " + n + " 0"})) << codice;
        EXPECT_TRUE(b.Accesi().empty());
    }
}

TEST(TastieraInto, AReleaseOfSuchAKeySendsItsNoteOffAlsoWhenNothingWasStruck) {
    BancoInto b{P::Intervalli};
    b.Lascia(1, vk::virgola);
    b.Vai(2);
    EXPECT_EQ(b.Note(1), Suonati{"0.0 60 0"});
}

TEST(TastieraInto, BackspaceHeldStrikesAtEachRepetitionAndIsSilentWhileTheCommaIsHeld) {
    BancoInto b{P::Intervalli};
    for (const double t : {1.0, 1.5, 1.6, 1.7})
        b.Premi(t, vk::back);
    b.Lascia(2, vk::back);
    b.Premi(3, vk::virgola);
    b.Premi(3.5, vk::virgola);
    b.Premi(4, vk::back);
    b.Vai(5);
    EXPECT_EQ(b.Note(1), (Suonati{"0.0 80 90", "0.5 80 90", "0.6 80 90", "0.7 80 90", "1.0 80 0",
                                  "2.0 60 90"}));
}

TEST(TastieraInto, InTheHighestOctaveTheHighestKeyIs92) {
    BancoInto b{P::Accordi};
    b.Fa(1, Fatto::DblClick, "lblPerc");
    b.Premi(2, 8);
    b.Vai(3);
    EXPECT_EQ(b.Note(2), Suonati{"0.0 92 90"});
    EXPECT_EQ(b.Accesi(), Tasti{56});
}

TEST(TastieraInto, AKeyPressedAndLetGoWithinAFigureIsMissedAndOneThatIsHeldSoundsAfterIt) {
    BancoInto b{P::Tonalita};
    b.Clicca(1, "cmdT");
    b.Banco::Tasto(2, 'Z');
    b.Premi(4, 'C');
    b.Vai(8);
    EXPECT_EQ(b.Note(6.9), Suonati{"0.0 52 90"});
}

TEST(TastieraInto, AKeyWhoseReleaseWentElsewhereIsLetGo) {
    BancoInto b{P::Accordi};
    b.Premi(1, 'Z');
    b.Premi(1, 187);
    b.Fa(2, Fatto::FuocoPerso, "");
    b.Vai(3);
    EXPECT_TRUE(b.uscita.NoteAccese().empty());
    EXPECT_TRUE(b.Accesi().empty());
}

TEST(TastieraInto, ItPlaysOnAfterAVisitToTheInstruments) {
    BancoInto b{P::Accordi};
    b.Clicca(1, "mnuSs");
    b.Clicca(2, "mnuSs");
    b.Premi(3, 'Z');
    b.Lascia(4, 'Z');
    b.Vai(5);
    EXPECT_EQ(b.Note(3), (Suonati{"0.0 48 90", "1.0 48 0"}));
}

TEST(TastieraInto, ItsKeysBearTheNamesInTheNotationInUse) {
    BancoInto b{P::Accordi};
    b.Quando(0.5, [&] { EXPECT_EQ(b.Testo("lb24"), "Do"); });
    b.Clicca(1, "mnuNotAnglo");
    b.Vai(2);
    EXPECT_EQ(b.Testo("lb24"), "C");
    EXPECT_TRUE(b.globali.NomiAnglo);
}

}  // namespace corvana::prova
