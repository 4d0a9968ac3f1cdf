// What lies in the folder at the end of an evening with the melody window, to the last byte.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>

#include "tests/core/temporary_folder.h"
#include "tests/desktop/evening.h"

namespace corvana::prova {
namespace {

namespace fs = std::filesystem;

std::map<std::string, std::string> FileIn(const std::string& cartella) {
    std::map<std::string, std::string> contenuti;
    for (const auto& voce : fs::directory_iterator(cartella))
        contenuti[voce.path().filename().string()] = Contenuto(voce.path().string());
    return contenuti;
}

/// In the code page of the files.
const std::string riferimenti = " \xF7Tutta la melodia;2 \xF7 3 \xF7 ritornello;\r\n";

TEST(UnaSera, WhatIsMadeSavedRenamedDeletedAndImportedLiesInTheFolderAtItsEnd) {
    const CartellaProvvisoria cartella;
    Sera sera(cartella.Di(""));
    sera.Intera();
    EXPECT_EQ(FileIn(sera.DellaSera()),
              (std::map<std::string, std::string>{
                  {"cinque.mel", "not read, only copied: cinque"},
                  {"due.mel", "not read, only copied: due"},
                  {"uno.mel", "not read, only copied: uno"},
                  {"seconda.mel",
                   "60;62;64;65;60;62;\r\n1;2;1;4;1;2;\r\nn;s;n;n;n;s;\r\n"
                   " 60 \r\n 16 \r\n1 \xF7 6" +
                       riferimenti},
                  {"terza.mel",
                   "60;62;64;65;\r\n1;2;1;4;\r\nn;s;n;n;\r\n"
                   " 60 \r\n 16 \r\n1 \xF7 4" +
                       riferimenti}}));
}

TEST(UnaSera, ANewFolderIsEmptyANoDeletesNothingAndTheListShowsWhatIsThere) {
    const CartellaProvvisoria cartella;
    Sera sera(cartella.Di(""));
    sera.FaiCartella();
    EXPECT_EQ(sera.Righe(), (std::vector<std::string>{"» .."}));
    sera.ScriviMelodia();
    sera.SalvaConNome("quarta");
    sera.ToccaRiga("quarta");
    sera.Tocca("cmdDelete");
    sera.Decidi(false);
    EXPECT_EQ(sera.Righe(), (std::vector<std::string>{"» ..", "quarta"}));
    sera.Importa();
    EXPECT_EQ(sera.Righe(), (std::vector<std::string>{"» ..", "cinque", "due", "quarta", "uno"}));
}

TEST(UnaSera, ClosedWithoutSavingTheWindowOpensEmptyAndNothingIsKept) {
    const CartellaProvvisoria cartella;
    Sera sera(cartella.Di(""));
    sera.FaiCartella();
    sera.ScriviMelodia();
    sera.SalvaConNome("prima");
    sera.ChiudiSenzaSalvare();
    EXPECT_FALSE(fs::exists(sera.nonSalvata));
    sera.ApriComposer();
    EXPECT_EQ(sera.Dice("lblNome"), "");
    EXPECT_FALSE(sera.Di("lblModificato").isVisible());
    sera.Apri("prima");
    EXPECT_EQ(sera.Dice("lblNome"), "prima");
    EXPECT_EQ(sera.Dice("LblNoteString"), "Do;Re;Mi;Fa;");
}

}  // namespace
}  // namespace corvana::prova
