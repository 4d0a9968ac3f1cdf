// The tool buttons, what lights up under the pointer, and the menus of the melody window.
#include <gtest/gtest.h>

#include "tests/composer/composer_rig.h"

namespace corvana::prova {

namespace {

using Testi = std::vector<std::string>;

struct BancoBarra : BancoComposer {
    BancoBarra() { finestra.barra.frToolBar.Visible = true; }
    void Sopra(const std::string& controllo) { Subito(Fatto::MouseMove, controllo); }
    std::pair<int, int> Posto(std::size_t bottone) const {
        const Figura& b = finestra.barra.ToolButton.at(bottone);
        return {b.Left(), b.Top()};
    }
    void Destro(int bottone) {
        Evento e;
        e.fatto = Fatto::MouseDown;
        e.codice = bottone;
        coda.Aggiungi(Fatta(e, ""));
        pompa.PompaEventi();
    }
};

}  // namespace

TEST(BarraComposer, AClickOnTheStripShowsAndHidesIt) {
    BancoBarra b;
    b.Subito(Fatto::Click, "ShToolbar");
    EXPECT_FALSE(b.finestra.barra.frToolBar.Visible());
    b.Subito(Fatto::Click, "ShToolbar");
    EXPECT_TRUE(b.finestra.barra.frToolBar.Visible());
    EXPECT_EQ(b.finestra.barra.ToolButton.size(), 6U);
}

TEST(BarraComposer, ToolButton1PlaysAfterFiveSeconds) {
    BancoBarra b;
    b.Voce(soprano, "60;", "1");
    const double prima = b.pompa.Adesso();
    b.Subito(Fatto::Click, "ToolButton1");
    EXPECT_NEAR(b.pompa.Adesso() - prima, 6, 0.2);
}

TEST(BarraComposer, ToolButtons3To5OpenAndSave) {
    BancoBarra b;
    b.Subito(Fatto::Click, "ToolButton3");
    EXPECT_TRUE(b.finestra.archivio.Fr2.Visible());
    b.Voce(soprano, "60;", "1");
    b.melodia.nomeMelodia = "mia";
    b.Subito(Fatto::Click, "ToolButton4");
    EXPECT_NE(b.ContenutoFile("mia"), "no such file");
    b.riquadri.testi = {"altra"};
    b.Subito(Fatto::Click, "ToolButton5");
    EXPECT_NE(b.ContenutoFile("altra"), "no such file");
}

TEST(BarraComposer, ToolButton6OpensTheHelp) {
    BancoBarra b;
    int aiuti = 0;
    b.finestre.PonAiuto([&](const Form& form) { aiuti += &form == &b.finestra; });
    b.Subito(Fatto::Click, "ToolButton6");
    EXPECT_EQ(aiuti, 1);
}

TEST(BarraComposer, DuringPlayNoneOfThemHasAnyEffect) {
    BancoBarra b;
    b.Voce(soprano, "60;62;", "1");
    b.melodia.nomeMelodia = "mia";
    int aiuti = 0;
    b.finestre.PonAiuto([&](const Form&) { ++aiuti; });
    for (int i = 1; i <= 6; ++i)
        b.CliccaNelTick(3, "ToolButton" + std::to_string(i));
    b.Suona();
    EXPECT_EQ(b.TickPassati(), 64);
    EXPECT_FALSE(b.finestra.archivio.Fr2.Visible());
    EXPECT_EQ(b.ContenutoFile("mia"), "no such file");
    EXPECT_EQ(aiuti, 0);
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(BarraComposer, TheButtonUnderThePointerSinksAndANeighbourComesUp) {
    BancoBarra b;
    const auto primo = b.Posto(0), secondo = b.Posto(1);
    b.Sopra("ToolButton1");
    EXPECT_EQ(b.Posto(0), (std::pair{primo.first + 10, primo.second + 10}));
    b.Sopra("ToolButton2");
    EXPECT_EQ(b.Posto(0), primo);
    EXPECT_EQ(b.Posto(1), (std::pair{secondo.first + 10, secondo.second + 10}));
    b.Sopra("");
    EXPECT_EQ(b.Posto(1), secondo);
}

TEST(BarraComposer, AClickBringsTheButtonUpFirst) {
    BancoBarra b;
    const auto riposo = b.Posto(2);
    b.Sopra("ToolButton3");
    b.Subito(Fatto::Click, "ToolButton3");
    EXPECT_EQ(b.Posto(2), riposo);
}

TEST(BarraComposer, CmdCmTakesTheColourOfInsertingUnderThePointerAndThenItsOwn) {
    BancoBarra b;
    const Colore proprio = b.finestra.cmdCm.BackColor();
    const Colore inserire = b.finestra.inserimento.cmdInsNota.BackColor();
    ASSERT_NE(proprio, inserire);
    b.Sopra("cmdCm");
    EXPECT_EQ(b.finestra.cmdCm.BackColor(), inserire);
    b.Sopra("");
    EXPECT_EQ(b.finestra.cmdCm.BackColor(), proprio);
    b.Sopra("cmdCm");
    b.Sopra("ToolButton1");
    EXPECT_EQ(b.finestra.cmdCm.BackColor(), proprio);
}

TEST(MenuComposer, TheRightButtonOnTheWindowOpensTheContextMenuAndNoOtherDoes) {
    BancoBarra b;
    b.Destro(bottoneSinistro);
    EXPECT_TRUE(b.specchio.menuAperti.empty());
    b.Destro(bottoneDestro);
    EXPECT_EQ(b.specchio.menuAperti, Testi{"mnuContestuale2"});
}

TEST(MenuComposer, TheNotationIsChosenAndWhatIsShownStays) {
    BancoBarra b;
    b.Voce(soprano, "60;", "1");
    b.Subito(Fatto::Click, "mnuNotAnglo");
    EXPECT_TRUE(b.globali.NomiAnglo);
    EXPECT_TRUE(b.finestra.menu.mnuNotAnglo.Checked());
    EXPECT_FALSE(b.finestra.menu.mnuNotLat.Checked());
    EXPECT_EQ(b.finestra.voci.LblNoteString.Caption(), "Do;");
    EXPECT_EQ(b.finestra.stato.lblActNote.Caption(), "Do");
    b.finestra.regolo.MuoviCursore("Premuta", 38);
    EXPECT_EQ(b.finestra.stato.lblActNote.Caption(), "C#") << "the next name is a new one";
    b.Subito(Fatto::Click, "mnuNotLat");
    EXPECT_FALSE(b.globali.NomiAnglo);
    EXPECT_TRUE(b.finestra.menu.mnuNotLat.Checked());
}

TEST(MenuComposer, MnuApriContOpensTheListAsMnuApriDoes) {
    for (const char* voce : {"mnuApri", "mnuApriCont"}) {
        BancoBarra b;
        b.Subito(Fatto::Click, voce);
        EXPECT_TRUE(b.finestra.archivio.Fr2.Visible()) << voce;
    }
}

TEST(MenuComposer, DuringPlayWhatOpensAndSavesIsOutOfReachInBothMenus) {
    BancoBarra b;
    b.Voce(soprano, "60;62;", "1");
    b.melodia.nomeMelodia = "mia";
    for (const char* voce : {"mnuApri", "mnuApriCont", "mnuSalva", "mnuSalvaCont", "mnuSaveAs",
                             "mnuSaveAsCont", "mnuSalvaA", "mnucSalvaA", "mnuChiudi"})
        b.CliccaNelTick(3, voce);
    b.Suona();
    EXPECT_FALSE(b.finestra.archivio.Fr2.Visible());
    EXPECT_EQ(b.ContenutoFile("mia"), "no such file");
    EXPECT_TRUE(b.riquadri.messaggi.empty());
    EXPECT_TRUE(b.finestra.menu.mnuApriCont.Enabled()) << "after it they are back";
    EXPECT_TRUE(b.finestra.menu.file.Enabled());
}

TEST(ChekLoop, AClickGivesTheFocusToPlay) {
    BancoBarra b;
    b.specchio.fuochi.clear();
    b.Subito(Fatto::Click, "chekLoop", 1);
    EXPECT_EQ(b.specchio.fuochi, Testi{"cmdPlay"});
    EXPECT_TRUE(b.finestra.play.chekLoop.Value());
}

}  // namespace corvana::prova
