#include "utilities/instruments.h"

#include <gtest/gtest.h>

#include "tests/program/program_rig.h"

namespace corvana::prova {

namespace {

struct BancoStrumenti : BancoProgramma {
    BancoStrumenti() { Clicca(3, "mnuSs"); }
    frmStrum& Scelta() { return dynamic_cast<frmStrum&>(*finestre.Davanti()); }
};

}  // namespace

TEST(Strumenti, TheRowsHoldNumberAndName) {
    BancoStrumenti b;
    b.Quando(4, [&] {
        const Righe& righe = b.Scelta().List1.List();
        ASSERT_EQ(righe.size(), 128U);
        EXPECT_EQ(righe[0], "0 - Acoustic Grand Piano");
        EXPECT_EQ(righe[37], "37 - Slap Bass");
    });
    b.Vai(5);
}

TEST(Strumenti, ItOpensOnTheInstrumentInForceAndSendsItAgain) {
    BancoStrumenti b;
    b.Quando(4, [&] {
        EXPECT_EQ(b.Scelta().List1.ListIndex(), 16);
        EXPECT_TRUE(b.globali.PickerAperto);
        EXPECT_EQ(b.uscita.messaggi.back().messaggio, 16U << 8 | 0xC0U);
    });
    b.Vai(5);
}

TEST(Strumenti, ItStandsBesideTheMainWindowsCornerWithRoundedCorners) {
    BancoStrumenti b;
    b.Quando(4, [&] {
        EXPECT_EQ(b.Scelta().Left(), 900);
        EXPECT_EQ(b.Scelta().Top(), 2600);
        EXPECT_EQ(b.Scelta().Width(), 283 * 15);
        EXPECT_EQ(b.Scelta().Height(), 210 * 15);
        EXPECT_EQ(b.Scelta().stile, "arrotondata");
        EXPECT_EQ(b.Scelta().Sfondo(),
                  (Sfumatura{Rgb(191, 255, 0), Rgb(255, 255, 0), true, false}));
    });
    b.Vai(5);
}

TEST(Strumenti, ItFollowsTheMainWindowAboutTheScreen) {
    BancoStrumenti b;
    Evento mossa;
    mossa.fatto = Fatto::Spostata;
    mossa.x = 3000;
    mossa.y = -450;
    b.Manda(2.5, mossa, "");
    b.Quando(4, [&] {
        EXPECT_EQ(b.Scelta().Left(), 3900);
        EXPECT_EQ(b.Scelta().Top(), 2150);
        EXPECT_TRUE(b.Scelta().Collocata());
    });
    b.Vai(5);
}

TEST(Strumenti, AClickOnARowChangesTheInstrumentOfTheMainWindow) {
    BancoStrumenti b;
    b.Clicca(4, "List1", 40);
    b.Clicca(5, "cmdEsci");
    b.Vai(6);
    EXPECT_EQ(b.globali.StrumentoGlobale, 40);
    EXPECT_EQ(b.uscita.messaggi.back().messaggio, 40U << 8 | 0xC0U);
    EXPECT_FALSE(b.globali.PickerAperto);
    EXPECT_EQ(b.finestre.Davanti(), &b.finestra);
}

TEST(Strumenti, EscClosesTheWindow) {
    BancoStrumenti b;
    b.Tasto(4, 27);
    b.Vai(5);
    EXPECT_EQ(b.finestre.Davanti(), &b.finestra);
}

TEST(Strumenti, NoOtherKeyClosesTheWindow) {
    BancoStrumenti b;
    for (int codice = 1; codice < 256; ++codice)
        if (codice != 27) b.Tasto(4, codice);
    b.Quando(5, [&] { EXPECT_EQ(b.finestre.Davanti()->Name, "frmStrum"); });
    b.Vai(6);
}

TEST(Strumenti, ItTellsThatItIsOpenFromItsLoadToItsEnd) {
    BancoStrumenti b;
    b.Quando(2.9, [&] { EXPECT_FALSE(b.globali.PickerAperto); });
    b.Quando(4, [&] { EXPECT_TRUE(b.globali.PickerAperto); });
    b.Tasto(5, 27);
    b.Vai(6);
    EXPECT_FALSE(b.globali.PickerAperto);
}

TEST(Strumenti, WhatIsSunkInTheMainWindowHindersNothingHereAndComesBackAfterwards) {
    BancoStrumenti b;
    const int riposo = b.finestra.barra.ToolButton[2].Top();
    b.Fa(2.8, Fatto::MouseMove, "ToolButton3");
    b.Fa(4, Fatto::MouseMove, "cmdTest");
    b.Quando(4.5, [&] {
        EXPECT_EQ(b.finestra.barra.ToolButton[2].Top(), riposo + 10);
        EXPECT_EQ(b.Scelta().cmdTest.Top(), 310);
    });
    b.Tasto(5, 27);
    b.Fa(6, Fatto::MouseMove, "");
    b.Vai(7);
    EXPECT_EQ(b.finestra.barra.ToolButton[2].Top(), riposo);
}

TEST(Strumenti, ItsPictureAndItsExitSinkUnderThePointerAndComeBack) {
    BancoStrumenti b;
    b.Fa(4, Fatto::MouseMove, "cmdTest");
    b.Fa(5, Fatto::MouseMove, "cmdEsci");
    b.Quando(5.5, [&] {
        EXPECT_EQ(b.Scelta().cmdTest.Top(), 300);
        EXPECT_EQ(b.Scelta().cmdEscibg.Top(), 2485);
        EXPECT_EQ(b.Scelta().cmdEsci.ForeColor(), 255);
    });
    b.Fa(6, Fatto::MouseMove, "");
    b.Quando(6.5, [&] {
        EXPECT_EQ(b.Scelta().cmdEscibg.Top(), 2475);
        EXPECT_EQ(b.Scelta().cmdEsci.ForeColor(), 0xFF0000);
    });
    b.Vai(7);
}

TEST(Strumenti, TheTestSoundsThePhraseOnChannelOne) {
    BancoStrumenti b;
    b.Clicca(4, "cmdTest");
    b.Vai(6);
    const auto note = b.uscita.ConStato(0x90);
    ASSERT_EQ(note.size(), 20U) << "the opening signal and the test, each note on and off";
    const std::vector<std::pair<int, int>> frase = {{71, 127}, {71, 0}, {72, 127}, {72, 0},
                                                    {69, 127}, {69, 0}, {64, 127}, {64, 0},
                                                    {69, 127}, {69, 0}};
    EXPECT_EQ(std::vector(note.begin() + 10, note.end()), frase);
}

TEST(Strumenti, AnInstrumentThatTheListHasNotBecomesTheNearest) {
    BancoStrumenti b;
    b.Quando(2.5, [&] { b.globali.StrumentoGlobale = 500; });
    b.Quando(4, [&] { EXPECT_EQ(b.Scelta().List1.ListIndex(), 127); });
    b.Vai(5);
}

TEST(Strumenti, TheButtonSinksUnderThePointerAndTurnsRed) {
    BancoStrumenti b;
    b.Quando(3.9, [&] { EXPECT_EQ(b.Scelta().cmdEsci.ForeColor(), 0xFF0000); });
    b.Fa(4, Fatto::MouseMove, "cmdEsci");
    b.Quando(4.5, [&] {
        EXPECT_EQ(b.Scelta().cmdEsci.ForeColor(), 255);
        EXPECT_EQ(b.Scelta().cmdEscibg.Top(), b.Scelta().cmdEsci.Top() + 10);
    });
    b.Fa(5, Fatto::MouseMove, "");
    b.Quando(5.5, [&] {
        EXPECT_EQ(b.Scelta().cmdEsci.ForeColor(), 0xFF0000);
        EXPECT_EQ(b.Scelta().cmdEscibg.Top(), b.Scelta().cmdEsci.Top());
    });
    b.Vai(6);
}

TEST(Strumenti, ThePointerLeavesOneButtonAsItComesToTheOther) {
    BancoStrumenti b;
    b.Fa(4, Fatto::MouseMove, "cmdEscibg");
    b.Fa(5, Fatto::MouseMove, "cmdTest");
    b.Quando(5.5, [&] {
        EXPECT_EQ(b.Scelta().cmdEscibg.Top(), b.Scelta().cmdEsci.Top());
        EXPECT_EQ(b.Scelta().cmdEsci.ForeColor(), 0xFF0000);
        EXPECT_EQ(b.Scelta().cmdTest.Top(), 310);
    });
    b.Fa(6, Fatto::MouseMove, "cmdEsci");
    b.Quando(6.5, [&] {
        EXPECT_EQ(b.Scelta().cmdTest.Top(), 300);
        EXPECT_EQ(b.Scelta().cmdEsci.ForeColor(), 255);
    });
    b.Vai(7);
}

TEST(Strumenti, PressingTheLeftButtonOnItsFaceDragsTheWindow) {
    BancoStrumenti b;
    Evento premuto;
    premuto.fatto = Fatto::MouseDown;
    premuto.codice = bottoneSinistro;
    b.Manda(4, premuto, "");
    premuto.codice = bottoneDestro;
    b.Manda(5, premuto, "");
    b.Vai(6);
    EXPECT_EQ(b.specchio.trascinate, std::vector<std::string>{"frmStrum"});
}

}  // namespace corvana::prova
