// What one does with the melody window and the ear trainer, all without a mouse.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QListWidget>
#include <filesystem>

#include "desktop/painted_view.h"
#include "tests/core/temporary_folder.h"
#include "tests/desktop/evening.h"
#include "tests/desktop/keys_hand.h"

namespace corvana::prova {
namespace {

struct Tasti : PalcoTasti {
    using PalcoTasti::PalcoTasti;
    QListWidget& Elenco(const std::string& nome = "List1") { return Di(nome).Come<QListWidget>(); }
    /// The row of that text, with the arrows.
    void Scorri(const std::string& riga, const std::string& lista = "List1") {
        VaiA(lista);
        Batti(Qt::Key_Home);
        for (int i = 0; Elenco(lista).currentItem()->text().toStdString() != riga; ++i) {
            ASSERT_LT(i, Elenco(lista).count()) << riga;
            Batti(Qt::Key_Down);
        }
    }
    bool Accesa(const char* nome) {
        return dynamic_cast<VistaDipinta&>(Di(nome).LaVista()).Spuntata().value_or(false);
    }
};

struct ComposerSenzaMouse : testing::Test {
    const CartellaProvvisoria cartella;
    CasaDellaSera casa{cartella.Di("")};
    Tasti p{casa.melodie, [this](Macchina& macchina) { casa.Prepara(macchina); }};

