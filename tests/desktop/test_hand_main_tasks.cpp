// What one does with the main window and the windows that it opens, all without a mouse.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLineEdit>
#include <QListWidget>
#include <QSlider>
#include <QTest>
#include <QWindow>

#include "tests/core/temporary_folder.h"
#include "tests/desktop/keys_hand.h"

namespace corvana::prova {
namespace {

struct SenzaMouse : testing::Test {
    const CartellaProvvisoria cartella;
    PalcoTasti p{cartella.Di("")};

    QListWidget& Elenco(const std::string& nome) { return p.Di(nome).Come<QListWidget>(); }
    int Slitta(const std::string& nome) { return p.Di(nome).Come<QSlider>().value(); }
    bool Spuntata(const char* voce) {
        return TrovaVoce(p.scrivania, QString::fromLatin1(voce)).isChecked();
    }
    /// How many notes are to be seen on the staff: those that a screen reader tells.
    QString Rigo() { return p.Di("img").LaVista().Lettura(); }
};

TEST_F(SenzaMouse, ARangeIsChosenInTheListAndWithItsLetter) {
    p.VaiA("difficolt");
    p.Batti(Qt::Key_Home);
    const QString prima = Rigo();
    p.Batti(Qt::Key_Down);
    EXPECT_EQ(Elenco("difficolt").currentRow(), 1);
    EXPECT_NE(Rigo(), prima);
    p.Batti(Qt::Key_B);
    EXPECT_EQ(Elenco("difficolt").currentRow(), 5);
}

TEST_F(SenzaMouse, ARangeIsMarkedOnTheRuler) {
    p.VaiA("Regolo");
    p.Batti(Qt::Key_Space);
    p.Ripeti(Qt::Key_Up, 2);
    EXPECT_TRUE(p.Di("Regolo").LaVista().Lettura().endsWith("Chiave di Sol, linea 2"))
        << p.Di("Regolo").LaVista().Lettura().toStdString();
    p.Batti(Qt::Key_Space);
    EXPECT_EQ(Rigo(), "Chiave di Sol, linea 1; Chiave di Sol, linea 2");
}

TEST_F(SenzaMouse, TheAnswersAreGivenWithTheButtonsToo) {
    p.Aziona("Start");
    EXPECT_EQ(p.Scritta("Start"), "Stop");
    for (const char* nome : {"pdo", "pre", "pmi", "pfa", "psol", "pla", "psi"})
        p.Aziona(nome);
    EXPECT_EQ(p.Risposte(), 7);
    p.Aziona("Start");
    EXPECT_TRUE(p.Di("frmRisultati").isVisible());
}

TEST_F(SenzaMouse, TheNamesOfTheNotesAreShownAndHidden) {
    p.Aziona("lblMn");
    EXPECT_TRUE(p.Di("lblnn").isVisible());
    p.Aziona("lblMn");
    EXPECT_FALSE(p.Di("lblnn").isVisible());
}

TEST_F(SenzaMouse, AutomaticModeIsChosenSetAndRun) {
    p.Aziona("ToolButton6");
    EXPECT_TRUE(Spuntata("mnuAutomatico"));
    p.VaiA("Slider1");
    const int prima = Slitta("Slider1");
    p.Batti(Qt::Key_Right);
    EXPECT_GT(Slitta("Slider1"), prima);
    // Its notes come and go without an end, so nothing comes to rest.
    p.VaiA("Start");
    Batti(p.scrivania, Qt::Key_Space);
    ASSERT_TRUE(Aspetta([&] { return p.Testo("conta").toInt() > 0; }));
    Premi(p.scrivania, Qt::Key_Escape);
    EXPECT_TRUE(Aspetta([&] { return p.Scritta("Start") == "Start"; }));
    Lascia(p.scrivania, Qt::Key_Escape);
}

TEST_F(SenzaMouse, TheMetronomeIsSetAndStarted) {
    p.DalMenu(Qt::Key_R, 1);
    EXPECT_TRUE(p.Di("frmMetro").isVisible());
    p.Aziona("lblTs");
    EXPECT_EQ(p.Dice("lblTs"), "3/4");
    p.Aziona("lblX12");
    EXPECT_EQ(p.Dice("lblX12"), "x2");
    for (const char* nome : {"MetroTempoS", "MetroVol"}) {
        p.VaiA(nome);
        const int prima = Slitta(nome);
        p.Batti(Qt::Key_Down);
        EXPECT_NE(Slitta(nome), prima) << nome;
    }
    p.Ascolta();
    p.FermaDopo(2);
    p.Aziona("cmdSSmetro");
    EXPECT_TRUE(p.Suonato());
    p.Aziona("cmdSSmetro");
    p.Prosegui();
    p.Aziona("lblCloseMetro");
    EXPECT_FALSE(p.Di("frmMetro").isVisible());
}

TEST_F(SenzaMouse, APatternOfTheMetronomeIsWrittenHeardAndKept) {
    p.DalMenu(Qt::Key_R, 1);
    p.VaiA("cmdSetup");
    Batti(p.scrivania, Qt::Key_Space);
    AspettaFinestra(p.scrivania, "frmConfMetro");
    p.Calma();
    p.VaiA("seqPreset");
    p.Batti(Qt::Key_Down);
    p.VaiA("InstrA");
    p.Batti(Qt::Key_Down);
    p.Scrivi("txtPattern", "abcab");
    EXPECT_EQ(p.Testo("txtPattern"), "abcab");
    p.Scrivi("txtTempo", "5/4");
    p.Ascolta();
    p.FermaDopo(3);
    p.Aziona("cmdTest");
    EXPECT_TRUE(p.Suonato());
    p.Aziona("cmdTest");
    p.Prosegui();
    p.Aziona("cmdOk");
    AspettaFinestra(p.scrivania, "CorvanaMainF");
}

TEST_F(SenzaMouse, AnOutputIsTriedAndLeft) {
    p.Apri(Qt::Key_R, 3, "frmMidiTest");
    p.VaiA("LstMidiDev");
    p.Batti(Qt::Key_Home);
    p.VaiA("InstrS");
    p.Batti(Qt::Key_Right);
    EXPECT_EQ(p.Dice("lblInstr"), std::to_string(Slitta("InstrS")));
    p.Ascolta();
    p.Aziona("cmdTest");
    EXPECT_TRUE(p.Suonato());
    p.Aziona("cmdOff");
    p.Aziona("cmdChiudi");
    AspettaFinestra(p.scrivania, "CorvanaMainF");
}

TEST_F(SenzaMouse, AnInstrumentIsPickedAndHeard) {
    p.Aziona("ToolButton5");
    AspettaFinestra(p.scrivania, "frmStrum");
    p.VaiA("List1");
    p.Batti(Qt::Key_Home);
    p.Ripeti(Qt::Key_Down, 3);
    EXPECT_EQ(Elenco("List1").currentRow(), 3);
    p.Ascolta();
    p.Aziona("cmdTest");
    EXPECT_TRUE(p.Suonato());
    p.Aziona("cmdEsci");
    AspettaFinestra(p.scrivania, "CorvanaMainF");
}

TEST_F(SenzaMouse, TheChartIsTurnedOverAndClosed) {
    p.Apri(Qt::Key_R, 2, "frmOptions");
    for (const int pagina : {1, 2, 0}) {
        const std::string quale = std::to_string(pagina);
        p.Aziona("cmdSel" + quale);
        EXPECT_TRUE(p.Di("Frame1" + std::to_string(pagina + 1)).isVisible()) << quale;
    }
    p.Aziona("cmdOK");
    AspettaFinestra(p.scrivania, "CorvanaMainF");
}

TEST_F(SenzaMouse, TheLanguageAndTheNamesAreChosen) {
    // Do,Re,Mi...; C,D,E...; generic; of the note; normal; automatic; language.
    p.DalMenu(Qt::Key_O, 1);
    EXPECT_EQ(p.Scritta("pdo"), "C");
    p.DalMenu(Qt::Key_O, 0);
    EXPECT_EQ(p.Scritta("pdo"), "DO");
    p.DalMenu(Qt::Key_O, 2);
    EXPECT_TRUE(Spuntata("Suono1"));
    p.Batti(Qt::Key_O, Qt::AltModifier);
    p.Batti(Qt::Key_Up);
    p.Batti(Qt::Key_Right);
    p.Batti(Qt::Key_Down);
    p.Batti(Qt::Key_Return);
    EXPECT_EQ(p.Dice("cmdEsci"), "Exit");
    EXPECT_EQ(p.Dice("Intervallo"), "Notes to practice");
}

TEST_F(SenzaMouse, TheHelpIsOpenedWalkedAndClosed) {
    Batti(p.scrivania, Qt::Key_F1);
    ASSERT_TRUE(Aspetta([&] { return p.scrivania.Aiuto() && p.scrivania.Aiuto()->isVisible(); }));
    FinestraAiuto& aiuto = *p.scrivania.Aiuto();
    ASSERT_TRUE(Aspetta([&] { return aiuto.isActiveWindow(); }));
    const auto batti = [&](Qt::Key tasto, Qt::KeyboardModifiers con = {}) {
        QTest::keyClick(aiuto.windowHandle(), tasto, con);
    };
    const QString prima = aiuto.Pagina();
    batti(Qt::Key_Home, Qt::AltModifier);
    EXPECT_EQ(aiuto.Pagina(), "index.html");
    batti(Qt::Key_Tab);
    batti(Qt::Key_Return);
    EXPECT_NE(aiuto.Pagina(), "index.html");
    batti(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(aiuto.Pagina(), "index.html");
    batti(Qt::Key_Escape);
    EXPECT_FALSE(aiuto.isVisible());
}

}  // namespace
}  // namespace corvana::prova
