// The ear trainer within the program: how it is opened, and its instrument picker.
#include <gtest/gtest.h>

#include "eartrainer/into.h"
#include "tests/program/program_rig.h"
#include "utilities/instruments.h"

namespace corvana::prova {

namespace {

struct BancoOrecchio : BancoProgramma {
    BancoOrecchio() {
        globali.testi.msgScegliRif = "rif";
        globali.testi.msgPremiStart = "start";
    }
    frmInto& Into() { return dynamic_cast<frmInto&>(*finestre.Davanti()); }
    frmStrum& Scelta() { return dynamic_cast<frmStrum&>(*finestre.Davanti()); }
    std::string Stato() { return impostazioni.LeggiValore("IntoLastS"); }
};

}  // namespace

TEST(OrecchioNelProgramma, EachEntryOfTheMainMenuOpensItsPage) {
    for (const auto& [voce, cornice, aiuto] :
         std::vector<std::tuple<const char*, const char*, int>>{{"Intonazione", "frmInto2", 3},
                                                                {"mnuRint", "FrmIntervalli", 5},
                                                                {"mnuRac", "frmRacc", 7},
                                                                {"mnuRicTasto", "frmRicTasto", 20},
                                                                {"mnuRicTo", "frmTo", 30},
                                                                {"ToolButton1", "frmInto2", 3}}) {
        BancoOrecchio b;
        b.Clicca(3, voce);
        b.Quando(4, [&, c = cornice, a = aiuto] {
            EXPECT_EQ(b.finestre.Davanti()->Name, "frmInto");
            EXPECT_TRUE(b.Into().Trova(c)->Visible()) << c;
            EXPECT_EQ(b.Into().HelpContextID(), a);
        });
        EXPECT_TRUE(b.Vai(5));
    }
}

TEST(OrecchioNelProgramma, TwoEntriesLeaveTheHelpsContextOfTheLastOne) {
    BancoOrecchio b;
    b.Clicca(3, "mnuRac");
    b.Chiudi(4);
    b.Clicca(5, "mnuRicTo");
    b.Vai(6);
    EXPECT_EQ(b.globali.ContestoInto, 7);
}

TEST(OrecchioNelProgramma, ReopenedItShowsThePageOfTheLastFlagThatStands) {
    BancoOrecchio b;
    b.Clicca(3, "mnuRicTo");
    b.Chiudi(4);
    b.Clicca(5, "mnuRint");
    b.Quando(6, [&] { EXPECT_TRUE(b.Into().tonalita.frmTo.Visible()); });
    b.Vai(7);
}

TEST(OrecchioNelProgramma, ItTakesTheTipsOfTheMainWindowsButtons) {
    BancoOrecchio b;
    b.Clicca(3, "mnuRac");
    b.Quando(4, [&] {
        const auto& bottoni = b.Into().barra.ToolButton;
        EXPECT_EQ(bottoni[0].ToolTipText(), "Intonazione");
        EXPECT_EQ(bottoni[5].ToolTipText(), "Scegli lo strumento");
        EXPECT_EQ(bottoni[6].ToolTipText(), "Aiuto");
    });
    b.Vai(5);
}

TEST(OrecchioNelProgramma, ANoteOfTheMainWindowsDrillIsANoteThatWasAsked) {
    BancoOrecchio b;
    b.Clicca(3, "Start");
    b.Clicca(4, "Start");
    b.Clicca(5, "Intonazione");
    b.Clicca(6, "lb30");
    b.Quando(7, [&] { EXPECT_EQ(b.Into().telaio.punti.txtRerrate.Caption(), "1"); });
    b.Vai(8);
}

TEST(OrecchioNelProgramma, WithoutTheDrillAClickIsNothing) {
    BancoOrecchio b;
    b.Clicca(5, "Intonazione");
    b.Clicca(6, "lb30");
    b.Quando(7, [&] { EXPECT_EQ(b.Into().telaio.punti.txtRerrate.Caption(), "0"); });
    b.Vai(8);
}

TEST(OrecchioNelProgramma, ItsDrillEndsWithTheWindowAndNothingCanAskAnyMore) {
    BancoOrecchio b;
    b.Clicca(3, "Intonazione");
    b.Chiudi(4);
    b.Quando(5, [&] {
        b.uscita.messaggi.clear();
        b.suono.SuonaNota(-2);
        EXPECT_TRUE(b.uscita.messaggi.empty());
    });
    b.Vai(6);
}

TEST(StrumentiOrecchio, ItStandsBesideTheEarTrainerOnTheInstrumentInForceThere) {
    BancoOrecchio b;
    b.Clicca(3, "mnuRac");
    Evento mossa;
    mossa.fatto = Fatto::Spostata;
    mossa.x = 3000;
    mossa.y = 900;
    b.Manda(4, mossa, "");
    b.Clicca(5, "mnuOrgano");
    b.Clicca(6, "mnuSs");
    b.Quando(7, [&] {
        EXPECT_EQ(b.Scelta().Left(), 3400);
        EXPECT_EQ(b.Scelta().Top(), 2600) << "as far below the main window as ever";
        EXPECT_EQ(b.Scelta().List1.ListIndex(), 16);
        EXPECT_EQ(b.Scelta().HelpContextID(), 40);
    });
    b.Vai(8);
}

TEST(StrumentiOrecchio, AChoiceIsTheEarTrainersAndTheMainWindowKeepsItsOwn) {
    BancoOrecchio b;
    b.Clicca(3, "mnuRac");
    b.Clicca(4, "ToolButton6");
    b.Clicca(5, "List1", 73);
    b.Quando(6, [&] {
        EXPECT_EQ(b.globali.into.StrumentoInto, 73);
        EXPECT_EQ(b.uscita.messaggi.back().messaggio, 73U << 8 | 0xC0U);
        EXPECT_EQ(b.Stato(), "") << "stored only when the window closes";
    });
    b.Tasto(7, 27);
    b.Chiudi(8);
    b.Vai(9);
    EXPECT_EQ(b.globali.StrumentoGlobale, 16);
    EXPECT_EQ(b.uscita.messaggi.back().messaggio, 16U << 8 | 0xC0U);
    EXPECT_TRUE(b.Stato().ends_with(";73"));
}

TEST(StrumentiOrecchio, FromIntonationAChoiceIsStoredAtOnce) {
    BancoOrecchio b;
    b.Clicca(3, "Intonazione");
    b.Clicca(4, "ToolButton6");
    b.Clicca(5, "List1", 73);
    b.Quando(6, [&] { EXPECT_EQ(b.Stato(), "24;36;69;0;False;73"); });
    b.Tasto(7, 27);
    b.Vai(8);
    EXPECT_EQ(b.globali.into.StrumentoInto, 73);
}

TEST(StrumentiOrecchio, ClosedItEntersThePageAnew) {
    BancoOrecchio b;
    b.Clicca(3, "Intonazione");
    b.Quando(4, [&] { b.Into().telaio.punti.txtResatte.Caption = "5"; });
    b.Clicca(5, "ToolButton6");
    b.Tasto(6, 27);
    b.Quando(7, [&] { EXPECT_EQ(b.Into().telaio.punti.txtResatte.Caption(), "0"); });
    b.Vai(8);
}

TEST(StrumentiOrecchio, AThousandVisitsLeaveTheStackWhereItWas) {
    BancoOrecchio b;
    b.Clicca(3, "mnuRac");
    std::vector<const char*> fondi;
    for (int i = 0; i < 1000; ++i) {
        b.Clicca(4 + i, "ToolButton6");
        b.Quando(4.3 + i,
                 [&] { fondi.push_back(static_cast<const char*>(__builtin_frame_address(0))); });
        b.Tasto(4.5 + i, 27);
    }
    b.Vai(2000);
    ASSERT_EQ(fondi.size(), 1000U);
    EXPECT_EQ(fondi.front(), fondi.back());
}

}  // namespace corvana::prova
