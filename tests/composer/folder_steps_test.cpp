// The rows of a folder, what opening one leads to, and the roots.
#include "composer/folder_steps.h"

#include <gtest/gtest.h>

namespace corvana::prova {

namespace {

using Testi = std::vector<std::string>;
using VociCartella = std::vector<VoceCartella>;

struct Passo {
    const char* da;
    const char* riga;
    const char* a;
};

}  // namespace

TEST(GenereDi, IsToldByTheRowsFirstCharacters) {
    EXPECT_EQ(GenereDi(""), GenereRiga::Nessuna);
    EXPECT_EQ(GenereDi("» .."), GenereRiga::Sopra);
    for (const char* riga : {"» a", "» ...", "» .", "» ..a", "» a.mel", "» » x", "»  "})
        EXPECT_EQ(GenereDi(riga), GenereRiga::Cartella) << riga;
    for (const char* riga : {"a", "..", ".", "a » b", " » a", "»", "»a", "\xC2 a"})
        EXPECT_EQ(GenereDi(riga), GenereRiga::Melodia) << riga;
}

TEST(Aperta, AFoldersRowLeadsIntoItAndTheParentsOutOfIt) {
    const std::vector<Passo> passi = {
        {"/", "» a", "/a/"},
        {"/a/", "» b c", "/a/b c/"},
        {"/a/", "» a.b", "/a/a.b/"},
        {"/a/", "» .nascosta", "/a/.nascosta/"},
        {"/a/", "» » b", "/a/» b/"},
        {"/a/", "» \xFF;\n", "/a/\xFF;\n/"},
        {"/Musica/Corali/", "» ..", "/Musica/"},
        {"/Musica/", "» ..", "/"},
        {"/", "» ..", "/"},
        {"", "» ..", "/"},
        {"/a/../b/", "» ..", "/a/../"},
        {"/a/", "song", "/a/"},
        {"/a/", "..", "/a/"},
        {"/a/", "", "/a/"},
    };
    for (const auto& [da, riga, a] : passi)
        EXPECT_EQ(Aperta(da, riga), a) << da << " + " << riga;
}

TEST(Aperta, TheWayInAndOutAgainLeadsWhereItBegan) {
    for (const char* nome : {"a", "a.b", "...", "» x", "a b"})
        EXPECT_EQ(Aperta(Aperta("/m/n/", std::string("» ") + nome), "» .."), "/m/n/") << nome;
}

TEST(RigheCartella, AreTheParentTheFoldersAndTheMelodiesEachInOrder) {
    const VociCartella voci = {{"b.mel", false}, {"Zeta", true},     {"A.mel", false},
                               {"alfa", true},   {"c.MEL", false},   {"Beta", true},
                               {"x.txt", false}, {"beta.mel", true}, {"!", true},
                               {"mel", false},   {"d.mel.b", false}, {"a.b.mel", false}};
    EXPECT_EQ(RigheCartella("/m/", voci), (Testi{"» ..", "» !", "» alfa", "» Beta", "» beta.mel",
                                                 "» Zeta", "A", "a.b", "b", "c"}));
}

TEST(RigheCartella, TheRootHasNoParent) {
    EXPECT_EQ(RigheCartella("/", {{"home", true}, {"a.mel", false}}), (Testi{"» home", "a"}));
    EXPECT_EQ(RigheCartella("/", {}), Testi{});
    EXPECT_EQ(RigheCartella("/gone/", {}), Testi{"» .."});
}

TEST(RigheCartella, NamesThatAreOddAreRowsLikeAnyOther) {
    const VociCartella voci = {
        {"a;b.mel", false}, {"x;y", true}, {"\xFF.mel", false}, {"a\nb.mel", false}};
    EXPECT_EQ(RigheCartella("/m/", voci), (Testi{"» ..", "» x;y", "a\nb", "a;b", "\xFF"}));
}

TEST(RigheCartella, AFileOfOneNameIsOneRowAndThoseThatDifferInCaseAreTwo) {
    const VociCartella voci = {
        {"x.MEL", false}, {"x.a.mel", false}, {"X.mel", false}, {"x.mel", false}};
    EXPECT_EQ(RigheCartella("/m/", voci), (Testi{"» ..", "X", "x", "x.a"}));
}

TEST(SenzaMelodie, FoldersAndMelodiesCountAndOtherFilesDont) {
    EXPECT_TRUE(SenzaMelodie({}));
    EXPECT_TRUE(SenzaMelodie({{"notes.txt", false}, {"mel", false}, {"a.mel.bak", false}}));
    EXPECT_FALSE(SenzaMelodie({{"notes.txt", false}, {"a.mel", false}}));
    EXPECT_FALSE(SenzaMelodie({{"A.MEL", false}}));
    EXPECT_FALSE(SenzaMelodie({{"folder", true}}));
    EXPECT_FALSE(SenzaMelodie({{".", true}}));
}

TEST(RadiciDistinte, AreEachThereOnceWithItsSeparatorInTheOrderGiven) {
    EXPECT_EQ(RadiciDistinte({"/", "/home/a", "/home/a/", "", "/home/a/Doc/", "/media/x/", "/"}),
              (Testi{"/", "/home/a/", "/home/a/Doc/", "/media/x/"}));
    EXPECT_EQ(RadiciDistinte({}), Testi{});
    EXPECT_EQ(RadiciDistinte({"/A/", "/a/"}), (Testi{"/A/", "/a/"}));
}

TEST(RadiceDi, IsTheLongestInWhichThePathLies) {
    const Testi radici = {"/", "/home/a/", "/home/a/Doc/", "/media/x/"};
    const std::vector<std::pair<const char*, int>> percorsi = {
        {"/", 0},         {"/home/", 0},       {"/home/a/", 1},      {"/home/a/Music/", 1},
        {"/home/ab/", 0}, {"/home/a/Doc/", 2}, {"/home/a/Docs/", 1}, {"/home/a/Doc/b/", 2},
        {"/media/", 0},   {"/media/x/", 3},    {"/media/x/a/b/", 3}, {"/media/xy/", 0},
        {"", -1},         {"home/a/", -1},     {"/HOME/A/", 0},      {"/home/a/doc/", 1}};
    for (const auto& [percorso, radice] : percorsi)
        EXPECT_EQ(RadiceDi(radici, percorso), radice) << percorso;
}

TEST(RadiceDi, TheirOrderDoesntMatterAndAPathMayLieInNone) {
    EXPECT_EQ(RadiceDi({"/home/a/Doc/", "/home/a/", "/"}, "/home/a/Doc/x/"), 0);
    EXPECT_EQ(RadiceDi({"/media/x/"}, "/home/"), -1);
    EXPECT_EQ(RadiceDi({}, "/"), -1);
}

TEST(ConSeparatore, AFolderEndsInOneSeparator) {
    EXPECT_EQ(ConSeparatore("/a"), "/a/");
    EXPECT_EQ(ConSeparatore("/a/"), "/a/");
    EXPECT_EQ(ConSeparatore(""), "/");
}

TEST(NomiMelodie, AreThePartBeforeTheExtensionInTheOrderOfAListWithoutRegardToCase) {
    EXPECT_EQ(
        NomiMelodie({{"b.mel", false}, {"C.MEL", false}, {"a.b.c.mel", false}, {"B.Mel", false}}),
        (std::vector<std::string>{"a.b.c", "B", "b", "C"}));
}

TEST(NomiMelodie, LeaveOutFoldersAndAllOtherFiles) {
    EXPECT_EQ(
        NomiMelodie({{"x.mel", true}, {"a.txt", false}, {"mel", false}, {"a.mel.bak", false}}),
        std::vector<std::string>{});
}

TEST(NomiMelodie, FilesThatDifferInTheExtensionsCaseAreOneName) {
    EXPECT_EQ(NomiMelodie({{"a.mel", false}, {"a.MEL", false}, {"A.mel", false}}),
              (std::vector<std::string>{"A", "a"}));
}

}  // namespace corvana::prova
