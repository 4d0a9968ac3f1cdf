// Melodies brought from a medium on the machine's own disk, where a folder stands for it.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fstream>

#include "tests/composer/import_rig.h"
#include "tests/core/temporary_folder.h"
#include "tests/support/full_disk.h"
#include "tests/support/medium_on_disk.h"

namespace corvana::prova {

namespace {

using Avvisi = std::vector<std::string>;

std::string Byte(const std::string& percorso) {
    std::ifstream file(percorso, std::ios::binary);
    return file ? std::string{std::istreambuf_iterator<char>(file), {}} : "no such file";
}

void Posa(const std::string& percorso, const std::string& byte) {
    std::ofstream(percorso, std::ios::binary) << byte;
}

struct BancoImportaSuDisco {
    CartellaProvvisoria medio, mia;
    FileConSupporto veri;
    BancoImporta b{veri};

    BancoImportaSuDisco() {
        veri.supporti = {medio.Di("")};
        b.globali.percorsoCorrente = mia.Di("");
    }
};

}  // namespace

TEST(ImportaDalDisco, FilesComeOverWholeAndWhatWasThereIsReplaced) {
    BancoImportaSuDisco d;
    const std::string byte("\x00\xff\r\n60;", 7);
    Posa(d.medio.Di("a.b.mel"), byte);
    Posa(d.medio.Di("C.MEL"), "c");
    Posa(d.medio.Di("d.mel"), "d");
    Posa(d.medio.Di("text.txt"), "no");
    Posa(d.mia.Di("d.mel"), "a longer file than the new one");
    std::filesystem::create_directory(d.medio.Di("folder.mel"));
    d.b.Apri();
    EXPECT_EQ(d.b.importa.List1.List(), (Righe{"a.b", "C", "d"}));
    d.b.Copia({0, 1, 2});
    EXPECT_TRUE(d.b.riquadri.messaggi.empty());
    EXPECT_EQ(Byte(d.mia.Di("a.b.mel")), byte);
    EXPECT_EQ(Byte(d.mia.Di("C.mel")), "c");
    EXPECT_EQ(Byte(d.mia.Di("d.mel")), "d");
    EXPECT_EQ(d.mia.Quanti(), 3) << "and no temporary is left";
    EXPECT_EQ(Byte(d.medio.Di("d.mel")), "d") << "the medium's own stay";
    EXPECT_EQ(d.medio.Quanti(), 5);
    EXPECT_EQ(d.b.finestra.archivio.List1.List(), (Righe{"» ..", "a.b", "C", "d"}));
}

TEST(ImportaDalDisco, AnEmptyMediumGivesAnEmptyListAndNoMessage) {
    BancoImportaSuDisco d;
    d.b.Apri();
    EXPECT_EQ(d.b.importa.List1.List(), Righe{});
    EXPECT_TRUE(d.b.riquadri.messaggi.empty());
}

TEST(ImportaDalDisco, WithoutAMediumTheBoxShowsAndTheWindowStaysOpenWithAnEmptyList) {
    BancoImportaSuDisco d;
    d.veri.supporti.clear();
    d.b.Apri();
    EXPECT_EQ(d.b.riquadri.messaggi, Avvisi{"71\r\n" + ParoleSistema(ENOMEDIUM)});
    EXPECT_EQ(d.b.importa.List1.List(), Righe{});
    EXPECT_TRUE(d.b.Aperta());
}

TEST(ImportaDalDisco, AMediumThatIsGoneAsItIsListedIsToldInTheSystemsWords) {
    BancoImportaSuDisco d;
    d.veri.supporti = {d.medio.Di("gone/")};
    d.b.Apri();
    EXPECT_EQ(d.b.riquadri.messaggi, Avvisi{"2\r\n" + ParoleSistema(ENOENT)});
    EXPECT_TRUE(d.b.Aperta());
}

TEST(ImportaDalDisco, ADoubleClickOnARowCopiesThatRowAndAnyOthersSelected) {
    BancoImportaSuDisco d;
    for (const char* nome : {"a.mel", "b.mel", "c.mel"})
        Posa(d.medio.Di(nome), nome);
    d.b.Apri();
    d.b.Segna({0, 2});
    d.b.Subito(Fatto::DblClick, "List1");
    EXPECT_EQ(Byte(d.mia.Di("a.mel")), "a.mel");
    EXPECT_EQ(Byte(d.mia.Di("c.mel")), "c.mel");
    EXPECT_EQ(d.mia.Quanti(), 2);
}

TEST(ImportaDalDisco, AListOfMoreThan256RowsEndsInTheErrorStepWhenTheCounterOverflows) {
    BancoImportaSuDisco d;
    for (int i = 0; i < 257; ++i)
        Posa(d.medio.Di("m" + std::to_string(1000 + i) + ".mel"), "x");
    d.b.Apri();
    d.b.Copia({0, 255, 256});
    EXPECT_EQ(d.b.riquadri.messaggi, Avvisi{"6\r\nOverflow"});
    EXPECT_EQ(d.mia.Quanti(), 2);
}

TEST(ImportaDalDisco, AFileThatMayNotGrowLeavesTheOldOneWholeAndThoseBeforeItStay) {
    BancoImportaSuDisco d;
    Posa(d.medio.Di("a.mel"), "small");
    Posa(d.medio.Di("b.mel"), std::string(20000, 'x'));
    Posa(d.medio.Di("c.mel"), "never");
    Posa(d.mia.Di("b.mel"), "old");
    d.b.Apri();
    {
        const DiscoPieno pieno(1000);
        d.b.Copia({0, 1, 2});
    }
    EXPECT_EQ(d.b.riquadri.messaggi, Avvisi{std::to_string(EFBIG) + "\r\n" + ParoleSistema(EFBIG)});
    EXPECT_EQ(Byte(d.mia.Di("a.mel")), "small");
    EXPECT_EQ(Byte(d.mia.Di("b.mel")), "old");
    EXPECT_EQ(d.mia.Quanti(), 2);
}

TEST(ImportaDalDisco, AFolderInTheFilesPlaceAndAFolderThatIsGoneAreToldInTheSystemsWords) {
    BancoImportaSuDisco d;
    Posa(d.medio.Di("a.mel"), "x");
    std::filesystem::create_directory(d.mia.Di("a.mel"));
    d.b.Apri();
    d.b.Copia({0});
    d.b.globali.percorsoCorrente = d.mia.Di("gone/");
    d.b.Copia({0});
    EXPECT_EQ(d.b.riquadri.messaggi,
              (Avvisi{std::to_string(EISDIR) + "\r\n" + ParoleSistema(EISDIR),
                      "2\r\n" + ParoleSistema(ENOENT)}));
}

TEST(ImportaDalDisco, APipeIsntListedAndOneThatTakesAFilesPlaceKeepsNobodyWaiting) {
    BancoImportaSuDisco d;
    ASSERT_EQ(mkfifo(d.medio.Di("x.mel").c_str(), 0600), 0);
    Posa(d.medio.Di("y.mel"), "y");
    d.b.Apri();
    EXPECT_EQ(d.b.importa.List1.List(), Righe{"y"});
    std::filesystem::remove(d.medio.Di("y.mel"));
    ASSERT_EQ(mkfifo(d.medio.Di("y.mel").c_str(), 0600), 0);
    d.b.Copia({0});
    EXPECT_EQ(d.b.riquadri.messaggi,
              Avvisi{std::to_string(EINVAL) + "\r\n" + ParoleSistema(EINVAL)});
    EXPECT_EQ(d.mia.Quanti(), 0);
}

TEST(ImportaDalDisco, OfSeveralMediaItIsTheFirst) {
    BancoImportaSuDisco d;
    const CartellaProvvisoria altro;
    Posa(d.medio.Di("a.mel"), "first");
    Posa(altro.Di("a.mel"), "second");
    d.veri.supporti = {d.medio.Di(""), altro.Di("")};
    d.b.Apri();
    EXPECT_EQ(d.b.importa.List1.List(), Righe{"a"});
    d.b.Copia({0});
    EXPECT_EQ(Byte(d.mia.Di("a.mel")), "first");
}

TEST(ImportaDalDisco, TheMediumItselfAsTheCurrentFolderKeepsItsFiles) {
    BancoImportaSuDisco d;
    Posa(d.medio.Di("a.MEL"), "kept");
    d.b.globali.percorsoCorrente = d.medio.Di("");
    d.b.Apri();
    d.b.Copia({0});
    EXPECT_TRUE(d.b.riquadri.messaggi.empty());
    EXPECT_EQ(Byte(d.medio.Di("a.MEL")), "kept");
    EXPECT_EQ(d.medio.Quanti(), 1);
}

}  // namespace corvana::prova
