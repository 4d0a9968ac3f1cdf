// What stands around the exercises, as the tour shows it: the chart, the instruments, the pattern
// of the metronome, the outputs, and the finer tools of the melody window.
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QTest>
#include <QWindow>

#include "tests/desktop/tour.h"

namespace corvana::prova {

namespace {

const Interi segnale = {71, 72, 69, 64, 69};

void Apri(Giro& g, const char* voce, const char* finestra) {
    g.Scegli(voce);
    g.Attendi(finestra);
}

void Tavola(Giro& g) {
    Apri(g, "mnuPromemoria", "frmOptions");
    const std::pair<const char*, const char*> fogli[] = {
        {"cmdSel0", "Frame11"}, {"cmdSel1", "Frame12"}, {"cmdSel2", "Frame13"}};
    for (const auto& [bottone, foglio] : fogli) {
        g.Tocca(bottone);
        for (const auto& altro : fogli)
            EXPECT_EQ(g.Vede(altro.second), altro.second == foglio) << bottone;
    }
    g.Tocca("cmdSel1");
    g.Tocca("Ton8");
    EXPECT_TRUE(g.Vede("Img8"));
    g.Tocca("Ton16");
    EXPECT_TRUE(g.Vede("Gradi"));
    g.Tocca("cmdOK");
    g.Attendi("CorvanaMainF");
}

void Cursore(Giro& g) {
    g.ApriComposer();
    g.Ascolta();
    g.Batti(Qt::Key_Up);
    EXPECT_EQ(g.Dice("lblActNote"), "Do#");
    EXPECT_TRUE(g.Vede("lblAccidente"));
    g.Batti(Qt::Key_Up);
    EXPECT_EQ(g.Dice("lblActNote"), "Re");
    EXPECT_FALSE(g.Vede("lblAccidente"));
    g.Batti(Qt::Key_Down);
    EXPECT_EQ(g.Note(), (Interi{61, 62, 61}));
}

/// An arrow is held for a second: a step each fifth of it.
void FrecceETrasposizione(Giro& g) {
    for (const GestoMouse& gesto :
         GestiDi({"60;62;64;65;67;69;71;72;", "1;1;1;1;1;1;1;1;", "n;n;n;n;n;n;n;n;"}))
        g.Fai(gesto);
    g.FermaDopo(1.05);
    const Cosa freccia = g.Di("lblid1");
    const QPoint dove = freccia.NellaFinestra(freccia.rect().center());
    QTest::mousePress(freccia.window()->windowHandle(), Qt::LeftButton, {}, dove);
    g.Calma();
    QTest::mouseRelease(freccia.window()->windowHandle(), Qt::LeftButton, {}, dove);
    g.Prosegui();
    EXPECT_EQ(g.Casella("lblNini"), "6");
    g.ScriviIn("lblNini", "1");
    for (int volta = 0; volta < 2; ++volta)
        g.Tocca("lblIDs1");
    EXPECT_EQ(g.Dice("lblSemitoni"), "2");
    g.Tocca("lblSemitoni");
    EXPECT_EQ(g.Dice("LblNoteString"), "Re;Mi;Fa#;Sol;La;Si;Do#;Re;");
    g.Ascolta();
    g.Tocca("cmdPlay");
    EXPECT_EQ(g.Note(), (Interi{62, 64, 66, 67, 69, 71, 73, 74}));
}

void PulsazioniNellaMelodia(Giro& g) {
    g.Tocca("lblTs");
    EXPECT_EQ(g.Dice("lblTs"), "On");
    auto& pulsazioni = g.Di("Pulsazioni").Come<QComboBox>();
    pulsazioni.setFocus();
    g.Batti(Qt::Key_Down);
    EXPECT_EQ(pulsazioni.currentText(), "3");
    g.Ascolta();
    g.Tocca("cmdPlay");
    EXPECT_EQ(g.Note(10), (Interi{81, 36, 36, 81, 36, 36, 81, 36}));
    g.SalvaConNome("pulsi");
    EXPECT_NE(g.Salvata("pulsi").find("16;3;4;1\r\n"), std::string::npos) << g.Salvata("pulsi");
    g.Tocca("cmdChiudi");
    g.Tocca("lblTs");
    g.Ascolta();
    g.Tocca("cmdPlay");
    EXPECT_EQ(g.Note(10), Interi{});
}

void TastiBarraEMenu(Giro& g) {
    g.Tocca("cmdReset");
    g.Tocca("cmdSimbNote2");
    g.Ascolta();
    g.Batti(Qt::Key_Z);
    g.Batti(Qt::Key_Q);
    EXPECT_EQ(g.Note(), (Interi{48, 60}));
    EXPECT_EQ(g.Dice("lblActNote"), "Do");
    g.Tocca("cmdInsNota");
    g.Batti(Qt::Key_F8);
    EXPECT_EQ(g.Colore("cmdSimbNote3"), Rgb(10, 254, 10));
    g.Batti(Qt::Key_F12);
    EXPECT_EQ(g.Dice("LblNoteString"), "Do;P;");
    g.Ascolta();
    g.Batti(Qt::Key_F9);
    EXPECT_EQ(g.Note(), Interi{60});
    g.Tocca("ShToolbar");
    EXPECT_FALSE(g.Vede("frToolBar"));
    g.Tocca("ShToolbar");
    EXPECT_TRUE(g.Vede("frToolBar"));
    QTest::mouseClick(g.scrivania.Davanti()->Finestra().windowHandle(), Qt::RightButton, {},
                      g.Di("lblNome").NellaFinestra(QPoint(-12, 4)));
    g.Calma();
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(dynamic_cast<QMenu&>(*QApplication::activePopupWidget()).actions().size(), 8);
    QApplication::activePopupWidget()->close();
}

void Riferimenti(Giro& g) {
    g.Tocca("cmdReset");
    for (const GestoMouse& gesto : GestiDi({"60;62;64;65;", "1;1;1;1;", "n;n;n;n;"}))
        g.Fai(gesto);
    g.ScriviIn("lblNini", "2");
    g.ScriviIn("lblNfine", "3");
    g.Tocca("cmdAddBm");
    g.Rispondi("mezzo");
    auto& elenco = g.Di("lstBookMark").Come<QListWidget>();
    ASSERT_EQ(elenco.count(), 2);
    EXPECT_EQ(elenco.item(0)->text(), QString::fromUtf8("1 ÷ 4 ÷Tutta la melodia"));
    EXPECT_EQ(elenco.item(1)->text(), QString::fromUtf8("2 ÷ 3 ÷ mezzo"));
    g.ScriviIn("lblNini", "1");
    g.Ascolta();
    g.ToccaRigaDueVolte("2 ÷ 3 ÷ mezzo", "lstBookMark");
    EXPECT_EQ(g.Note(), (Interi{62, 64}));
    EXPECT_EQ(g.Casella("lblNini"), "2");
    g.SalvaConNome("riferimenti");
    EXPECT_TRUE(
        g.Salvata("riferimenti").ends_with(" \xF7Tutta la melodia;2 \xF7 3 \xF7 mezzo;\r\n"))
        << g.Salvata("riferimenti");
    g.Tocca("cmdChiudi");
}

void BranoIncollato(Giro& g) {
    g.Tocca("cmdPaste");
    EXPECT_TRUE(g.Vede("lblIncolla"));
    EXPECT_EQ(g.Casella("lblNfine"), "3");
    g.Tocca("cmdPaste");
    EXPECT_FALSE(g.Vede("lblIncolla"));
    EXPECT_EQ(g.Casella("lblNfine"), "6");
    g.ScriviIn("lblNini", "1");
    EXPECT_EQ(g.Dice("LblNoteString"), "Do;Re;Mi;Fa;Re;Mi;");
    g.ScriviIn("lblNfine", "9");
    EXPECT_EQ(g.Casella("lblNfine"), "6");
    g.ScriviIn("lblNfine", "");
    EXPECT_EQ(g.Casella("lblNfine"), "6");
    g.ScriviIn("lblNini", "6");
    EXPECT_EQ(g.Casella("lblNini"), "6");
    g.ScriviIn("lblNini", "1");
    // A range of the alto is never of one note. The box first gives the keyboard away.
    g.Tocca("cmdSimbNote2");
    g.Tocca("VoceAttiva1");
    for (const GestoMouse& gesto : GestiDi({"48;50;52;", "1;1;1;", "n;n;n;"}))
        g.Fai(gesto);
    g.ScriviIn("lblNiniC", "3");
    EXPECT_EQ(g.Casella("lblNiniC"), "1");
    g.ScriviIn("lblNiniC", "2");
    EXPECT_EQ(g.Casella("lblNiniC"), "2");
}

/// For a voice: tried alone, and heard within the melody.
void StrumentoDiUnaVoce(Giro& g) {
    g.Tocca("VoceAttiva0");
    g.Tocca("pictCi");
    g.Attendi("frmStrum");
    EXPECT_EQ(g.Colore("VoceAttiva0"), verde);
    g.Ascolta();
    g.ScegliRiga("List1", "40 - ");
    EXPECT_EQ(g.Strumenti(), (std::vector<std::pair<int, int>>{{1, 40}}));
    g.Tocca("cmdTest");
    EXPECT_EQ(g.Note(), segnale);
    g.Ascolta();
    g.Tocca("cmdPlaySstru");
    EXPECT_EQ(g.Note(), (Interi{60, 62, 64, 65, 62, 64}));
    EXPECT_EQ(g.Dice("cmdPlaySstru"), "Play");
    g.Tocca("cmdEsci");
    g.Attendi("frmComposer");
    EXPECT_TRUE(g.Dice("lblInstr0").starts_with("40-"));
}

/// Into the folder in which melodies are saved.
void MelodieDalSupporto(Giro& g) {
    Apri(g, "mnuCopyFromA", "frmCopyFromA");
    g.ScegliRiga("List1", "gita");
    g.Tocca("cmdCopia");
    g.Tocca("cmdChiudi");
    g.Attendi("frmComposer");
    const auto& file = g.casa.casa.contenuti;
    EXPECT_EQ(file.at("/casa/Documenti/Corvana/Melodie/Demo/gita.mel"),
              file.at("/media/penna/gita.mel"));
    g.Apri("gita");
    EXPECT_EQ(g.Dice("LblNoteString"), "Do;Re;");
    g.Tocca("cmdCm");
    g.Attendi("CorvanaMainF");
}

void StrumentoDellaLetturaEDellOrecchio(Giro& g) {
    Apri(g, "mnuSs", "frmStrum");
    g.Ascolta();
    g.ScegliRiga("List1", "24 - ");
    EXPECT_EQ(g.Strumenti(), (std::vector<std::pair<int, int>>{{1, 24}}));
    g.Batti(Qt::Key_Escape);
    g.Attendi("CorvanaMainF");
    Apri(g, "mnuRicTo", "frmInto");
    Apri(g, "mnuSs", "frmStrum");
    g.Ascolta();
    g.ScegliRiga("List1", "25 - ");
    EXPECT_EQ(g.Strumenti(), (std::vector<std::pair<int, int>>{{1, 25}}));
    g.Tocca("cmdEsci");
    g.Attendi("frmInto");
    g.TornaA("CorvanaMainF");
}

/// "ABd" is typed: there are no other letters than a, b and c, and no capitals.
void SequenzaPropria(Giro& g) {
    g.Scegli("mnuMetro");
    g.Tocca("cmdSetup");
    g.Attendi("frmConfMetro");
    g.Ascolta();
    g.ScegliRiga("InstrA", "38");
    g.ScegliRiga("InstrB1", "27");
    g.ScegliRiga("InstrC", "51");
    EXPECT_EQ(g.Note(10), (Interi{38, 27, 51}));
    g.Di("txtPattern").Come<QLineEdit>().clear();
    QTest::keyClicks(&g.Di("txtPattern").Come<QLineEdit>(), "ABdcb");
    g.Calma();
    EXPECT_EQ(g.Casella("txtPattern"), "abcb");
    g.Di("txtTempo").Come<QLineEdit>().clear();
    QTest::keyClicks(&g.Di("txtTempo").Come<QLineEdit>(), "4/8");
    g.Calma();
    g.Tocca("cmdOk");
    g.Attendi("CorvanaMainF");
    g.AllEstremo("MetroTempoS", true);
    g.Ascolta();
    g.FermaDopo(1.6);
    g.Tocca("cmdSSmetro");
    EXPECT_EQ(g.Note(10), (Interi{38, 27, 51, 27, 38}));
    EXPECT_EQ(g.Dice("lblTs"), "4/8");
    g.Tocca("cmdSSmetro");
    g.Prosegui();
    g.Tocca("lblCloseMetro");
}

void EffettiEInformazioni(Giro& g) {
    const auto& bottone = StatoDi(g.scrivania, "ToolButton2");
    const int prima = bottone.Top;
    const Cosa cosa = g.Di("ToolButton2");
    Muovi(cosa, cosa.rect().center());
    g.Calma();
    EXPECT_EQ(bottone.Top, prima + 10);
    Muovi(g.Di("img"), QPoint(20, 20));
    g.Calma();
    EXPECT_EQ(bottone.Top, prima);
    EXPECT_EQ(StatoDi(g.scrivania, "BgMetro").Sfondo.inizio, Rgb(202, 143, 85));
    Apri(g, "mnuVersione", "frmAbout");
    EXPECT_TRUE(g.scrivania.Davanti()->Finestra().windowFlags() & Qt::FramelessWindowHint);
    EXPECT_TRUE(g.Dice("lblVersion").starts_with("Vers. "));
    EXPECT_EQ(StatoDi(g.scrivania, "frmBg").Sfondo.inizio, Rgb(255, 191, 58));
    g.Batti(Qt::Key_Escape);
    g.Attendi("CorvanaMainF");
}

void UsciteMidi(Giro& g) {
    g.casa.suonato->nomi = {"Sintetizzatore", "Tastiera"};
    Apri(g, "mnuMidiTest", "frmMidiTest");
    g.ScegliRiga("LstMidiDev", "Tastiera");
    EXPECT_EQ(g.Dice("lblDevID"), "Dev. ID: 1");
    EXPECT_EQ(g.casa.suonato->aperture.back(), 1);
    g.Ascolta();
    g.Tocca("cmdTest");
    EXPECT_EQ(g.Note(), Interi{69});
    EXPECT_EQ(g.casa.suonato->NoteAccese(), (std::vector<std::pair<int, int>>{{1, 69}}));
    g.Tocca("cmdOff");
    EXPECT_TRUE(g.casa.suonato->NoteAccese().empty());
    g.TornaA("CorvanaMainF");
}

}  // namespace

std::vector<Tappa> TappeDegliAttrezzi() {
    return {{"the chart", Tavola},
            {"the cursor beside the ruler", Cursore},
            {"arrows of a range, and a transposition", FrecceETrasposizione},
            {"pulses within a melody", PulsazioniNellaMelodia},
            {"keys, toolbar and context menu", TastiBarraEMenu},
            {"bookmarks", Riferimenti},
            {"a part pasted at the end", BranoIncollato},
            {"the instrument of a voice", StrumentoDiUnaVoce},
            {"melodies from a medium", MelodieDalSupporto},
            {"the instrument of the drills", StrumentoDellaLetturaEDellOrecchio},
            {"a pattern of one's own", SequenzaPropria},
            {"what moves under the pointer, and the about box", EffettiEInformazioni},
            {"the MIDI outputs", UsciteMidi}};
}

}  // namespace corvana::prova
