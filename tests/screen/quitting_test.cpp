// How the program ends: by its windows, by signals, by the loss of its screen.
#include <csignal>

#include "tests/screen/shared_screen.h"

namespace corvana::prova {

namespace {

using Fine = SullaScrivania;

void FinisceCon(ProgrammaVero& p, int segnale) {
    EXPECT_EQ(p.Esce(segnale), 0);
    EXPECT_FALSE(p.StatoSalvato().empty()) << "nothing was stored";
}

}  // namespace

TEST_F(Fine, TheCloseBoxOfAnIdleProgramEndsIt) {
    ProgrammaVero p(LoSchermo());
    EXPECT_TRUE(p.StatoSalvato().empty());
    p.schermo.Chiudi(p.principale);
    EXPECT_EQ(p.Esce(), 0);
    EXPECT_FALSE(p.StatoSalvato().empty());
}

TEST_F(Fine, ACloseBoxThatATickingMetronomeRefusesChangesNothing) {
    ProgrammaVero p(LoSchermo());
    Schermo& s = p.schermo;
    ASSERT_TRUE(p.ApriMetronomo());
    ASSERT_TRUE(p.AvviaMetronomo());
    s.Chiudi(p.principale);
    ASSERT_TRUE(p.FermaMetronomo());
    ASSERT_NE(p.ApriStrumenti(), 0U);
    s.Batti("Escape");
    ASSERT_TRUE(p.AspettaChiusa("frmStrum"));
    s.Batti("F1");
    ASSERT_NE(p.AspettaFinestra("FinestraAiuto"), 0U);
    EXPECT_TRUE(p.StatoSalvato().empty());
    s.Chiudi(p.principale);
    EXPECT_EQ(p.Esce(), 0);
}

TEST_F(Fine, IdleItEndsByASignal) {
    for (const int segnale : {SIGTERM, SIGINT, SIGHUP}) {
        ProgrammaVero p(LoSchermo());
        FinisceCon(p, segnale);
    }
}

TEST_F(Fine, InTheMiddleOfTheOpeningSignalItEndsByASignal) {
    ProgrammaVero p(LoSchermo(), {.pronta = false});
    FinisceCon(p, SIGTERM);
}

TEST_F(Fine, WhileTheMetronomeTicksItEndsByASignal) {
    ProgrammaVero p(LoSchermo());
    ASSERT_TRUE(p.ApriMetronomo());
    ASSERT_TRUE(p.AvviaMetronomo());
    FinisceCon(p, SIGTERM);
}

TEST_F(Fine, InAnAutomaticRunItEndsByASignal) {
    ProgrammaVero p(LoSchermo());
    ASSERT_TRUE(p.AvviaAutomatico());
    FinisceCon(p, SIGTERM);
}

TEST_F(Fine, WithAModalWindowAndTheHelpUpItEndsByASignal) {
    ProgrammaVero p(LoSchermo());
    ASSERT_NE(p.ApriSequenza(), 0U);
    p.schermo.Batti("F1");
    ASSERT_NE(p.AspettaFinestra("FinestraAiuto"), 0U);
    FinisceCon(p, SIGTERM);
}

TEST_F(Fine, WithABoxUpItEndsByASignal) {
    ProgrammaVero p(LoSchermo(), {.pronta = false});
    ASSERT_NE(p.AspettaFinestra("riquadro"), 0U);
    FinisceCon(p, SIGTERM);
}

TEST(FineDelloSchermo, TheStateIsStoredWhenTheServerGoesWhileTheMetronomeTicks) {
    Schermo schermo;
    ProgrammaVero p(schermo);
    ASSERT_TRUE(p.ApriMetronomo());
    ASSERT_TRUE(p.AvviaMetronomo());
    schermo.Stacca();
    EXPECT_EQ(p.Esce(), 0);
    EXPECT_FALSE(p.StatoSalvato().empty());
}

}  // namespace corvana::prova