    ComposerSenzaMouse() { p.Apri(Qt::Key_R, 0, "frmComposer"); }
    /// With a double click on each of so many keys, upwards from middle C.
    void Scrivi(int note) {
        for (int i = 0; i < note; ++i) {
            p.VaiA("tastiera");
            if (i > 0) p.Batti(Qt::Key_PageUp);
            p.Batti(Qt::Key_Return, Qt::ControlModifier);
        }
    }
};

TEST_F(ComposerSenzaMouse, AKeyIsClickedTwiceAndItsNoteStandsInTheVoice) {
    Scrivi(2);
    EXPECT_EQ(p.Dice("LblNoteString"), "Do;Do;");
    EXPECT_TRUE(p.Di("cmdPlay").hasFocus());
    p.VaiA("tastiera");
    p.Batti(Qt::Key_Return);
    EXPECT_EQ(p.Dice("LblNoteString"), "Do;Do;");
}

TEST_F(ComposerSenzaMouse, FigureAttributeMultiplierAndRestAreChosen) {
    p.Aziona("cmdSimbNote1");
    EXPECT_TRUE(p.Accesa("cmdSimbNote1"));
    p.Aziona("cmdAttrNota1");
    EXPECT_TRUE(p.Accesa("cmdAttrNota1"));
    p.Aziona("ckConsAtt");
    p.Scrivi("PausaPer", "2");
    EXPECT_EQ(p.Testo("PausaPer"), "2");
    p.Aziona("Label4");
    EXPECT_EQ(p.Testo("PausaPer"), "3");
    p.Aziona("cmdInsPausa");
    EXPECT_NE(p.Dice("LblNoteString"), "");
    p.Aziona("cmdReset");
    EXPECT_EQ(p.Dice("LblNoteString"), "");
}

TEST_F(ComposerSenzaMouse, VoicesTheirVolumesAndInstrumentsAreChosen) {
    p.Aziona("VoceAttiva1");
    EXPECT_TRUE(p.Accesa("VoceAttiva1"));
    EXPECT_FALSE(p.Accesa("VoceAttiva0"));
    Scrivi(1);
    EXPECT_NE(p.Dice("LblNoteStringC"), "");
    p.VaiA("VolC");
    p.Batti(Qt::Key_Left);
    EXPECT_NE(p.Dice("lblVolC"), "100");
    p.Aziona("lblMuteC1");
    p.Aziona("pictCi");
    AspettaFinestra(p.scrivania, "frmStrum");
    p.Aziona("cmdEsci");
    AspettaFinestra(p.scrivania, "frmComposer");
}

TEST_F(ComposerSenzaMouse, ARangeIsTypedBookmarkedPlayedRenamedAndPasted) {
    Scrivi(3);
    p.Scrivi("lblNini", "1");
    p.Scrivi("lblNfine", "2");
    p.Aziona("cmdAddBm");
    p.Rispondi("tratto");
    p.Scorri("1 ÷ 2 ÷ tratto", "lstBookMark");
    p.Ascolta();
    p.Batti(Qt::Key_Return);
    EXPECT_TRUE(p.Suonato());
    p.Aziona("cmdRenameBm");
    p.Rispondi("altro");
    EXPECT_EQ(p.Elenco("lstBookMark").item(1)->text(), QStringLiteral("1 ÷ 2 ÷ altro"));
    p.Aziona("cmdPaste");
    p.Aziona("cmdPaste");
    p.Scrivi("lblNini", "1");
    p.Scrivi("lblNfine", "5");
    EXPECT_EQ(p.Dice("LblNoteString"), "Do;Do;Do;Do;Do;");
    p.Aziona("cmdDelBm");
    p.Decidi(true);
    EXPECT_EQ(p.Elenco("lstBookMark").count(), 0);
}

TEST_F(ComposerSenzaMouse, FilesAreSavedRenamedDeletedAndOpenedInAFolderOfTheirOwn) {
    Scrivi(2);
    p.DalMenu(Qt::Key_F, 0);
    p.Aziona("cmdMkdir");
    p.Rispondi("mia");
    p.Scorri("» mia");
    p.Batti(Qt::Key_Return);
    EXPECT_TRUE(p.Dice("lblPercorso").ends_with("mia/")) << p.Dice("lblPercorso");
    p.DalMenu(Qt::Key_F, 2);
    p.Rispondi("prima");
    p.DalMenu(Qt::Key_F, 2);
    p.Rispondi("seconda");
    p.DalMenu(Qt::Key_F, 1);
    p.Scorri("prima");
    p.Aziona("cmdRename");
    p.Rispondi("terza");
    p.Scorri("seconda");
    p.Aziona("cmdDelete");
    p.Decidi(false);
    p.Aziona("cmdDelete");
    p.Decidi(true);
    const std::filesystem::path mia = casa.melodie + "mia";
    EXPECT_TRUE(std::filesystem::exists(mia / "terza.mel"));
    EXPECT_FALSE(std::filesystem::exists(mia / "seconda.mel"));
    p.Aziona("cmdChiudi");
    p.Aziona("cmdReset");
    p.DalMenu(Qt::Key_F, 0);
    p.Scorri("terza");
    p.Ascolta();
    p.Batti(Qt::Key_Return);
    EXPECT_EQ(p.Dice("LblNoteString"), "Do;Do;");
    EXPECT_TRUE(p.Suonato());
}

TEST_F(ComposerSenzaMouse, MelodiesAreImportedAndTheWindowIsLeft) {
    p.Apri(Qt::Key_F, 4, "frmCopyFromA");
    p.Scorri("due");
    p.Aziona("cmdCopia");
    p.Aziona("cmdChiudi");
    AspettaFinestra(p.scrivania, "frmComposer");
    p.Calma();
    EXPECT_TRUE(std::filesystem::exists(casa.melodie + "due.mel"));
    Scrivi(1);
    p.DalMenu(Qt::Key_F, 5);
    p.Decidi(false);
    p.Aziona("cmdCm");
    p.Decidi(true);
    AspettaFinestra(p.scrivania, "CorvanaMainF");
}

TEST_F(ComposerSenzaMouse, TheMetronomeOfAMelodyIsSet) {
    p.Aziona("lblTs");
    p.Scegli("Pulsazioni", 2);
    EXPECT_EQ(p.Di("Pulsazioni").Come<QComboBox>().currentIndex(), 2);
    p.Scegli("DurataPulsazioni", 1);
    p.VaiA("InizioPuls");
    p.Batti(Qt::Key_Down);
    p.VaiA("VolumeMetro");
    p.Aziona("lblTs");
    EXPECT_EQ(p.Dice("lblTs"), "Off");
}

struct OrecchioSenzaMouse : testing::Test {
    const CartellaProvvisoria cartella;
    Tasti p{cartella.Di("")};

