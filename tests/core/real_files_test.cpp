#include "core/real_files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <fstream>
#include <thread>
#include <vector>

#include "core/settings.h"
#include "tests/core/temporary_folder.h"
#include "tests/support/full_disk.h"
#include "tests/support/scripted_boxes.h"

namespace corvana::prova {

namespace {

std::string Contenuto(const std::string& percorso) {
    std::ifstream file(percorso, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace

TEST(FileReali, WhatWasWrittenIsReadByteForByte) {
    const CartellaProvvisoria cartella;
    FileReali file;
    std::string byte;
    for (int i = 0; i < 300000; ++i)
        byte += static_cast<char>(i * 7);
    EXPECT_EQ(file.ScriviAtomico(cartella.Di("a"), byte), 0);
    std::string letto = "old";
    EXPECT_EQ(file.Leggi(cartella.Di("a"), letto), 0);
    EXPECT_EQ(letto, byte);
}

TEST(FileReali, AWriteReplacesTheContentWholeAndLeavesNoTemporary) {
    const CartellaProvvisoria cartella;
    FileReali file;
    file.ScriviAtomico(cartella.Di("a"), "a long old content");
    EXPECT_EQ(file.ScriviAtomico(cartella.Di("a"), "new"), 0);
    EXPECT_EQ(Contenuto(cartella.Di("a")), "new");
    EXPECT_EQ(file.ScriviAtomico(cartella.Di("a"), ""), 0);
    EXPECT_EQ(Contenuto(cartella.Di("a")), "");
    EXPECT_EQ(cartella.Quanti(), 1);
}

TEST(FileReali, AFullDiskLeavesTheOldContentAndNoTemporary) {
    const CartellaProvvisoria cartella;
    FileReali file;
    ASSERT_EQ(file.ScriviAtomico(cartella.Di("a"), "old"), 0);
    {
        const DiscoPieno pieno(1000);
        EXPECT_EQ(file.ScriviAtomico(cartella.Di("a"), std::string(100000, 'n')), EFBIG);
    }
    EXPECT_EQ(Contenuto(cartella.Di("a")), "old");
    EXPECT_EQ(cartella.Quanti(), 1);
}

TEST(FileReali, AWriteBelowWhatIsNoFolderTellsItsError) {
    const CartellaProvvisoria cartella;
    FileReali file;
    file.ScriviAtomico(cartella.Di("a"), "x");
    EXPECT_EQ(file.ScriviAtomico(cartella.Di("a/b"), "y"), ENOTDIR);
    EXPECT_EQ(file.ScriviAtomico(cartella.Di("none/b"), "y"), ENOENT);
    EXPECT_EQ(cartella.Quanti(), 1);
}

TEST(FileReali, AWriteOntoAFolderTellsItsErrorAndLeavesNoTemporary) {
    const CartellaProvvisoria cartella;
    FileReali file;
    ASSERT_EQ(file.CreaCartella(cartella.Di("f")), 0);
    EXPECT_EQ(file.ScriviAtomico(cartella.Di("f"), "y"), EISDIR);
    EXPECT_EQ(cartella.Quanti(), 1);
}

TEST(FileReali, OfTwoProgramsThatWriteOneFileEachHasACopyOfItsOwn) {
    const CartellaProvvisoria cartella;
    FileReali file;
    std::ofstream altro(cartella.Di("a.nuovo"));
    altro << "half of " << std::flush;
    EXPECT_EQ(file.ScriviAtomico(cartella.Di("a"), "mine"), 0);
    altro << "another's" << std::flush;
    EXPECT_EQ(Contenuto(cartella.Di("a")), "mine");
    EXPECT_EQ(Contenuto(cartella.Di("a.nuovo")), "half of another's");
    EXPECT_EQ(cartella.Quanti(), 2);
}

TEST(FileReali, WhoReadsAFileThatManyWriteFindsItWholeAtEachInstant) {
    const CartellaProvvisoria cartella;
    const std::string percorso = cartella.Di("a");
    FileReali().ScriviAtomico(percorso, "a");
    std::vector<std::thread> scrittori;
    for (const std::size_t chi : {1U, 2U, 3U})
        scrittori.emplace_back([&percorso, chi] {
            FileReali file;
            for (int volta = 0; volta < 20; ++volta)
                ASSERT_EQ(file.ScriviAtomico(percorso, std::string(chi * 50'000, "abcd"[chi])), 0);
        });
    FileReali file;
    for (int volta = 0; volta < 200; ++volta) {
        std::string letto;
        ASSERT_EQ(file.Leggi(percorso, letto), 0);
        const std::size_t chi = letto[0] - 'a';
        ASSERT_EQ(letto, std::string(std::max<std::size_t>(chi * 50'000, 1), "abcd"[chi]));
    }
    for (std::thread& scrittore : scrittori)
        scrittore.join();
    EXPECT_EQ(cartella.Quanti(), 1);
}

TEST(FileReali, WhatLiesInTheWayOfACopyIsLeftAlone) {
    const CartellaProvvisoria cartella;
    FileReali file;
    std::filesystem::create_symlink("/dev/full", cartella.Di("a.nuovo"));
    std::filesystem::create_directory(cartella.Di("a.nuovo2"));
    ASSERT_EQ(mkfifo(cartella.Di("a.nuovo3").c_str(), 0600), 0);
    EXPECT_EQ(file.ScriviAtomico(cartella.Di("a"), "new"), 0);
    EXPECT_EQ(Contenuto(cartella.Di("a")), "new");
    EXPECT_TRUE(std::filesystem::is_symlink(cartella.Di("a.nuovo")));
    EXPECT_EQ(cartella.Quanti(), 4);
}

TEST(FileReali, AFileThatIsReplacedKeepsWhoMayDoWhatWithIt) {
    const CartellaProvvisoria cartella;
    FileReali file;
    file.ScriviAtomico(cartella.Di("a"), "old");
    for (const mode_t diritti : {0600U, 0664U, 0640U}) {
        ASSERT_EQ(chmod(cartella.Di("a").c_str(), diritti), 0);
        EXPECT_EQ(file.ScriviAtomico(cartella.Di("a"), "new"), 0);
        struct stat dati {};
        stat(cartella.Di("a").c_str(), &dati);
        EXPECT_EQ(dati.st_mode & ACCESSPERMS, diritti);
    }
}

TEST(FileReali, ALinkStaysALinkAndWhatItLeadsToIsReplaced) {
    const CartellaProvvisoria cartella;
    FileReali file;
    file.CreaCartella(cartella.Di("away"));
    file.ScriviAtomico(cartella.Di("away/a"), "old");
    std::filesystem::create_symlink("away/a", cartella.Di("link"));
    EXPECT_EQ(file.ScriviAtomico(cartella.Di("link"), "new"), 0);
    EXPECT_TRUE(std::filesystem::is_symlink(cartella.Di("link")));
    EXPECT_EQ(Contenuto(cartella.Di("away/a")), "new");
    EXPECT_EQ(file.ScriviSeLibero(cartella.Di("link"), "newer"), EEXIST);
    EXPECT_EQ(Contenuto(cartella.Di("away/a")), "new");
}

TEST(FileReali, ALinkThatLeadsToNoFileGivesItsPlaceToTheFile) {
    const CartellaProvvisoria cartella;
    FileReali file;
    file.CreaCartella(cartella.Di("folder"));
    for (const char* dove : {"nowhere", "folder", "/dev/null", "link"}) {
        std::filesystem::create_symlink(dove, cartella.Di("link"));
        EXPECT_EQ(file.ScriviSeLibero(cartella.Di("link"), "new"), EEXIST) << dove;
        EXPECT_EQ(file.ScriviAtomico(cartella.Di("link"), "new"), 0) << dove;
        EXPECT_TRUE(
            std::filesystem::is_regular_file(std::filesystem::symlink_status(cartella.Di("link"))));
        file.Elimina(cartella.Di("link"));
    }
    EXPECT_TRUE(std::filesystem::is_empty(cartella.Di("folder")));
}

TEST(FileReali, ReadingTellsWhatFailedAndGivesNothing) {
    const CartellaProvvisoria cartella;
    FileReali file;
    std::string contenuto = "old";
    EXPECT_EQ(file.Leggi(cartella.Di("none"), contenuto), ENOENT);
    EXPECT_EQ(contenuto, "");
    EXPECT_EQ(file.Leggi(cartella.Di(""), contenuto), EISDIR);
}

TEST(FileReali, APipeIsToldAndNeverWaitedFor) {
    const CartellaProvvisoria cartella;
    FileReali file;
    ASSERT_EQ(mkfifo(cartella.Di("x").c_str(), 0600), 0);
    std::string contenuto = "old";
    EXPECT_EQ(file.Leggi(cartella.Di("x"), contenuto), EINVAL);
    EXPECT_EQ(contenuto, "");
    EXPECT_EQ(file.Leggi("/dev/zero", contenuto), EINVAL);
    EXPECT_FALSE(file.Esiste(cartella.Di("x")));
}

TEST(FileReali, AFileLongerThanTheLimitIsntReadAndOneOfItIs) {
    const CartellaProvvisoria cartella;
    FileReali file;
    for (const std::size_t limite : {0U, 1U, 65535U, 65536U, 65537U, 200000U}) {
        file.ScriviAtomico(cartella.Di("a"), std::string(limite, 'x'));
        std::string contenuto = "old";
        EXPECT_EQ(file.Leggi(cartella.Di("a"), contenuto, limite), 0) << limite;
        EXPECT_EQ(contenuto.size(), limite);
        file.ScriviAtomico(cartella.Di("a"), std::string(limite + 1, 'x'));
        EXPECT_EQ(file.Leggi(cartella.Di("a"), contenuto, limite), EFBIG) << limite;
        EXPECT_EQ(contenuto, "");
        EXPECT_EQ(file.Leggi(cartella.Di("a"), contenuto), 0);
    }
}

TEST(FileReali, AFileTakesAnotherNameAndReplacesWhatHadIt) {
    const CartellaProvvisoria cartella;
    FileReali file;
    file.ScriviAtomico(cartella.Di("a"), "x");
    file.ScriviAtomico(cartella.Di("b"), "older");
    EXPECT_EQ(file.Rinomina(cartella.Di("a"), cartella.Di("b")), 0);
    EXPECT_EQ(Contenuto(cartella.Di("b")), "x");
    EXPECT_EQ(cartella.Quanti(), 1);
    EXPECT_EQ(file.Rinomina(cartella.Di("a"), cartella.Di("c")), ENOENT);
}

TEST(FileReali, AFolderTakesAnotherNameAndThePlaceOfAnEmptyOneAlone) {
    const CartellaProvvisoria cartella;
    FileReali file;
    file.CreaCartella(cartella.Di("new"));
    file.CreaCartella(cartella.Di("empty"));
    file.CreaCartella(cartella.Di("full"));
    file.ScriviAtomico(cartella.Di("new/a"), "1");
    file.ScriviAtomico(cartella.Di("full/a"), "2");
    EXPECT_EQ(file.Rinomina(cartella.Di("new/"), cartella.Di("full/")), ENOTEMPTY);
    EXPECT_EQ(Contenuto(cartella.Di("full/a")), "2");
    EXPECT_EQ(file.Rinomina(cartella.Di("new/"), cartella.Di("empty/")), 0);
    EXPECT_EQ(file.Rinomina(cartella.Di("empty/"), cartella.Di("gone/")), 0);
    EXPECT_EQ(Contenuto(cartella.Di("gone/a")), "1");
}

TEST(FileReali, ANameThatIsAnybodysIsntTakenFromHim) {
    const CartellaProvvisoria cartella;
    FileReali file;
    file.ScriviAtomico(cartella.Di("a"), "1");
    file.ScriviAtomico(cartella.Di("file"), "2");
    file.CreaCartella(cartella.Di("folder"));
    std::filesystem::create_symlink("nowhere", cartella.Di("link"));
    ASSERT_EQ(mkfifo(cartella.Di("pipe").c_str(), 0600), 0);
    for (const char* nome : {"file", "folder", "link", "pipe"})
        EXPECT_EQ(file.RinominaSeLibero(cartella.Di("a"), cartella.Di(nome)), EEXIST) << nome;
    EXPECT_EQ(Contenuto(cartella.Di("a")), "1");
    EXPECT_EQ(Contenuto(cartella.Di("file")), "2");
    EXPECT_TRUE(std::filesystem::is_symlink(cartella.Di("link")));
    EXPECT_TRUE(std::filesystem::is_fifo(cartella.Di("pipe")));
    EXPECT_EQ(file.RinominaSeLibero(cartella.Di("a"), cartella.Di("A")), 0);
    EXPECT_EQ(Contenuto(cartella.Di("A")), "1");
    EXPECT_EQ(file.RinominaSeLibero(cartella.Di("a"), cartella.Di("b")), ENOENT);
    EXPECT_EQ(file.RinominaSeLibero(cartella.Di("A"), cartella.Di(std::string(300, 'x'))),
              ENAMETOOLONG);
}

TEST(FileReali, OnlyAFileExistsAsAFile) {
    const CartellaProvvisoria cartella;
    FileReali file;
    EXPECT_FALSE(file.Esiste(cartella.Di("a")));
    EXPECT_FALSE(file.Esiste(cartella.Di("")));
    file.ScriviAtomico(cartella.Di("a"), "");
    EXPECT_TRUE(file.Esiste(cartella.Di("a")));
}

TEST(FileReali, AFolderIsMadeWithThoseAboveItAndMayBeThere) {
    const CartellaProvvisoria cartella;
    FileReali file;
    EXPECT_EQ(file.CreaCartella(cartella.Di("a/b/c")), 0);
    EXPECT_EQ(file.CreaCartella(cartella.Di("a/b/c")), 0);
    EXPECT_TRUE(std::filesystem::is_directory(cartella.Di("a/b/c")));
    file.ScriviAtomico(cartella.Di("file"), "");
    EXPECT_EQ(file.CreaCartella(cartella.Di("file/c")), ENOTDIR);
}

TEST(ImpostazioniSuDisco, AreMadeInAFolderThatIsMadeWithThem) {
    const CartellaProvvisoria cartella;
    FileReali file;
    RiquadriDaCopione riquadri;
    Impostazioni impostazioni(file, riquadri, cartella.Di("config/corvana/settings"));
    impostazioni.Prepara();
    EXPECT_EQ(Contenuto(cartella.Di("config/corvana/settings")),
              "Language=\nCorvanaLastS=\nLastDir=\nIntoLastS=\n");
    impostazioni.ScriviValore("LastDir", "/perché\n");
    EXPECT_EQ(impostazioni.LeggiValore("LastDir"), "/perché\n");
    EXPECT_TRUE(riquadri.messaggi.empty());
}

TEST(ImpostazioniSuDisco, TellTheSystemsErrorCodes) {
    const CartellaProvvisoria cartella;
    FileReali file;
    RiquadriDaCopione riquadri;
    Impostazioni assenti(file, riquadri, cartella.Di("none"));
    Impostazioni cartelle(file, riquadri, cartella.Di(""));
    EXPECT_EQ(assenti.LeggiValore("Language"), "");
    EXPECT_EQ(cartelle.LeggiValore("Language"), "");
    EXPECT_EQ(riquadri.messaggi,
              (std::vector<std::string>{"Error1 Opening key: 2",
                                        "Error1 Opening key: " + std::to_string(EISDIR)}));
    assenti.ScriviValore("Language", "en");
    EXPECT_EQ(cartella.Quanti(), 0);
}

TEST(ImpostazioniSuDisco, FiftyMegabytesArePutAsideUnread) {
    const CartellaProvvisoria cartella;
    FileReali file;
    RiquadriDaCopione riquadri;
    file.ScriviAtomico(cartella.Di("settings"), std::string(50'000'000, '\n'));
    Impostazioni impostazioni(file, riquadri, cartella.Di("settings"));
    impostazioni.Prepara();
    impostazioni.Prepara();
    EXPECT_EQ(riquadri.messaggi,
              std::vector<std::string>{"Error1 Opening key: " + std::to_string(EFBIG)});
    EXPECT_EQ(Contenuto(cartella.Di("settings")),
              "Language=\nCorvanaLastS=\nLastDir=\nIntoLastS=\n");
    EXPECT_EQ(std::filesystem::file_size(cartella.Di("settings.damaged")), 50'000'000U);
}

}  // namespace corvana::prova
