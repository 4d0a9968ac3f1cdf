// Marking a range on the ruler.
#include <gtest/gtest.h>

#include "tests/trainer/main_window_rig.h"

namespace corvana::prova {

namespace {

using Note = std::vector<int>;

constexpr int suN11 = 4600, suN20 = 3650, suN44 = 1900, suN64 = 100;

struct BancoRighello : BancoPrincipale {
    /// Clicks at these heights, one each second from 3 on, and ends a second after the last.
    void Segna(const std::vector<int>& altezze) {
        double t = 3;
        for (const int y : altezze)
            Righello(t++, y);
        Fine(t);
        Avvia();
    }
};

}  // namespace

TEST(Righello, TheFirstMarkShowsItsNoteAndDisablesStart) {
    BancoRighello b;
    b.Segna({suN20});
    EXPECT_EQ(b.finestra.intervalli.segni.PrimoClick, 20);
    EXPECT_EQ(b.finestra.intervalli.segni.SecondoClick, 0);
    EXPECT_EQ(b.NoteInVista(), Note{20});
    EXPECT_FALSE(b.finestra.esercizio.Start.Enabled());
}

TEST(Righello, TheSecondMarkMakesARangeAndEnablesStart) {
    BancoRighello b;
    b.Segna({suN44, suN20});
    EXPECT_EQ(b.finestra.stato.LimiteBasso, 20);
    EXPECT_EQ(b.finestra.stato.LimiteAlto, 44);
    EXPECT_EQ(b.NoteInVista(), (Note{20, 44}));
    EXPECT_TRUE(b.finestra.esercizio.Start.Enabled());
    EXPECT_EQ(b.specchio.fuochi.back(), "Start");
}

TEST(Righello, TheOrderOfTheMarksDoesntMatter) {
    BancoRighello b;
    b.Segna({suN11, suN64});
    EXPECT_EQ(b.finestra.stato.LimiteBasso, 11);
    EXPECT_EQ(b.finestra.stato.LimiteAlto, 64);
}

TEST(Righello, BetweenTwoBandsNothingIsMarkedAndStartStaysDisabled) {
    for (const int y : {4540, 2500, 0, -50, 4700, 100000}) {
        BancoRighello b;
        b.Segna({y});
        EXPECT_EQ(b.finestra.intervalli.segni.PrimoClick, 0) << y;
        EXPECT_TRUE(b.NoteInVista().empty()) << y;
        EXPECT_FALSE(b.finestra.esercizio.Start.Enabled()) << y;
    }
}

TEST(Righello, OneBandTwiceClearsBothMarksAndTheThirdClickStartsOver) {
    BancoRighello b;
    b.Segna({suN20, suN20, suN44});
    EXPECT_EQ(b.finestra.intervalli.segni.PrimoClick, 44);
    EXPECT_EQ(b.finestra.intervalli.segni.SecondoClick, 0);
    EXPECT_EQ(b.NoteInVista(), Note{44});
    EXPECT_FALSE(b.finestra.esercizio.Start.Enabled());
}

TEST(Righello, AfterOneBandTwiceNoNoteIsToBeSeen) {
    BancoRighello b;
    b.Segna({suN20, suN20});
    EXPECT_EQ(b.finestra.intervalli.segni.PrimoClick, 0);
    EXPECT_TRUE(b.NoteInVista().empty());
    EXPECT_FALSE(b.finestra.esercizio.Start.Enabled());
}

TEST(Righello, AfterTwoMarksFurtherClicksAreIgnored) {
    BancoRighello b;
    b.Segna({suN20, suN44, suN64, suN11, 0});
    EXPECT_EQ(b.finestra.stato.LimiteBasso, 20);
    EXPECT_EQ(b.finestra.stato.LimiteAlto, 44);
    EXPECT_EQ(b.NoteInVista(), (Note{20, 44}));
    EXPECT_TRUE(b.finestra.esercizio.Start.Enabled());
}

TEST(Righello, ADrillThatHasRunAndStoppedClearsTheMarks) {
    BancoRighello b;
    b.Righello(3, suN20);
    b.Righello(4, suN44);
    b.Clicca(5, "Start");
    b.Clicca(6, "Start");
    b.Righello(7, suN11);
    b.Fine(8);
    b.Avvia();
    EXPECT_EQ(b.finestra.intervalli.segni.PrimoClick, 11);
    EXPECT_EQ(b.finestra.intervalli.segni.SecondoClick, 0);
}

TEST(Righello, AfterADrillTheLimitsStayAndServeTheNextOne) {
    BancoRighello b;
    b.Estrai(44, 20, 44);
    b.Righello(3, suN20);
    b.Righello(4, suN44);
    b.Clicca(5, "Start");
    b.Clicca(6, "Start");
    b.Quando(6.5, [&] { EXPECT_TRUE(b.NoteInVista().empty()); });
    b.Clicca(7, "Start");
    b.Fine(8);
    b.Avvia();
    EXPECT_EQ(b.finestra.stato.NotaCorrente, 20);
}

TEST(Righello, WithTwoMarksStandingARowReplacesTheLimits) {
    BancoRighello b;
    b.Righello(3, suN20);
    b.Righello(4, suN44);
    b.Clicca(5, "difficolt", 8);
    b.Righello(6, suN64);
    b.Fine(7);
    b.Avvia();
    EXPECT_EQ(b.finestra.stato.LimiteBasso, 11);
    EXPECT_EQ(b.finestra.stato.LimiteAlto, 31);
    EXPECT_TRUE(b.finestra.esercizio.Start.Enabled());
}

TEST(Righello, ARangeThatCrossesFromOneStaffToTheOtherDrawsNoMissingNumber) {
    BancoRighello b;
    b.casuale.numeri = {0.5, 0.5, 0.0};  // 20 + 12.5 is 32, twice; then 20
    b.Righello(3, suN20);
    b.Righello(4, suN44);
    b.Clicca(5, "Start");
    b.Fine(6);
    b.Avvia();
    EXPECT_EQ(b.finestra.stato.NotaCorrente, 20);
    EXPECT_EQ(b.casuale.estratti, 3);
}

TEST(Righello, LeavesTheSelectionOfTheListAlone) {
    BancoRighello b;
    b.Segna({suN20, suN44});
    EXPECT_EQ(b.finestra.intervalli.difficolt.ListIndex(), 0);
}

TEST(Righello, IsHiddenDuringARunAndTakesNoClickThen) {
    BancoRighello b;
    b.Clicca(3, "Start");
    b.Righello(4, suN20);
    b.Quando(4.5, [&] { EXPECT_FALSE(b.finestra.pentagramma.Regolo.Visible()); });
    b.Clicca(5, "Start");
    b.Fine(6);
    b.Avvia();
    EXPECT_EQ(b.finestra.intervalli.segni.PrimoClick, 0);
    EXPECT_TRUE(b.finestra.pentagramma.Regolo.Visible());
    EXPECT_TRUE(b.finestra.esercizio.Start.Enabled());
}

TEST(Righello, OnlyTheHeightOfTheClickMatters) {
    BancoPrincipale b;
    b.finestra.intervalli.Regolo_MouseDown(bottoneDestro, shiftAlt, -500, suN20);
    b.finestra.intervalli.Regolo_MouseDown(0, 0, 9000, suN44);
    EXPECT_EQ(b.finestra.stato.LimiteBasso, 20);
    EXPECT_EQ(b.finestra.stato.LimiteAlto, 44);
}

TEST(Righello, ItsClosingWithOneMarkStoresTheFirstRow) {
    BancoRighello b;
    b.Righello(3, suN44);
    b.Chiudi(4);
    EXPECT_FALSE(b.Avvia());
    EXPECT_EQ(b.Stato(), "43;53;16;30;n");
}

}  // namespace corvana::prova