    void Apri(int voce) { p.Apri(Qt::Key_E, voce, "frmInto"); }
    void Tasto(Qt::Key mossa, int volte) {
        p.VaiA("img2");
        p.Ripeti(mossa, volte);
        p.Batti(Qt::Key_Space);
    }
    int Date() { return std::stoi(p.Dice("txtResatte")) + std::stoi(p.Dice("txtRerrate")); }
};

TEST_F(OrecchioSenzaMouse, APitchIsAskedBetweenTwoKeysAndAnswered) {
    Apri(1);
    Tasto(Qt::Key_Left, 2);
    Tasto(Qt::Key_Right, 4);
    Tasto(Qt::Key_Left, 2);
    p.Aziona("IntoStart");
    EXPECT_EQ(p.Scritta("IntoStart"), "Stop");
    Tasto(Qt::Key_Left, 1);
    EXPECT_EQ(Date(), 1);
    p.Aziona("lblRipInto");
    p.Aziona("lblIntoSh");
    EXPECT_TRUE(p.Di("lblIntoNN").isVisible());
    p.Aziona("IntoStart");
    EXPECT_EQ(p.Scritta("IntoStart"), "Start");
    p.Aziona("cmdReimposta");
    p.Aziona("cmdEsci");
    AspettaFinestra(p.scrivania, "CorvanaMainF");
}

TEST_F(OrecchioSenzaMouse, AnIntervalIsAskedAndAnsweredAmongThoseAdmitted) {
    Apri(2);
    p.VaiA("LblSemi0");
    p.Batti(Qt::Key_Down);
    ASSERT_TRUE(p.Di("Il0").hasFocus());
    p.Batti(Qt::Key_Right);
    const bool prima = p.Accesa("Il1");
    p.Batti(Qt::Key_Space);
    EXPECT_NE(p.Accesa("Il1"), prima);
    p.Aziona("CmdIntStart");
    EXPECT_EQ(p.Scritta("CmdIntStart"), "Stop");
    p.VaiA("Il1");
    p.Batti(Qt::Key_Up);
    p.Batti(Qt::Key_Right);
    p.Batti(Qt::Key_Space);
    EXPECT_EQ(Date(), 1);
    p.Aziona("CmdIntStart");
}

TEST_F(OrecchioSenzaMouse, AChordIsAskedAndAnswered) {
    Apri(3);
    Tasto(Qt::Key_Left, 0);
    Tasto(Qt::Key_Right, 4);
    p.Aziona("ComdRacStart");
    EXPECT_EQ(p.Scritta("ComdRacStart"), "Stop");
    p.VaiA("TipoAcc0");
    p.Batti(Qt::Key_Right);
    p.Batti(Qt::Key_Space);
    EXPECT_EQ(Date(), 1);
    p.Aziona("ComdRacStart");
}

TEST_F(OrecchioSenzaMouse, AKeyIsAskedByItsNameAndFoundOnThePiano) {
    Apri(5);
    p.Aziona("cmdRicTasto");
    EXPECT_EQ(p.Scritta("cmdRicTasto"), "Stop");
    EXPECT_TRUE(p.Dice("lblStep").starts_with("Fai clic su un ")) << p.Dice("lblStep");
    Tasto(Qt::Key_Right, 1);
    EXPECT_EQ(Date(), 1);
    p.Aziona("cmdRicTasto");
    EXPECT_EQ(p.Scritta("cmdRicTasto"), "Start");
    p.Aziona("lblSceltaTasti");
}

TEST_F(OrecchioSenzaMouse, ATonalityIsAskedAndAnswered) {
    Apri(4);
    p.Aziona("cmdT");
    EXPECT_EQ(p.Scritta("cmdT"), "Stop");
    p.VaiA("lblT(0)");
    p.Batti(Qt::Key_Down);
    p.Batti(Qt::Key_Right);
    ASSERT_TRUE(p.Di("T1").hasFocus());
    p.Batti(Qt::Key_Space);
    EXPECT_EQ(Date(), 1);
    p.Aziona("cmdT");
    EXPECT_EQ(p.Scritta("cmdT"), "Start");
}

}  // namespace
}  // namespace corvana::prova
