// The roots that the list of melodies offers, and the ways from one folder into another.
#include <gtest/gtest.h>

#include "tests/composer/file_rig.h"

namespace corvana::prova {

namespace {

/// A user with a home, documents in it, and a medium in the machine.
struct BancoRadici : BancoFile {
    BancoRadici() {
        globali.CartellaUtente = "/home/u/";
        globali.CartellaDocumenti = "/home/u/Doc/";
        file.supportoRimovibile = "/media/u/stick/";
        for (const char* cartella : {"/home", "/home/u", "/home/u/Doc", "/home/u/Doc/mine",
                                     "/media", "/media/u", "/media/u/stick"})
            file.cartelle.insert(cartella);
        file.contenuti["/home/u/Doc/tune.mel"] = "";
    }
    /// Fills list and roots for that folder.
    void Mostra(const std::string& percorso) {
        globali.percorsoCorrente = percorso;
        finestra.archivio.ListaD();
        finestra.archivio.ListaFD();
    }
    /// The user's choice of a root.
    void ScegliRadice(int riga) { Subito(Fatto::Click, "cmbDrive", riga); }
    const Combo& Radici() const { return finestra.archivio.cmbDrive; }
    const std::string& Percorso() const { return globali.percorsoCorrente; }
};

const Righe tutte = {"/", "/home/u/", "/home/u/Doc/", "/media/u/stick/"};

}  // namespace

TEST(ListaD, OffersTheRootTheHomeTheDocumentsAndTheMedia) {
    BancoRadici b;
    b.Mostra("/m/");
    EXPECT_EQ(b.Radici().List(), tutte);
}

TEST(ListaD, LeavesOutWhatIsntThereAndWhatIsThereTwice) {
    BancoRadici b;
    b.file.cartelle.erase("/home/u/Doc");
    b.Mostra("/m/");
    EXPECT_EQ(b.Radici().List(), (Righe{"/", "/home/u/", "/media/u/stick/"}));
    b.globali.CartellaDocumenti = "/home/u/";
    b.globali.CartellaUtente = "/home/u";
    b.file.supportoRimovibile.clear();
    b.Mostra("/m/");
    EXPECT_EQ(b.Radici().List(), (Righe{"/", "/home/u/"}));
    b.globali.CartellaDocumenti = b.globali.CartellaUtente = "";
    b.Mostra("/m/");
    EXPECT_EQ(b.Radici().List(), Righe{"/"});
}

TEST(ListaD, ShowsTheLongestRootInWhichTheFolderLiesAndTheFolderStays) {
    const std::vector<std::pair<std::string, std::string>> percorsi = {
        {"/m/", "/"},
        {"/home/", "/"},
        {"/home/u/", "/home/u/"},
        {"/home/u/Music/", "/home/u/"},
        {"/home/u/Doc/mine/", "/home/u/Doc/"},
        {"/home/u/Docs/", "/home/u/"},
        {"/media/u/stick/a/", "/media/u/stick/"}};
    for (const auto& [percorso, radice] : percorsi) {
        BancoRadici b;
        b.Mostra(percorso);
        EXPECT_EQ(b.Radici().Text(), radice) << percorso;
        EXPECT_EQ(b.Percorso(), percorso);
        EXPECT_FALSE(b.finestra.archivio.riempiDrive);
    }
}

TEST(ListaD, WithoutAnyRootStopsAndNoChoiceLeadsAnywhereUntilTheNextCompleteRun) {
    BancoRadici b;
    b.Mostra("/m/");
    b.file.radice = false;
    b.file.cartelle = {"/m"};
    b.finestra.archivio.ListaD();
    EXPECT_TRUE(b.finestra.archivio.riempiDrive);
    EXPECT_EQ(b.Radici().List(), tutte);
    b.ScegliRadice(1);
    EXPECT_EQ(b.Percorso(), "/m/");
    b.file.radice = true;
    b.finestra.archivio.ListaD();
    EXPECT_FALSE(b.finestra.archivio.riempiDrive);
    b.ScegliRadice(0);
    EXPECT_EQ(b.Percorso(), "/");
}

TEST(ListaD, DuringAPlayStaysAsItStood) {
    BancoRadici b;
    b.Mostra("/m/");
    b.Voce(soprano, "60;", "1");
    b.NelTick(3, [&b] {
        b.file.supportoRimovibile.clear();
        b.finestra.archivio.ListaD();
    });
    b.Suona();
    EXPECT_EQ(b.Radici().List(), tutte);
}

TEST(MenuApri, FillsTheRootsToo) {
    BancoRadici b;
    b.finestra.archivio.cmdChiudi_Click();
    b.finestra.archivio.cmbDrive.Clear();
    b.Subito(Fatto::Click, "mnuApri");
    EXPECT_EQ(b.Radici().List(), tutte);
    EXPECT_EQ(b.Radici().Text(), "/");
}

TEST(CmbDrive, AChoiceLeadsToThatRoot) {
    BancoRadici b;
    b.Mostra("/m/");
    b.ScegliRadice(2);
    EXPECT_EQ(b.Percorso(), "/home/u/Doc/");
    EXPECT_EQ(b.Elenco(), (Righe{"» ..", "» mine", "tune"}));
    EXPECT_EQ(b.finestra.archivio.lblPercorso.Caption(), "/home/u/doc/");
    EXPECT_EQ(b.Radici().Text(), "/home/u/Doc/");
}

TEST(CmbDrive, OnADriveWithNoDiskTheListEmptiesAndNoMessageComes) {
    BancoRadici b;
    b.Mostra("/m/");
    b.file.cartelle = {};
    b.file.contenuti.clear();
    b.file.erroreElenca = EIO;
    b.ScegliRadice(0);
    EXPECT_EQ(b.Elenco(), Righe{});
    b.ScegliRadice(3);
    EXPECT_EQ(b.Elenco(), Righe{"» .."});
    EXPECT_EQ(b.Percorso(), "/media/u/stick/");
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(CmbDrive, DuringAPlayLeadsNowhereAndShowsTheFoldersRootAgain) {
    BancoRadici b;
    b.Mostra("/m/");
    b.Voce(soprano, "60;", "1");
    b.NelTick(3, [&b] { b.ScegliRadice(2); });
    b.Suona();
    EXPECT_EQ(b.Percorso(), "/m/");
    EXPECT_EQ(b.Radici().Text(), "/");
}

TEST(CmbDrive, AChoiceOfARowThatIsntThereLeadsNowhere) {
    BancoRadici b;
    b.finestra.archivio.cmbDrive.Clear();
    b.ScegliRadice(2);
    EXPECT_EQ(b.Percorso(), "/m/");
}

TEST(CmbDrive, FollowsTheWayIntoAnotherRootAndOutOfIt) {
    BancoRadici b;
    b.Mostra("/home/u/");
    b.Scegli("» Doc");
    b.finestra.archivio.cmdEseguiFile_Click();
    EXPECT_EQ(b.Radici().Text(), "/home/u/Doc/");
    for (const char* radice : {"/home/u/", "/", "/"}) {
        b.Scegli("» ..");
        b.finestra.archivio.cmdEseguiFile_Click();
        EXPECT_EQ(b.Radici().Text(), radice);
    }
    EXPECT_EQ(b.Percorso(), "/");
}

TEST(List1, ADoubleClickEntersAFolder) {
    BancoFile b;
    b.Scegli("» full");
    b.Subito(Fatto::DblClick, "List1");
    EXPECT_EQ(b.globali.percorsoCorrente, "/m/full/");
    EXPECT_EQ(b.Elenco(), (Righe{"» ..", "x"}));
}

TEST(List1, ADoubleClickLoadsAMelodyAndPlaysIt) {
    BancoFile b;
    b.file.contenuti["/m/song.mel"] = FileDi(dueVoci);
    b.Scegli("song");
    b.uscita.messaggi.clear();
    b.Subito(Fatto::DblClick, "List1");
    EXPECT_EQ(b.melodia.voci[soprano].testoNote, "60;62;64;65;");
    EXPECT_FALSE(b.uscita.messaggi.empty());
}

TEST(List1, ADoubleClickDuringAPlayDoesNothing) {
    for (const char* riga : {"» full", "song"}) {
        BancoFile b;
        b.file.contenuti["/m/song.mel"] = FileDi(dueVoci);
        b.Voce(soprano, "72;74;", "1");
        b.Scegli(riga);
        b.NelTick(3, [&b] { b.Subito(Fatto::DblClick, "List1"); });
        b.Suona();
        EXPECT_EQ(b.melodia.voci[soprano].testoNote, "72;74;");
        EXPECT_EQ(b.globali.percorsoCorrente, "/m/");
    }
}

TEST(CmdEseguiFile, DuringAPlayAFolderIsntEnteredSinceItsRowsCouldntBeShown) {
    BancoFile b;
    b.Voce(soprano, "72;74;", "1");
    b.Scegli("» full");
    b.CliccaNelTick(3, "cmdEseguiFile");
    b.Suona();
    EXPECT_EQ(b.globali.percorsoCorrente, "/m/");
    b.EsceComEra();
}

TEST(CmdEseguiFile, DuringAPlayAMelodyStopsItAndPlays) {
    BancoFile b;
    b.file.contenuti["/m/song.mel"] = FileDi(dueVoci);
    b.Voce(soprano, "72;74;", "1");
    b.Scegli("song");
    b.CliccaNelTick(3, "cmdEseguiFile");
    b.Suona();
    EXPECT_EQ(b.melodia.voci[soprano].testoNote, "60;62;64;65;");
}

TEST(ListaFD, AFailureEndsTheListingWithWhatThereIsAndWithoutAWord) {
    BancoFile b;
    b.file.erroreElenca = EIO;
    b.finestra.archivio.ListaFD();
    b.EsceComEra();
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(ListaFD, AFolderThatVanishesWhileItIsShownStaysUntilSomethingRefreshesTheList) {
    BancoFile b;
    b.file.cartelle.clear();
    b.file.contenuti.clear();
    EXPECT_EQ(b.Elenco().size(), 5U);
    b.Scegli("» full");
    b.finestra.archivio.cmdEseguiFile_Click();
    EXPECT_EQ(b.Elenco(), Righe{"» .."});
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

}  // namespace corvana::prova
