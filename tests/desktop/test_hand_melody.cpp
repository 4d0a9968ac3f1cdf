// A whole melody entered with the mouse and the keyboard in the real window: what is saved is the
// file that somebody else's hand had written, and the play sounds like it to the last sample.
#include <gtest/gtest.h>

#include "tests/composer/demo_files.h"
#include "tests/core/temporary_folder.h"
#include "tests/desktop/melody_hand.h"
#include "tests/outputs/hearing.h"

namespace corvana::prova {
namespace {

/// Four voices with dotted notes, triplets and rests; every other dotted note is entered by a tie.
const std::string corale = "Amazing grace";

TEST(MelodiaAMano, WhatIsEnteredInAllFourVoicesIsSavedAsTheFileAndSoundsLikeIt) {
    const CartellaProvvisoria cartella;
    PalcoAMano::Udito scritto, aperto;
    {
        PalcoMelodia p(cartella.Di(""));
        p.Scrivi(LeggiMel(ByteDemo(corale), '.'));
        p.SalvaConNome("by hand");
        EXPECT_EQ(Contenuto(cartella.Di("by hand.mel")), ByteDemo(corale));
        scritto = p.Suona();
    }
    {
        PalcoMelodia p(CORVANA_DEMO "/");
        p.Apri(corale);
        aperto = p.Suona();
    }
    EXPECT_GT(scritto.mandati.size(), 300U);
    EXPECT_TRUE(scritto.mandati == aperto.mandati);
    EXPECT_TRUE(scritto.suono == aperto.suono);
    ASSERT_GT(scritto.fine, 30);
    const std::vector<float> mono = Mono(scritto.suono);
    for (double quando = 1; quando < scritto.fine - 2; quando += 2)
        EXPECT_GT(Picco(Parte(mono, quando, 2)), 0.01) << quando;
}

TEST(MelodiaAMano, WhatIsClickedWhileANoteSoundsIsNotLostAndComesAfterIt) {
    const CartellaProvvisoria cartella;
    PalcoMelodia p(cartella.Di(""));
    p.FermaDopo(0.1);
    p.Tocca("lb24", p.NelTasto("lb24"));
    p.Tocca("cmdInsNota");
    p.Tocca("cmdSimbNote1");
    p.Tocca("cmdInsPausa");
    p.Tocca("cmdSimbNote3");
    p.Tocca("cmdAttrNota0");
    p.ToccaDueVolte("lb26", p.NelTasto("lb26"));
    EXPECT_EQ(p.Dice("LblNoteString"), "");
    p.Prosegui();
    p.SalvaConNome("hasty");
    EXPECT_EQ(LeggiMel(Contenuto(cartella.Di("hasty.mel")), '.').soprano,
              (TestiVoce{"60;00;62;", "1;2;0.75;", "n;p;n;"}));
}

}  // namespace
}  // namespace corvana::prova
