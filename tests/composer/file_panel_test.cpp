// The list of folders and melodies.
#include <gtest/gtest.h>

#include "tests/composer/composer_rig.h"
#include "tests/composer/mel_lines.h"

namespace corvana::prova {

namespace {

struct BancoPannello : BancoComposer {
    /// The rows of a folder, as the list shows them.
    Righe RigheDi(const std::string& percorso) {
        globali.percorsoCorrente = percorso;
        finestra.archivio.ListaFD();
        return finestra.archivio.List1.List();
    }
    void Entra(const std::string& riga) {
        Scegli(riga);
        finestra.archivio.cmdEseguiFile_Click();
    }
};

}  // namespace

TEST(ListaFD, ShowsTheParentThenTheFoldersThenTheMelodiesEachInOrderWithoutRegardToCase) {
    BancoPannello b;
    for (const char* nome : {"b.mel", "A.mel", "c.mel", "B.txt", "mel", "d.mel.bak"})
        b.file.contenuti[std::string("/m/") + nome] = "";
    for (const char* nome : {"Zeta", "alfa", "Beta", "beta.mel"})
        b.file.cartelle.insert(std::string("/m/") + nome);
    EXPECT_EQ(b.RigheDi("/m/"),
              (Righe{"» ..", "» alfa", "» Beta", "» beta.mel", "» Zeta", "A", "b", "c"}));
}

TEST(ListaFD, TheParentComesFirstWhateverTheFoldersAreCalled) {
    BancoPannello b;
    b.file.cartelle.insert("/m/!x");
    EXPECT_EQ(b.RigheDi("/m/"), (Righe{"» ..", "» !x"}));
}

TEST(ListaFD, AFileAPointBPointMelAppearsAsAPointB) {
    BancoPannello b;
    b.file.contenuti["/m/a.b.mel"] = "";
    EXPECT_EQ(b.RigheDi("/m/"), (Righe{"» ..", "a.b"}));
}

TEST(Fr2, IsClosedByItsButton) {
    BancoPannello b;
    b.finestra.archivio.mnuApri_Click();
    EXPECT_TRUE(b.finestra.archivio.Fr2.Visible());
    b.finestra.archivio.cmdChiudi_Click();
    EXPECT_FALSE(b.finestra.archivio.Fr2.Visible());
}

TEST(ListaFD, ARootFolderHasNoParentAndTheListStartsWithTheFirstFolder) {
    BancoPannello b;
    b.file.cartelle = {"/home", "/Etc"};
    b.file.contenuti["/song.mel"] = "";
    EXPECT_EQ(b.RigheDi("/"), (Righe{"» Etc", "» home", "song"}));
}

TEST(ListaFD, AFolderThatIsntThereGivesNothingButItsParentAndNoMessage) {
    BancoPannello b;
    EXPECT_EQ(b.RigheDi("/gone/"), Righe{"» .."});
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(ListaFD, ShowsThePathInLowerCaseAndWithABlankAtEachEndInItsTip) {
    BancoPannello b;
    b.RigheDi("/Musica/Corali/");
    EXPECT_EQ(b.finestra.archivio.lblPercorso.Caption(), "/musica/corali/");
    EXPECT_EQ(b.finestra.archivio.lblPercorso.ToolTipText(), " /musica/corali/ ");
    EXPECT_EQ(b.globali.percorsoCorrente, "/Musica/Corali/");
}

TEST(ListaFD, ForgetsTheChosenRow) {
    BancoPannello b;
    b.PonFile("a", "");
    EXPECT_EQ(b.finestra.archivio.List1.ListIndex(), 1);
    b.finestra.archivio.ListaFD();
    EXPECT_EQ(b.finestra.archivio.List1.ListIndex(), -1);
}

TEST(ListaFD, DuringAPlayTheListStaysAsItStood) {
    BancoPannello b;
    b.Voce(soprano, "60;", "1");
    b.finestra.archivio.ListaFD();
    b.NelTick(3, [&] {
        b.file.contenuti[std::string(BancoComposer::demo) + "new.mel"] = "";
        b.finestra.archivio.ListaFD();
    });
    b.Suona();
    EXPECT_EQ(b.finestra.archivio.List1.List(), Righe{"» .."});
    b.finestra.archivio.ListaFD();
    EXPECT_EQ(b.finestra.archivio.List1.List(), (Righe{"» ..", "new"}));
}

TEST(MenuApri, ShowsThePanelWithTheFilledList) {
    BancoPannello b;
    b.file.contenuti[std::string(BancoComposer::demo) + "a.mel"] = "";
    b.Subito(Fatto::Click, "mnuApri");
    EXPECT_TRUE(b.finestra.archivio.Fr2.Visible());
    EXPECT_EQ(b.finestra.archivio.List1.List(), (Righe{"» ..", "a"}));
}

TEST(MenuApri, WhileThePanelIsOpenLeavesTheSelectionAlone) {
    BancoPannello b;
    b.finestra.archivio.Fr2.Visible = true;
    b.PonFile("a", "");
    b.file.contenuti[std::string(BancoComposer::demo) + "b.mel"] = "";
    b.finestra.archivio.mnuApri_Click();
    EXPECT_EQ(b.finestra.archivio.List1.ListIndex(), 1);
    EXPECT_EQ(b.finestra.archivio.List1.List(), (Righe{"» ..", "a"}));
}

TEST(MenuApri, FillsAnOpenPanelThatIsEmpty) {
    BancoPannello b;
    b.finestra.archivio.mnuApri_Click();
    b.finestra.archivio.List1.Clear();
    b.finestra.archivio.mnuApri_Click();
    EXPECT_EQ(b.finestra.archivio.List1.List(), Righe{"» .."});
}

TEST(EseguiFile, WithoutAChosenRowDoesNothing) {
    BancoPannello b;
    b.Voce(soprano, "60;", "1");
    b.finestra.archivio.ListaFD();
    b.finestra.archivio.cmdEseguiFile_Click();
    EXPECT_EQ(b.globali.percorsoCorrente, BancoComposer::demo);
    EXPECT_FALSE(b.melodia.voci[soprano].Vuota());
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(EseguiFile, EntersAFolderAlsoOneWithAPointAndTheMelodyStays) {
    BancoPannello b;
    b.Voce(soprano, "60;", "1");
    b.file.cartelle = {"/m", "/m/a.b", "/m/a.b/c"};
    b.RigheDi("/m/");
    b.Entra("» a.b");
    EXPECT_EQ(b.globali.percorsoCorrente, "/m/a.b/");
    EXPECT_EQ(b.finestra.archivio.List1.List(), (Righe{"» ..", "» c"}));
    EXPECT_EQ(b.finestra.archivio.lblPercorso.Caption(), "/m/a.b/");
    EXPECT_FALSE(b.melodia.voci[soprano].Vuota());
}

TEST(EseguiFile, TheParentsRowCutsTheLastFolderOff) {
    BancoPannello b;
    b.file.cartelle = {"/m", "/m/a", "/m/a/c"};
    b.RigheDi("/m/a/c/");
    b.Entra("» ..");
    EXPECT_EQ(b.globali.percorsoCorrente, "/m/a/");
    EXPECT_EQ(b.finestra.archivio.List1.List(), (Righe{"» ..", "» c"}));
    b.Entra("» ..");
    b.Entra("» ..");
    EXPECT_EQ(b.globali.percorsoCorrente, "/");
    EXPECT_EQ(b.finestra.archivio.List1.List(), Righe{"» m"});
}

TEST(EseguiFile, AMelodyIsLoadedFromTheFolderThatWasEntered) {
    BancoPannello b;
    b.file.cartelle = {"/m", "/m/a"};
    b.file.contenuti["/m/a/x.mel"] = FileDi(dueVoci);
    b.RigheDi("/m/");
    b.Entra("» a");
    b.Entra("x");
    EXPECT_EQ(b.melodia.voci[soprano].testoNote, "60;62;64;65;");
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(ListaFD, AnExtensionInCapitalsIsAMelodysToo) {
    BancoPannello b;
    for (const char* nome : {"OLD.MEL", "new.mel", "x.Mel", "x.mel", "MEL"})
        b.file.contenuti[std::string("/m/") + nome] = "";
    EXPECT_EQ(b.RigheDi("/m/"), (Righe{"» ..", "new", "OLD", "x"}));
}

TEST(ListaFD, FilesOfOneNameAreOneRowAlsoWhenAnotherStandsBetweenThem) {
    BancoPannello b;
    for (const char* nome : {"x.MEL", "x.a.mel", "x.mel"})
        b.file.contenuti[std::string("/m/") + nome] = "";
    EXPECT_EQ(b.RigheDi("/m/"), (Righe{"» ..", "x", "x.a"}));
}

TEST(CmdEseguiFile, AFileWithItsExtensionInCapitalsIsLoadedAndSavedAsTheFileItIs) {
    BancoPannello b;
    std::string& vecchio = b.file.contenuti[std::string(b.demo) + "OLD.MEL"];
    vecchio = FileDi({"60;", "1;", "n;", " 60 ", " 16 "});
    b.finestra.archivio.ListaFD();
    b.Entra("OLD");
    EXPECT_TRUE(b.riquadri.messaggi.empty());
    EXPECT_EQ(b.melodia.voci[soprano].testoNote, "60;");
    b.Voce(soprano, "62;", "1");
    b.finestra.archivio.SalvaMelodia("OLD");
    EXPECT_EQ(vecchio, FileDi({"62;", "1;", "n;", " 60 ", " 16 "}));
    EXPECT_EQ(b.finestra.archivio.List1.List(), (Righe{"» ..", "OLD"}));
}

}  // namespace corvana::prova
