// Melodies brought from a removable medium into the current folder.
#include "composer/copy_from_a.h"

#include <gtest/gtest.h>

#include "tests/composer/import_rig.h"

namespace corvana::prova {

namespace {

using Avvisi = std::vector<std::string>;

/// Files that do something while one is read.
class FileConEvento final : public FileInMemoria {
public:
    std::function<void()> durante;

    int Leggi(const std::string& percorso, std::string& contenuto, std::size_t limite) override {
        if (durante) durante();
        return FileInMemoria::Leggi(percorso, contenuto, limite);
    }
};

}  // namespace

TEST(Importa, OpensOverTheMelodyWindowALittleDownAndToTheRight) {
    BancoImporta b;
    b.finestra.Left = 300;
    b.finestra.Top = -45;
    b.Apri();
    EXPECT_EQ(b.importa.Left(), 800);
    EXPECT_EQ(b.importa.Top(), 455);
    EXPECT_TRUE(b.importa.Collocata());
}

TEST(Importa, ShowsTheCurrentFolderAndGivesTheFocusToTheButtonThatCloses) {
    BancoImporta b;
    b.specchio.fuochi.clear();
    b.Apri();
    EXPECT_EQ(b.importa.lblCurrPath.Caption(), "/home/mine/");
    EXPECT_EQ(b.specchio.fuochi, Avvisi{"cmdChiudi"});
    EXPECT_EQ(b.importa.HelpContextID(), 67);
}

TEST(Importa, SpeaksTheLanguageThatIsInUse) {
    BancoImporta b;
    b.globali.PercorsoLingua = "/lang.csv";
    b.file.contenuti["/lang.csv"] =
        "375;frmCopyFromA;t\n376;frmCopyFromA;l\n377;frmCopyFromA;c\n378;frmCopyFromA;x\n";
    b.Apri();
    EXPECT_EQ(b.importa.Caption(), "t");
    EXPECT_EQ(b.importa.Label1.Caption(), "l");
    EXPECT_EQ(b.importa.cmdCopia.Caption(), "c");
    EXPECT_EQ(b.importa.cmdChiudi.ToolTipText(), "x");
    EXPECT_EQ(b.importa.cmdChiudi.Caption(), "Chiudi");
}

TEST(Importa, ListsTheMelodiesOfTheMediumsRootAndNothingElse) {
    BancoImporta b;
    b.Sul("b.mel", "");
    b.Sul("A.MEL", "");
    b.Sul("text.txt", "");
    b.Sul("below/c.mel", "");
    b.file.cartelle.insert("/media/stick/folder.mel");
    b.Apri();
    EXPECT_EQ(b.importa.List1.List(), (Righe{"A", "b"}));
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(Importa, ANameWithMoreDotsKeepsEverythingBeforeTheLastOne) {
    BancoImporta b;
    b.Sul("a.b.c.mel", "byte");
    b.Apri();
    EXPECT_EQ(b.importa.List1.List(), (Righe{"a.b.c"}));
    b.Copia({0});
    EXPECT_EQ(b.Copiato("a.b.c.mel"), "byte");
}

TEST(Importa, AnEmptyMediumGivesAnEmptyListAndNoMessage) {
    BancoImporta b;
    b.Apri();
    EXPECT_EQ(b.importa.List1.List(), Righe{});
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(Importa, WithoutAMediumTheBoxShowsAndTheWindowStaysOpenWithAnEmptyList) {
    BancoImporta b;
    b.file.supportoRimovibile.clear();
    b.file.contenuti["x.mel"] = "";
    b.Apri();
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{"71\r\n" + ParoleSistema(ENOMEDIUM)});
    EXPECT_EQ(b.importa.List1.List(), Righe{});
    EXPECT_TRUE(b.Aperta());
    b.Subito(Fatto::Click, "cmdChiudi");
    EXPECT_FALSE(b.Aperta()) << "it isn't busy any more";
}

TEST(Importa, AMediumThatFailsInTheMiddleOfTheListingLeavesTheRowsThatItGaveAndTheBox) {
    BancoImporta b;
    b.Sul("a.mel", "");
    b.file.erroreElenca = EIO;
    b.Apri();
    EXPECT_EQ(b.importa.List1.List(), Righe{"a"});
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{"71\r\n" + ParoleSistema(EIO)});
}

TEST(Importa, EachActivationAddsToTheListAndPlacesTheWindowAnew) {
    BancoImporta b;
    b.Sul("a.mel", "");
    b.Apri();
    b.Segna({0});
    b.Sul("b.mel", "");
    b.importa.Left = 0;
    b.globali.percorsoCorrente = "/elsewhere/";
    b.importa.Form_Activate();
    EXPECT_EQ(b.importa.List1.List(), (Righe{"a", "a", "b"}));
    EXPECT_EQ(b.importa.List1.Selected(), (NumeriRiga{0}));
    EXPECT_EQ(b.importa.Left(), b.finestra.Left() + 500);
    EXPECT_EQ(b.importa.lblCurrPath.Caption(), "/elsewhere/");
}

TEST(Importa, CopiesTheSelectedRowsAsTheyAreAndListsTheFolderAnew) {
    BancoImporta b;
    const std::string strano("\x00\xff\r\n\x80 60;", 9);
    b.Sul("a.mel", strano);
    b.Sul("b.mel", "no");
    b.Sul("c.mel", "");
    b.Apri();
    b.Copia({0, 2});
    EXPECT_EQ(b.Copiato("a.mel"), strano);
    EXPECT_EQ(b.Copiato("b.mel"), "no such file");
    EXPECT_EQ(b.Copiato("c.mel"), "");
    EXPECT_EQ(b.elencata, 1);
    EXPECT_EQ(b.finestra.archivio.List1.List(), (Righe{"» ..", "a", "c"}));
    EXPECT_TRUE(b.riquadri.messaggi.empty());
    EXPECT_TRUE(b.Aperta());
}

TEST(Importa, WithoutASelectionNothingHappens) {
    BancoImporta b;
    b.Sul("a.mel", "x");
    b.Apri();
    b.file.supportoRimovibile.clear();
    b.Subito(Fatto::Click, "cmdCopia");
    b.Subito(Fatto::DblClick, "List1");
    EXPECT_EQ(b.elencata, 0);
    EXPECT_EQ(Copiati(b), 0);
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(Importa, ADoubleClickOnARowCopiesThatRowAndAnyOthersSelected) {
    BancoImporta b;
    Riempi(b, 4);
    b.Apri();
    b.Segna({1, 3});
    b.Subito(Fatto::DblClick, "List1");
    EXPECT_EQ(b.Copiato("m1001.mel"), "1");
    EXPECT_EQ(b.Copiato("m1003.mel"), "3");
    EXPECT_EQ(Copiati(b), 2);
    EXPECT_EQ(b.elencata, 1);
}

TEST(Importa, AnExistingFileIsReplacedWithoutAQuestion) {
    BancoImporta b;
    b.Sul("a.mel", "new");
    b.file.contenuti["/home/mine/a.mel"] = "old";
    b.Apri();
    b.Copia({0});
    EXPECT_EQ(b.Copiato("a.mel"), "new");
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(Importa, AFileWhoseExtensionIsInCapitalsIsTheOneThatHasTheNameOnBothSides) {
    BancoImporta b;
    b.Sul("A.MEL", "medium");
    b.Sul("b.MEL", "b");
    b.file.contenuti["/home/mine/b.Mel"] = "old";
    b.Apri();
    b.Copia({0, 1});
    EXPECT_EQ(b.Copiato("A.mel"), "medium");
    EXPECT_EQ(b.Copiato("b.Mel"), "b");
    EXPECT_EQ(b.Copiato("b.mel"), "no such file") << "there is one file of that name";
}

TEST(Importa, TheListedRowsComeFromTheMediumThatIsThereWhenTheyAreCopied) {
    BancoImporta b;
    b.Sul("a.mel", "first");
    b.Apri();
    b.file.contenuti["/media/other/a.mel"] = "second";
    b.file.supportoRimovibile = "/media/other/";
    b.Copia({0});
    EXPECT_EQ(b.Copiato("a.mel"), "second");
}

TEST(Importa, ThePointerWaitsWhileItCopiesAndIsBackAfterwards) {
    BancoImporta b;
    b.Sul("a.mel", "x");
    b.Apri();
    b.Segna({0});
    b.specchio.registra = true;
    b.Subito(Fatto::Click, "cmdCopia");
    std::vector<Valore> forme;
    for (const auto& cambio : b.specchio.cambi)
        if (cambio.nome == &Valori::MousePointer) forme.push_back(cambio.valore);
    EXPECT_EQ(forme, (std::vector<Valore>{11, 0}));
}

TEST(Importa, WhileItIsBusyItRefusesToCloseAndAfterwardsItCloses) {
    FileConEvento archivio;
    archivio.supportoRimovibile = BancoImporta::medio;
    archivio.contenuti["/media/stick/a.mel"] = "x";
    BancoImporta b(archivio);
    b.Apri();
    bool chiusa = true;
    archivio.durante = [&] { chiusa = b.finestre.Scarica(b.importa); };
    b.Copia({0});
    EXPECT_FALSE(chiusa);
    EXPECT_TRUE(b.Aperta());
    EXPECT_EQ(archivio.contenuti["/home/mine/a.mel"], "x");
    EXPECT_TRUE(b.finestre.Scarica(b.importa));
}

TEST(Importa, ACloseThatWasAskedForWhileItCopiedIsDeliveredAfterwards) {
    FileConEvento archivio;
    archivio.supportoRimovibile = BancoImporta::medio;
    archivio.contenuti["/media/stick/a.mel"] = "x";
    BancoImporta b(archivio);
    b.Apri();
    archivio.durante = [&] {
        Evento chiude;
        chiude.fatto = Fatto::Chiudi;
        b.coda.Aggiungi(b.Fatta(chiude, ""));
        archivio.durante = {};
    };
    b.Segna({0});
    b.importa.cmdCopia_Click();
    EXPECT_TRUE(b.Aperta()) << "nothing is delivered meanwhile";
    b.pompa.PompaEventi();
    EXPECT_EQ(b.finestre.Davanti(), &b.finestra);
}

TEST(Importa, AFaultEndsTheCopyingInTheBoxAndWhatWasCopiedStays) {
    BancoImporta b;
    Riempi(b, 3);
    b.Apri();
    b.file.contenuti.erase("/media/stick/m1001.mel");
    b.Copia({0, 1, 2});
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{"2\r\n" + ParoleSistema(ENOENT)});
    EXPECT_EQ(b.puntatori, std::vector<int>{puntatoreNormale}) << "back before the box";
    EXPECT_EQ(b.Copiato("m1000.mel"), "0");
    EXPECT_EQ(Copiati(b), 1);
    EXPECT_EQ(b.elencata, 0) << "the melody window's list isn't read anew";
    EXPECT_TRUE(b.finestre.Scarica(b.importa)) << "it isn't busy any more";
}

TEST(Importa, EachFailureOfTheFileSystemIsToldInItsNumberAndWords) {
    for (const auto& [errore, numero] : {std::pair{ENOSPC, 61},
                                         {EDQUOT, 61},
                                         {EIO, 71},
                                         {ENOMEDIUM, 71},
                                         {EACCES, EACCES},
                                         {EROFS, EROFS}}) {
        BancoImporta b;
        b.Sul("a.mel", "x");
        b.Apri();
        b.file.erroreScrivi = errore;
        b.Copia({0});
        EXPECT_EQ(b.riquadri.messaggi,
                  Avvisi{std::to_string(numero) + "\r\n" + ParoleSistema(errore)});
        EXPECT_EQ(b.Copiato("a.mel"), "no such file");
        EXPECT_EQ(b.importa.MousePointer(), puntatoreNormale);
    }
}

TEST(Importa, AMediumThatWasTakenOutBeforeTheCopyIsOneThatIsntReady) {
    BancoImporta b;
    b.Sul("a.mel", "x");
    b.Apri();
    b.file.supportoRimovibile.clear();
    b.Copia({0});
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{"71\r\n" + ParoleSistema(ENOMEDIUM)});
    EXPECT_EQ(b.importa.List1.List(), Righe{"a"});
}

TEST(Importa, TheEndOfTheProgramClosesItWhileItsBoxIsUp) {
    BancoImporta b;
    b.file.supportoRimovibile.clear();
    b.riquadri.durante = [&](const std::string&) { throw FineProgramma(); };
    b.finestre.FinoAllUltima([&] { b.finestre.MostraModale(b.importa); });
    EXPECT_EQ(b.finestre.Davanti(), nullptr);
}

}  // namespace corvana::prova
