// The first windows of the tour: the reading of notes, and the metronome beside it.
#include <gtest/gtest.h>

#include <QAction>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <map>

#include "tests/desktop/tour.h"

namespace corvana::prova {

namespace {

using Testi = std::vector<std::string>;

/// Of the seven notes from the middle Do on, by their positions on the upper staff.
struct NotaLetta {
    int midi;
    const char* nome;
    Qt::Key tasto;
    Qt::KeyboardModifiers dove;
};

const std::map<int, NotaLetta> lette = {
    {44, {60, "Do", Qt::Key_D, {}}},  {45, {62, "Re", Qt::Key_1, Qt::KeypadModifier}},
    {46, {64, "Mi", Qt::Key_F, {}}},  {47, {65, "Fa", Qt::Key_2, Qt::KeypadModifier}},
    {48, {67, "Sol", Qt::Key_G, {}}}, {49, {69, "La", Qt::Key_3, Qt::KeypadModifier}},
    {50, {71, "Si", Qt::Key_H, {}}}};

/// The one note that stands on the staff.
const NotaLetta& Mostrata(Giro& g) {
    const Interi mostrate = g.SulPentagramma();
    if (mostrate.size() != 1) throw std::logic_error("not one note on the staff");
    return lette.at(mostrate.front());
}

void Indovina(Giro& g) {
    const NotaLetta nota = Mostrata(g);
    g.Batti(nota.tasto, nota.dove);
}

void Sbaglia(Giro& g) {
    const bool eDo = Mostrata(g).midi == 60;
    g.Batti(eDo ? Qt::Key_F : Qt::Key_D);
}

void SulRegolo(Giro& g, int twips) {
    const Cosa regolo = g.Di("Regolo");
    g.Tocca("Regolo", QPoint(regolo.width() / 2, twips * regolo.height() / 4695));
}

void SegnaleDApertura(Giro& g) {
    EXPECT_EQ(g.casa.suonato->aperture, Interi{-1});
    EXPECT_EQ(g.Note(), (Interi{71, 72, 69, 64, 69}));
    EXPECT_EQ(g.Strumenti(),
              (std::vector<std::pair<int, int>>{{1, 16}, {2, 16}, {3, 16}, {4, 16}}));
}

void FinestraPrincipale(Giro& g) {
    EXPECT_TRUE(g.Titolo().starts_with("Corvana - Lettura")) << g.Titolo();
    Testi menu;
    for (const QAction* voce : g.scrivania.Davanti()->Finestra().menuBar()->actions())
        if (voce->isVisible()) menu.push_back(voce->text().toStdString());
    EXPECT_EQ(menu, (Testi{"&File", "&Esercizi", "&Risorse", "&Opzioni", "&Help"}));
    for (int bottone = 1; bottone <= 7; ++bottone)
        EXPECT_TRUE(g.Vede("ToolButton" + std::to_string(bottone)));
}

void ScelteDelleNote(Giro& g) {
    g.Batti(Qt::Key_V);
    EXPECT_EQ(g.SulPentagramma(), (Interi{40, 62}));
    EXPECT_EQ(g.Di("difficolt").Come<QListWidget>().currentRow(), 3);
    SulRegolo(g, 1882);
    EXPECT_FALSE(g.Usabile("Start"));
    SulRegolo(g, 1365);
    EXPECT_TRUE(g.Usabile("Start"));
    EXPECT_EQ(g.SulPentagramma(), (Interi{44, 50}));
}

void NotaSulPentagramma(Giro& g) {
    g.Ascolta();
    g.Tocca("Start");
    EXPECT_EQ(g.Note(), Interi{Mostrata(g).midi});
    g.primeNote = g.SulPentagramma();
    EXPECT_FALSE(g.Vede("lblnn"));
    g.Tocca("lblMn");
    EXPECT_TRUE(g.Vede("lblnn"));
    EXPECT_EQ(g.Dice("lblnn"), Mostrata(g).nome);
    g.Tocca("Start");
    g.Scegli("Suono1");
    g.Ascolta();
    g.Tocca("Start");
    EXPECT_EQ(g.Onde(), Testi{"rok.wav"});
    EXPECT_EQ(g.Note(), Interi{});
    g.primeNote.push_back(g.SulPentagramma().front());
    g.Tocca("Start");
    QMenu& suoni = *TrovaVoce(g.scrivania, "Suono2").menu();
    suoni.popup(QPoint());
    g.Calma();
    suoni.close();
}

void EsercizioNormale(Giro& g) {
    g.Tocca("Start");
    EXPECT_EQ(g.Bottone("Start"), "Stop");
    g.Ascolta();
    for (int volta = 0; volta < 3; ++volta)
        Sbaglia(g);
    EXPECT_EQ(g.Onde(), (Testi{"rko.wav", "rko.wav", "rko.wav"}));
    Indovina(g);
    EXPECT_EQ(g.Casella("conta"), "1");
    EXPECT_EQ(g.Casella("er"), "3");
    EXPECT_EQ(g.Casella("PercEs"), "25.00%");
    const auto& barra = StatoDi(g.scrivania, "PercMet");
    const auto& fondo = StatoDi(g.scrivania, "PercBg");
    EXPECT_EQ(barra.Height, fondo.Height / 4);
    EXPECT_EQ(barra.Top + barra.Height, fondo.Top + fondo.Height);
    g.Tocca("Start");
    EXPECT_TRUE(g.Vede("frmRisultati"));
    EXPECT_EQ(g.Dice("Lresatte"), "Risposte esatte: 1");
    EXPECT_EQ(g.Dice("Lrerrate"), "Risposte errate: 3");
    EXPECT_EQ(g.SulPentagramma(), Interi{});
}

/// The first note is named, the second wrongly, the third not at all.
void EsercizioAutomatico(Giro& g) {
    g.Scegli("mnuAutomatico");
    EXPECT_EQ(g.Dice("Velocità"), "Note al minuto: 30");
    g.Ascolta();
    g.FermaDopo(0.5);
    g.Tocca("Start");
    Indovina(g);
    g.LasciaPassare(2);
    Sbaglia(g);
    g.LasciaPassare(2);
    EXPECT_EQ(g.Casella("conta"), "3");
    EXPECT_EQ(g.Casella("er"), "1");
    EXPECT_EQ(g.Casella("PercEs"), "33.33%");
    EXPECT_EQ(g.Onde(), (Testi{"rok.wav", "rko.wav"}));
    g.Tocca("Start");
    EXPECT_EQ(g.Bottone("Start"), "Start");
    EXPECT_TRUE(g.Vede("frmRisultati"));
    g.Prosegui();
    g.Scegli("mnuNormale");
}

int LuciInVista(Giro& g) {
    int luci = 0;
    for (int luce = 0; luce < 20; ++luce)
        luci += g.Vede("lblPuls" + std::to_string(luce)) ? 1 : 0;
    return luci;
}

/// The pulses of so many seconds: the first comes when the first beat is over.
Interi Batti(Giro& g, double secondi) {
    g.Ascolta();
    g.FermaDopo(secondi);
    g.Tocca("cmdSSmetro");
    const Interi pulsi = g.Note(10);
    g.luci = {g.Colore("lblPuls0"), g.Colore("lblPuls1")};
    EXPECT_FALSE(g.Usabile("lblCloseMetro"));
    g.Tocca("cmdSSmetro");
    g.Prosegui();
    EXPECT_TRUE(g.Usabile("lblCloseMetro"));
    return pulsi;
}

void Metronomo(Giro& g) {
    g.Scegli("mnuMetro");
    EXPECT_EQ(Batti(g, 4.5), (Interi{76, 85, 76, 85}));
    EXPECT_EQ(g.luci, (Interi{Rgb(170, 170, 170), Rgb(0, 255, 0)}));
    for (const int luci : {3, 4, 6, 2}) {
        g.Tocca("lblTs");
        EXPECT_EQ(LuciInVista(g), luci);
    }
    g.Tocca("lblX12");
    EXPECT_EQ(g.Dice("lblTempo"), "120");
    EXPECT_EQ(Batti(g, 2.25).size(), 4U);
    EXPECT_EQ(g.Forze(10).front(), 127);
    g.Tocca("lblX12");
    g.AllEstremo("MetroVol", false);
    EXPECT_EQ(Batti(g, 1.5), Interi{}) << "without a volume none is heard";
    g.AllEstremo("MetroVol", true);
    g.AllEstremo("MetroTempoS", false);
    EXPECT_EQ(g.Dice("lblTempo"), "20");
    g.AllEstremo("MetroTempoS", true);
    EXPECT_EQ(g.Dice("lblTempo"), "200");
}

/// It hears its user once for each pulse, and so does the drill beside it.
void MetronomoAccantoAllEsercizio(Giro& g) {
    g.Tocca("Start");
    g.Ascolta();
    g.FermaDopo(1);
    g.Tocca("cmdSSmetro");
    Indovina(g);
    EXPECT_EQ(g.Casella("conta"), "0");
    g.LasciaPassare(3);
    EXPECT_EQ(g.Casella("conta"), "1");
    EXPECT_GE(g.Note(10).size(), 2U);
    g.Tocca("cmdSSmetro");
    g.Prosegui();
    g.Tocca("Start");
    g.Tocca("lblCloseMetro");
    EXPECT_FALSE(g.Vede("frmMetro"));
}

void AltraLingua(Giro& g) {
    EXPECT_TRUE(g.Vede("frmRisultati"));
    g.Scegli("mnuEn");
    EXPECT_FALSE(g.Vede("frmRisultati"));
    EXPECT_TRUE(g.Titolo().starts_with("Corvana - Note reading")) << g.Titolo();
    EXPECT_EQ(g.Bottone("pdo"), "C");
    g.Tocca("Start");
    Indovina(g);
    g.Tocca("Start");
    EXPECT_EQ(g.Dice("Lresatte"), "Correct answers: 1");
    g.Scegli("mnuIt");
    EXPECT_EQ(g.Bottone("pdo"), "DO");
}

}  // namespace

std::vector<Tappa> TappeDellaLettura() {
    return {{"the opening signal", SegnaleDApertura},
            {"the main window", FinestraPrincipale},
            {"the notes to be practised", ScelteDelleNote},
            {"a note on the staff", NotaSulPentagramma},
            {"a drill at one's own pace", EsercizioNormale},
            {"a drill against the clock", EsercizioAutomatico},
            {"the metronome", Metronomo},
            {"the metronome beside a drill", MetronomoAccantoAllEsercizio},
            {"the other language", AltraLingua}};
}

}  // namespace corvana::prova
