// The window around the drills: opening, which page is in front, the toolbar, the score.
#include <gtest/gtest.h>

#include "tests/eartrainer/into_rig.h"

namespace corvana::prova {

namespace {

using P = PaginaInto;

/// The frame of the page in front; several are a fault.
std::string Davanti(const BancoInto& b) {
    std::string quali;
    for (const char* nome : {"frmInto2", "FrmIntervalli", "frmRacc", "frmRicTasto", "frmTo"})
        if (b.Visibile(nome)) quali += nome;
    return quali;
}

struct RigaVoce {
    const char* voce;
    const char* bottone;
    const char* cornice;
    int aiuto;
};

const std::vector<RigaVoce> voci = {{"mnuNotA", "ToolButton1", "frmInto2", 3},
                                    {"mnuRint", "ToolButton2", "FrmIntervalli", 5},
                                    {"mnuRicTa", "ToolButton3", "frmRacc", 7},
                                    {"mnuRicTasto", "ToolButton5", "frmRicTasto", 20},
                                    {"mnuRicTo", "ToolButton4", "frmTo", 30}};

}  // namespace

TEST(Telaio, EachEntryShowsItsPageAloneWithItsHelp) {
    BancoInto b{P::Intervalli};
    double t = 1;
    for (const RigaVoce& riga : voci) {
        b.Clicca(t, riga.voce);
        b.Quando(t + 0.5, [&b, &riga] {
            EXPECT_EQ(Davanti(b), riga.cornice);
            EXPECT_EQ(b.finestra.HelpContextID(), riga.aiuto) << riga.voce;
        });
        t += 1;
    }
    EXPECT_TRUE(b.Vai(t));
}

TEST(Telaio, EachToolButtonDoesWhatItsEntryDoes) {
    BancoInto b{P::Accordi};
    double t = 1;
    for (const RigaVoce& riga : voci) {
        b.Clicca(t, riga.bottone);
        b.Quando(t + 0.5, [&b, &riga] { EXPECT_EQ(Davanti(b), riga.cornice); });
        t += 1;
    }
    b.Clicca(t, "ToolButton6");
    b.Vai(t + 1);
    EXPECT_EQ(b.scelte, 1);
}

TEST(Telaio, DuringADrillNoPageCanBeChangedAndTheHelpIsThere) {
    BancoInto b{P::Intervalli};
    std::string chiesto;
    b.finestre.PonAiuto([&](const Form& form) { chiesto = std::to_string(form.HelpContextID()); });
    b.Estrai(4, 14);
    b.Clicca(1, "CmdIntStart");
    for (int i = 1; i <= 7; ++i)
        b.Clicca(5 + i, "ToolButton" + std::to_string(i));
    b.Clicca(13, "mnuRicTa");
    b.Vai(14);
    EXPECT_EQ(Davanti(b), "FrmIntervalli");
    EXPECT_EQ(b.scelte, 0);
    EXPECT_EQ(chiesto, "5");
}

TEST(Telaio, AToolButtonComesUpBeforeItActsAndTheStripHidesThemAll) {
    BancoInto b{P::Intervalli};
    const int riposo = b.finestra.barra.ToolButton[0].Top();
    b.Fa(1, Fatto::MouseMove, "ToolButton1");
    b.Quando(1.5, [&] { EXPECT_EQ(b.finestra.barra.ToolButton[0].Top(), riposo + 10); });
    b.Clicca(2, "ToolButton1");
    b.Quando(2.5, [&] { EXPECT_EQ(b.finestra.barra.ToolButton[0].Top(), riposo); });
    b.Clicca(3, "ShToolbar");
    b.Quando(3.5, [&] { EXPECT_FALSE(b.Visibile("frToolBar")); });
    b.Clicca(4, "ShToolbar");
    b.Vai(5);
    EXPECT_TRUE(b.Visibile("frToolBar"));
}

TEST(Telaio, AtItsLoadItTakesTheContextTheInstrumentAndTheTipsThatItIsGiven) {
    BancoInto b;
    b.globali.ContestoInto = 77;
    b.Vai(1);
    EXPECT_EQ(b.finestra.HelpContextID(), 77);
    EXPECT_TRUE(b.globali.IntoAperto);
    EXPECT_EQ(b.into.StrumentoInto, 40);
    EXPECT_EQ(b.Passo(), "primo limite");
    const std::vector<std::string> attesi = {"into",
                                             " Riconoscimento intervallo ",
                                             " Riconoscimento tipo accordo ",
                                             " Riconoscimento Tonalità ",
                                             " Riconoscimento tasti ",
                                             "strumenti",
                                             "aiuto"};
    for (std::size_t i = 0; i < attesi.size(); ++i)
        EXPECT_EQ(b.finestra.barra.ToolButton[i].ToolTipText(), attesi[i]);
    EXPECT_EQ(b.finestra.barra.ShToolbar.Sfondo(),
              (Sfumatura{Rgb(154, 0, 223), Rgb(255, 213, 255), true, true}));
}

TEST(Telaio, AtItsLoadTheReferenceIsOnAndChordsShowTheirKeysWhateverStoodBefore) {
    BancoInto b{P::Intervalli};
    b.into.ConRiferimento = 0;
    b.finestra.intonazione.lblMod.Caption = "o";
    b.globali.NomiAnglo = true;
    b.Vai(1);
    EXPECT_EQ(b.into.ConRiferimento, 1);
    EXPECT_EQ(b.Testo("lblMod") + b.Consiglio("lblMod"), "/rif si");
    EXPECT_EQ(b.Testo("lblVt") + ", " + b.Consiglio("lblVt"), "mostra, tt mostra");
    EXPECT_EQ(b.Testo("lb24"), "C");
}

TEST(Telaio, EveryOtherEntryHidesTheToolsOfPitch) {
    for (const char* voce : {"mnuRint", "mnuRicTa", "mnuRicTasto", "mnuRicTo"}) {
        BancoInto b{P::Intonazione};
        const auto visibili = [&] {
            return std::vector<bool>{b.Visibile("IntoStart"), b.Visibile("frInto"),
                                     b.Visibile("cmdReimposta")};
        };
        b.Clicca(1, "IntoStart");
        b.Clicca(5, "IntoStart");
        b.Quando(6, [&] { EXPECT_EQ(visibili(), (std::vector{true, true, true})); });
        b.Clicca(7, voce);
        b.Vai(8);
        EXPECT_EQ(visibili(), (std::vector{false, false, false})) << voce;
    }
}

TEST(Telaio, TheExitIsRedUnderThePointerAndThenOfItsOwnColour) {
    BancoInto b{P::Accordi};
    const Colore suo = Rgb(1, 2, 3);
    b.finestra.telaio.cmdEsci.ForeColor = suo;
    b.Fa(1, Fatto::MouseMove, "cmdEsci");
    b.Quando(2, [&] { EXPECT_EQ(b.finestra.telaio.cmdEsci.ForeColor(), Rgb(255, 0, 0)); });
    b.Fa(3, Fatto::MouseMove, "");
    b.Vai(4);
    EXPECT_EQ(b.finestra.telaio.cmdEsci.ForeColor(), suo);
}

TEST(Telaio, ChoosingAnInstrumentOnAPageReachedFromTheIntervalsBringsTheIntervalsToTheFrontAgain) {
    BancoInto b{P::Intervalli};
    b.Clicca(1, "mnuNotA");
    b.Quando(1.5, [&] {
        EXPECT_EQ(Davanti(b), "frmInto2");
        EXPECT_EQ(b.globali.PaginaInto, (BandiereInto{true, true}));
    });
    b.Clicca(2, "ToolButton6");
    b.Vai(3);
    EXPECT_EQ(Davanti(b), "FrmIntervalli");
    EXPECT_EQ(b.globali.PaginaInto, (BandiereInto{false, true}));
}

TEST(Telaio, AfterTheTonalityPageAReactivationEndsThereUntilChordsOrKeyFindingClearItsFlag) {
    for (const auto& [poi, davanti] :
         std::vector<std::pair<const char*, const char*>>{{"mnuNotA", "frmTo"},
                                                          {"mnuRint", "frmTo"},
                                                          {"mnuRicTa", "frmRacc"},
                                                          {"mnuRicTasto", "frmRicTasto"}}) {
        BancoInto b{P::Tonalita};
        b.Clicca(1, poi);
        b.Clicca(2, "mnuSs");
        b.Vai(3);
        EXPECT_EQ(Davanti(b), davanti) << poi;
    }
}

TEST(Telaio, ClosingClearsNoFlag) {
    BancoInto b{P::Intervalli, P::Tonalita};
    b.Chiudi(1);
    EXPECT_FALSE(b.Vai(2));
    EXPECT_EQ(b.globali.PaginaInto, (BandiereInto{false, true, false, false, true}));
}

TEST(Telaio, ChoosingAnInstrumentClearsTheScoreAndTheMarkers) {
    BancoInto b{P::Tasti};
    b.Clicca(1, "cmdRicTasto");
    b.Tasto(2, 0);
    b.Quando(2.5, [&] {
        EXPECT_EQ(b.Punti(), "1 0 100.00%");
        EXPECT_TRUE(b.Visibile("lblOk"));
    });
    b.Clicca(3, "mnuSs");
    b.Vai(4);
    EXPECT_EQ(b.Punti(), "0 0 0");
    EXPECT_FALSE(b.Visibile("lblOk"));
    EXPECT_FALSE(b.Visibile("lblKo"));
}

TEST(Telaio, TheEntryOfTonalityKeepsTheScoreOfThePageBeforeItUntilItsStart) {
    BancoInto b{P::Tasti};
    b.Clicca(1, "cmdRicTasto");
    b.Tasto(2, 0);
    b.Clicca(3, "cmdRicTasto");
    b.Clicca(4, "mnuRicTo");
    b.Quando(5, [&] { EXPECT_EQ(b.Punti(), "1 0 100.00%"); });
    b.Clicca(6, "cmdT");
    b.Vai(7);
    EXPECT_EQ(b.Punti(), "0 0 0");
}

TEST(Telaio, TheQuickInstrumentsSoundAtOnce) {
    BancoInto b{P::Accordi};
    b.Clicca(1, "mnuOrgano");
    b.Quando(1.5, [&] { EXPECT_EQ(b.into.StrumentoInto, 16); });
    b.Clicca(2, "mnuPiano");
    b.Vai(3);
    EXPECT_EQ(b.into.StrumentoInto, 0);
    EXPECT_EQ(b.Programmi(), (std::vector{16, 0}));
    EXPECT_EQ(b.globali.StrumentoGlobale, 40);
}

TEST(Telaio, TheChecksOfTheNotationFollowItAtEachActivation) {
    BancoInto b{P::Accordi};
    b.Quando(0.5, [&] { EXPECT_TRUE(b.finestra.menu.mnuNotLat.Checked()); });
    b.nelPicker = [&] { b.globali.NomiAnglo = true; };
    b.Clicca(1, "mnuSs");
    b.Vai(2);
    EXPECT_TRUE(b.finestra.menu.mnuNotAnglo.Checked());
    EXPECT_FALSE(b.finestra.menu.mnuNotLat.Checked());
}

TEST(PunteggioInto, AWrongAnswerAloneIs0PercentAnd1RightOf3Is33Percent33) {
    Banco b;
    BancoInto::Vuota form{"form"};
    PunteggioInto punti{form, b.globali};
    punti.Azzera();
    punti.Punteggio(false);
    EXPECT_EQ(punti.lblPerc.Caption(), "0.00%");
    EXPECT_TRUE(punti.lblKo.Visible());
    EXPECT_FALSE(punti.lblOk.Visible());
    punti.Punteggio(true);
    EXPECT_EQ(punti.lblPerc.Caption(), "50.00%");
    EXPECT_FALSE(punti.lblKo.Visible());
    EXPECT_TRUE(punti.lblOk.Visible());
    b.globali.SeparatoreDecimale = ',';
    punti.Punteggio(false);
    EXPECT_EQ(punti.lblPerc.Caption(), "33,33%");
    EXPECT_EQ(punti.txtResatte.Caption(), "1");
    EXPECT_EQ(punti.txtRerrate.Caption(), "2");
}

TEST(PunteggioInto, ACountThatLeaves16BitsIsAFaultAndStays) {
    Banco b;
    BancoInto::Vuota form{"form"};
    PunteggioInto punti{form, b.globali};
    punti.Azzera();
    punti.txtResatte.Caption = "32766";
    punti.Punteggio(true);
    EXPECT_EQ(punti.txtResatte.Caption(), "32767");
    EXPECT_ANY_THROW(punti.Punteggio(true));
    EXPECT_EQ(punti.txtResatte.Caption(), "32767");
}

}  // namespace corvana::prova
