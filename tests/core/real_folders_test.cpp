// Folders and removable media on the real disk. A medium that is mounted is played by a link to a
// folder of the system's that always lies on a device of its own.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>

#include "core/real_files.h"
#include "tests/core/temporary_folder.h"

namespace corvana::prova {

namespace {

namespace fs = std::filesystem;

std::vector<VoceCartella> InOrdine(std::vector<VoceCartella> voci) {
    std::sort(voci.begin(), voci.end(),
              [](const auto& una, const auto& altra) { return una.nome < altra.nome; });
    return voci;
}

/// A place where media are mounted.
class Radice {
public:
    explicit Radice(const std::string& nome = "media") : percorso_(cartella_.Di(nome)) {
        fs::create_directory(percorso_);
    }
    const std::string& Percorso() const { return percorso_; }
    std::string Di(const std::string& nome) const { return percorso_ + "/" + nome; }
    void Cartella(const std::string& nome) const { fs::create_directory(Di(nome)); }
    void File(const std::string& nome) const { FileReali().ScriviAtomico(Di(nome), "x"); }
    void Supporto(const std::string& nome) const { fs::create_symlink("/proc", Di(nome)); }

private:
    CartellaProvvisoria cartella_;
    std::string percorso_;
};

std::string Supporto(const std::vector<std::string>& radici) {
    return FileReali(radici).SupportoRimovibile();
}

}  // namespace

TEST(CartelleReali, AreListedWithFilesAndFoldersAndNothingElse) {
    const Radice radice;
    radice.File("aria.mel");
    radice.File(".nascosto");
    radice.Cartella("Perché");
    radice.Cartella("Perché/dentro");
    EXPECT_EQ(
        InOrdine(FileReali().Elenca(radice.Percorso())),
        (std::vector<VoceCartella>{{".nascosto", false}, {"Perché", true}, {"aria.mel", false}}));
    EXPECT_EQ(FileReali().Elenca(radice.Percorso() + "/").size(), 3U);
}

TEST(CartelleReali, ALinkIsWhatItLeadsToAndAFileWhenItLeadsNowhere) {
    const Radice radice;
    radice.Cartella("cartella");
    fs::create_symlink(radice.Di("cartella"), radice.Di("legame"));
    fs::create_symlink(radice.Di("none"), radice.Di("nessuno"));
    EXPECT_EQ(
        InOrdine(FileReali().Elenca(radice.Percorso())),
        (std::vector<VoceCartella>{{"cartella", true}, {"legame", true}, {"nessuno", false}}));
}

TEST(CartelleReali, PipesSocketsAndDevicesArentListed) {
    const Radice radice;
    radice.File("aria.mel");
    ASSERT_EQ(mkfifo(radice.Di("x.mel").c_str(), 0600), 0);
    fs::create_symlink("/dev/null", radice.Di("null.mel"));
    EXPECT_EQ(FileReali().Elenca(radice.Percorso()),
              (std::vector<VoceCartella>{{"aria.mel", false}}));
}

TEST(CartelleReali, WhatIsNoFolderHoldsNothing) {
    const Radice radice;
    radice.File("file");
    EXPECT_TRUE(FileReali().Elenca(radice.Percorso() + "/none").empty());
    EXPECT_TRUE(FileReali().Elenca(radice.Di("file")).empty());
    EXPECT_TRUE(FileReali().Elenca("").empty());
    radice.Cartella("vuota");
    EXPECT_TRUE(FileReali().Elenca(radice.Di("vuota")).empty());
}

TEST(CartelleReali, OnlyAFolderExistsAsAFolder) {
    const Radice radice;
    radice.Cartella("cartella");
    radice.File("file");
    FileReali file;
    EXPECT_TRUE(file.EsisteCartella(radice.Di("cartella")));
    EXPECT_TRUE(file.EsisteCartella(radice.Di("cartella/")));
    EXPECT_FALSE(file.EsisteCartella(radice.Di("file")));
    EXPECT_FALSE(file.EsisteCartella(radice.Di("none")));
    EXPECT_FALSE(file.EsisteCartella(radice.Di("file/x")));
    EXPECT_FALSE(file.EsisteCartella(""));
}

TEST(SupportoRimovibile, IsTheFolderThatSomethingIsMountedOnWithAClosingSeparator) {
    const Radice radice;
    radice.Supporto("STICK");
    EXPECT_EQ(Supporto({radice.Percorso()}), radice.Di("STICK/"));
}

TEST(SupportoRimovibile, IsNoFolderThatNothingIsMountedOn) {
    const Radice radice;
    radice.Cartella("STICK");
    EXPECT_EQ(Supporto({radice.Percorso()}), "");
    radice.Supporto("ZIP");
    EXPECT_EQ(Supporto({radice.Percorso()}), radice.Di("ZIP/"));
}

TEST(SupportoRimovibile, IsNoFileOfTheFolderNorALinkToNowhere) {
    const Radice radice;
    radice.File("a");
    fs::create_symlink("/proc/version", radice.Di("b"));
    fs::create_symlink(radice.Di("none"), radice.Di("c"));
    EXPECT_EQ(Supporto({radice.Percorso()}), "");
}

TEST(SupportoRimovibile, OfSeveralItIsTheFirstByName) {
    const Radice radice;
    for (const char* nome : {"c", "a", "b"})
        radice.Supporto(nome);
    radice.Cartella("Z");
    EXPECT_EQ(Supporto({radice.Percorso()}), radice.Di("a/"));
}

TEST(SupportoRimovibile, IsLookedForInEachPlaceInItsOrder) {
    const Radice prima, seconda, terza;
    prima.Cartella("STICK");
    seconda.Supporto("b");
    terza.Supporto("a");
    const std::string assente = prima.Di("none");
    EXPECT_EQ(Supporto({assente, prima.Percorso(), seconda.Percorso(), terza.Percorso()}),
              seconda.Di("b/"));
    EXPECT_EQ(Supporto({terza.Percorso(), seconda.Percorso()}), terza.Di("a/"));
    EXPECT_EQ(Supporto({assente, prima.Percorso()}), "");
    EXPECT_EQ(Supporto({}), "");
}

TEST(SupportoRimovibile, WhereTheSystemMountsThemThereIsAFolderOrNone) {
    FileReali file;
    const std::string supporto = file.SupportoRimovibile();
    EXPECT_TRUE(supporto.empty() || (supporto.ends_with('/') && file.EsisteCartella(supporto)))
        << supporto;
}

}  // namespace corvana::prova
