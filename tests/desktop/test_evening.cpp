// One evening with the melody window: a folder is made, a melody entered, bookmarked, saved under
// two names, renamed, lengthened by a paste; others come from a medium, one is deleted, the window
// closed and opened again. What counts is what then lies in the folder, to the last byte.
#include <gtest/gtest.h>

#include <QAction>
#include <filesystem>
#include <map>

#include "tests/core/temporary_folder.h"
#include "tests/desktop/melody_hand.h"
#include "tests/support/medium_on_disk.h"

namespace corvana::prova {
namespace {

namespace fs = std::filesystem;

std::map<std::string, std::string> FileIn(const std::string& cartella) {
    std::map<std::string, std::string> contenuti;
    for (const auto& voce : fs::directory_iterator(cartella))
        contenuti[voce.path().filename().string()] = Contenuto(voce.path().string());
    return contenuti;
}

struct Casa {
    Casa() {
        for (const char* nome : {"melodie", "penna"})
            fs::create_directory(cartella.Di(nome));
        for (const char* nome : {"uno", "due", "tre", "quattro", "cinque"})
            dischi.ScriviAtomico(cartella.Di(std::string("penna/") + nome + ".mel"),
                                 std::string("not read, only copied: ") + nome);
    }
    void Prepara(Macchina& macchina) {
        dischi.supporti = {cartella.Di("penna/")};
        macchina.file = &dischi;
        macchina.percorsoRecupero = cartella.Di("stato/non-salvata");
    }
    std::string DellaSera() const { return cartella.Di("melodie/Serata"); }

    CartellaProvvisoria cartella;
    FileConSupporto dischi;
};

struct Serata : Casa, PalcoMelodia {
    Serata() : PalcoMelodia(cartella.Di("melodie/"), [this](Macchina& m) { Prepara(m); }) {}

    void FaiCartella() {
        Tocca("ToolButton3");
        Tocca("cmdMkdir");
        Rispondi("Serata");
        ToccaRigaDueVolte("» Serata");
        EXPECT_EQ(Righe(), (std::vector<std::string>{"» .."}));
        Tocca("cmdChiudi");
    }
    void ScriviMelodia() {
        for (const GestoMouse& gesto : GestiDi({"60;62;64;65;", "1;2;1;4;", "n;s;n;n;"}))
            Fai(gesto);
        ScriviIn("lblNini", "2");
        ScriviIn("lblNfine", "3");
        Tocca("cmdAddBm");
        Rispondi("ritornello");
    }
    void SalvaDueVolteERinomina() {
        SalvaConNome("prima");
        SalvaConNome("seconda");
        ToccaRiga("prima");
        Tocca("cmdRename");
        Rispondi("terza");
    }
    void Allunga() {
        ScriviIn("lblNini", "1");
        ScriviIn("lblNfine", "2");
        Tocca("cmdPaste");
        Tocca("lblIncolla");
        Tocca("cmdPaste");
        Tocca("cmdPaste");
        Tocca("ToolButton4");
    }
    void Elimina() {
        SalvaConNome("quarta");
        ToccaRiga("quarta");
        Tocca("cmdDelete");
        Decidi(false);
        EXPECT_TRUE(fs::exists(DellaSera() + "/quarta.mel"));
        Tocca("cmdDelete");
        Decidi(true);
    }
    void Importa() {
        TrovaVoce(scrivania, QStringLiteral("mnuCopyFromA")).trigger();
        AspettaFinestra(scrivania, QStringLiteral("frmCopyFromA"));
        Calma();
        ToccaRiga("cinque");
        ToccaRiga("due", Qt::ControlModifier);
        ToccaRiga("uno", Qt::ControlModifier);
        Tocca("cmdCopia");
        Tocca("cmdChiudi");
        AspettaFinestra(scrivania, QStringLiteral("frmComposer"));
        Calma();
    }
    /// One note more, which isn't to be saved.
    void ChiudiSenzaSalvare() {
        Tocca("cmdChiudi");
        Tocca("cmdInsNota");
        Tocca("cmdCm");
        Decidi(false);
        EXPECT_TRUE(Di("lblModificato").isVisible());
        Tocca("cmdCm");
        Decidi(true);
        AspettaFinestra(scrivania, QStringLiteral("CorvanaMainF"));
        Calma();
    }
};

/// In the code page of the files.
const std::string riferimenti = "2 \xF7 3 \xF7 ritornello;";

TEST(UnaSera, WhatIsMadeSavedRenamedDeletedAndImportedLiesInTheFolderAtItsEnd) {
    Serata sera;
    sera.FaiCartella();
    sera.ScriviMelodia();
    sera.SalvaDueVolteERinomina();
    sera.Allunga();
    sera.Elimina();
    sera.Importa();
    sera.ChiudiSenzaSalvare();
    EXPECT_FALSE(fs::exists(sera.cartella.Di("stato/non-salvata")));

    sera.ApriComposer();
    EXPECT_EQ(sera.Dice("lblNome"), "");
    EXPECT_FALSE(sera.Di("lblModificato").isVisible());
    sera.Tocca("ToolButton3");
    EXPECT_EQ(sera.Righe(),
              (std::vector<std::string>{"» ..", "cinque", "due", "seconda", "terza", "uno"}));
    sera.ToccaRigaDueVolte("seconda");
    EXPECT_EQ(sera.Dice("lblNome"), "seconda");
    EXPECT_EQ(sera.Dice("LblNoteString"), "Do;Re;Mi;Fa;Do;Re;");

    const std::string intera =
        " \xF7"
        "Tutta la melodia;";
    EXPECT_EQ(
        FileIn(sera.DellaSera()),
        (std::map<std::string, std::string>{
            {"cinque.mel", "not read, only copied: cinque"},
            {"due.mel", "not read, only copied: due"},
            {"uno.mel", "not read, only copied: uno"},
            {"seconda.mel",
             "60;62;64;65;60;62;\r\n1;2;1;4;1;2;\r\nn;s;n;n;n;s;\r\n 60 \r\n 16 \r\n1 \xF7 6" +
                 intera + riferimenti + "\r\n"},
            {"terza.mel", "60;62;64;65;\r\n1;2;1;4;\r\nn;s;n;n;\r\n 60 \r\n 16 \r\n1 \xF7 4" +
                              intera + riferimenti + "\r\n"}}));
}

}  // namespace
}  // namespace corvana::prova
