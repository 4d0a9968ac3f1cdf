// The composer within the program: how it is opened and closed, and its instrument picker.
#include "composer/composer.h"

#include <gtest/gtest.h>

#include "tests/program/program_rig.h"
#include "utilities/instruments.h"

namespace corvana::prova {

namespace {

struct BancoComposizione : BancoProgramma {
    frmComposer& Composer() { return dynamic_cast<frmComposer&>(*finestre.Davanti()); }
    frmStrum& Scelta() { return dynamic_cast<frmStrum&>(*finestre.Davanti()); }
};

}  // namespace

TEST(ComposerNelProgramma, TheMenuEntryAndTheToolButtonOpenIt) {
    for (const char* comando : {"mnuComposer", "ToolButton2"}) {
        BancoComposizione b;
        b.Clicca(3, comando);
        b.Quando(4, [&] {
            EXPECT_EQ(b.finestre.Davanti()->Name, "frmComposer") << comando;
            EXPECT_TRUE(b.globali.ComposerAperto);
        });
        b.Chiudi(5);
        b.Quando(6, [&] {
            EXPECT_EQ(b.finestre.Davanti(), &b.finestra);
            EXPECT_FALSE(b.globali.ComposerAperto);
        });
        EXPECT_TRUE(b.Vai(7)) << "the main window is still open";
    }
}

TEST(ComposerNelProgramma, ItTakesCaptionsPicturesAndInstrumentOfTheMainWindow) {
    BancoComposizione b;
    b.globali.StrumentoGlobale = 40;
    b.Clicca(3, "mnuComposer");
    b.Quando(4, [&] {
        frmComposer& f = b.Composer();
        EXPECT_EQ(f.menu.mnuPiano.Caption(), b.finestra.menu.mnuPiano.Caption());
        EXPECT_EQ(f.menu.mnuOrgano.Caption(), b.finestra.menu.mnuOrgano.Caption());
        EXPECT_EQ(f.barra.ToolButton[1].stile, b.finestra.barra.ToolButton[4].stile);
        EXPECT_EQ(f.barra.ToolButton[5].stile, b.finestra.barra.ToolButton[3].stile);
        EXPECT_FALSE(f.barra.ToolButton[1].stile.empty());
        EXPECT_EQ(f.mix.lblInstr[3].Caption(), "40-Violin");
    });
    EXPECT_TRUE(b.Vai(5));
}

TEST(ComposerNelProgramma, EachOpeningIsANewOne) {
    BancoComposizione b;
    b.Clicca(3, "mnuComposer");
    b.Clicca(4, "lblMuteC1");
    b.Clicca(5, "VoceAttiva2");
    b.Chiudi(6);
    b.Clicca(7, "mnuComposer");
    b.Quando(8, [&] {
        EXPECT_EQ(b.Composer().stato.melodia.voceAttiva, "soprano");
        EXPECT_EQ(b.Composer().mix.VolS.Value(), 2);
        EXPECT_EQ(b.Composer().mix.statoSolo[1], 0);
    });
    EXPECT_TRUE(b.Vai(9));
}

TEST(ComposerNelProgramma, MnuChiudiAndCmdCmCloseItAndTheMainWindowsInstrumentIsBack) {
    for (const char* comando : {"mnuChiudi", "cmdCm"}) {
        BancoComposizione b;
        b.Clicca(3, "mnuComposer");
        b.Clicca(4, "mnuPiano");
        b.Clicca(5, comando);
        b.Quando(6, [&] { EXPECT_EQ(b.finestre.Davanti(), &b.finestra) << comando; });
        EXPECT_TRUE(b.Vai(7));
        EXPECT_EQ(b.uscita.messaggi.back().messaggio, 16U << 8 | 0xC0U);
    }
}

TEST(ComposerNelProgramma, AKeyThatIsHeldAsItClosesSoundsNoLonger) {
    BancoComposizione b;
    b.Clicca(3, "mnuComposer");
    b.Premi(4, 'Z');
    b.Quando(4.5, [&] {
        EXPECT_EQ(b.uscita.NoteAccese(), (std::vector<std::pair<int, int>>{{1, 48}}));
    });
    b.Chiudi(5);
    b.Quando(6, [&] { EXPECT_TRUE(b.uscita.NoteAccese().empty()); });
    EXPECT_TRUE(b.Vai(7));
}

TEST(ComposerNelProgramma, TheEndOfTheProgramClosesItWhileItPolls) {
    BancoComposizione b;
    b.Clicca(3, "mnuComposer");
    b.Premi(4, 'Z');
    b.Quando(5, [&] { b.coda.ChiediFine(); });
    EXPECT_FALSE(b.Vai(7));
    EXPECT_TRUE(b.uscita.NoteAccese().empty());
    EXPECT_FALSE(b.globali.ComposerAperto);
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(StrumentiComposer, AChoiceGoesToTheActiveVoiceAndTheMainWindowKeepsItsOwn) {
    for (const char* comando : {"mnuSs", "mnuSsCont", "pictCi", "ToolButton2"}) {
        BancoComposizione b;
        b.Clicca(3, "mnuComposer");
        b.Clicca(4, "VoceAttiva2");
        b.Clicca(5, comando);
        b.Quando(6, [&] {
            EXPECT_EQ(b.finestre.Davanti()->Name, "frmStrum") << comando;
            EXPECT_EQ(b.Scelta().List1.ListIndex(), 16);
        });
        b.Clicca(7, "List1", 73);
        b.Tasto(8, vk::esc);
        b.Quando(9, [&] {
            EXPECT_EQ(b.Composer().stato.melodia.voci[2].strumento, 73);
            EXPECT_EQ(b.Composer().mix.lblInstr[2].Caption(), "73-Flute");
            EXPECT_EQ(b.Composer().mix.lblInstr[1].Caption(), "16-Hammond Organ");
            EXPECT_EQ(b.uscita.messaggi.back().messaggio, 73U << 8 | 0xC2U);
        });
        EXPECT_TRUE(b.Vai(10));
        EXPECT_EQ(b.globali.StrumentoGlobale, 16);
    }
}

TEST(StrumentiComposer, ItOpensOnTheVoicesInstrumentAndItsTestSoundsOnTheVoicesChannel) {
    BancoComposizione b;
    b.Clicca(3, "mnuComposer");
    b.Clicca(4, "VoceAttiva3");
    b.Quando(4.5, [&] { b.Composer().mix.SceltaStrum(40); });
    b.Clicca(5, "mnuSs");
    b.Quando(6, [&] {
        EXPECT_EQ(b.Scelta().List1.ListIndex(), 40);
        b.uscita.messaggi.clear();
    });
    b.Clicca(7, "cmdTest");
    EXPECT_TRUE(b.Vai(10));
    ASSERT_FALSE(b.uscita.messaggi.empty());
    EXPECT_EQ(b.uscita.messaggi.front().messaggio & 0xFFU, 0x93U);
}

TEST(StrumentiComposer, MnuSsDuringAPlayOpensNothing) {
    BancoComposizione b;
    b.Clicca(3, "mnuComposer");
    b.Clicca(4, "cmdInsNota");
    b.Clicca(6, "chekLoop", 1);
    b.Clicca(6.5, "cmdPlay");
    for (const char* comando : {"mnuSs", "mnuSsCont", "pictCi", "ToolButton2"})
        b.Clicca(7, comando);
    b.Quando(8, [&] {
        ASSERT_EQ(b.finestre.Davanti()->Name, "frmComposer");
        EXPECT_TRUE(b.Composer().stato.inEsecuzione);
    });
    EXPECT_TRUE(b.Vai(9));
}

TEST(StrumentiComposer, ThePianosBaseDoesntSurviveAVisitToThePicker) {
    BancoComposizione b;
    b.Clicca(3, "mnuComposer");
    b.Fa(4, Fatto::DblClick, "Lbdoc");
    b.Quando(4.5, [&] { EXPECT_EQ(b.Composer().tasti.baseTastiera, 60); });
    b.Clicca(5, "mnuSs");
    b.Tasto(6, vk::esc);
    b.Quando(7, [&] { EXPECT_EQ(b.Composer().tasti.baseTastiera, 48); });
    b.Premi(8, 'Z');
    b.Quando(8.5, [&] {
        EXPECT_EQ(b.uscita.NoteAccese(), (std::vector<std::pair<int, int>>{{1, 48}}))
            << "the poll goes on";
    });
    EXPECT_TRUE(b.Vai(9));
}

TEST(Copione, AnErrorOfItsOwnIsNoFaultOfTheHandlerInWhichItHappens) {
    BancoComposizione b;
    b.Clicca(3, "mnuComposer");
    b.Clicca(4, "mnuSs");
    b.Clicca(5, "nowhere");
    EXPECT_THROW(b.Vai(6), std::logic_error);
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

}  // namespace corvana::prova
