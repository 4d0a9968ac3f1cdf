// Where everything lies in the main window, in twips, and its texts before a language is applied.
#include <array>

#include "trainer/corvana_main.h"
#include "trainer/ranges.h"

namespace corvana {

namespace {

constexpr std::array menu = {
    Posto{"f1", 0, 0, 0, 0, "&File"},
    Posto{"Esci", 0, 0, 0, 0, "Esci"},
    Posto{"es", 0, 0, 0, 0, "&Esercizi"},
    Posto{"mnuCorvana", 0, 0, 0, 0, "Lettura delle note"},
    Posto{"Intonazione", 0, 0, 0, 0, "Intonazione"},
    Posto{"mnuRint", 0, 0, 0, 0, "Riconoscimento intervallo"},
    Posto{"mnuRac", 0, 0, 0, 0, "Riconoscimento tipo accordo"},
    Posto{"mnuRicTo", 0, 0, 0, 0, "Riconoscimento Tonalità"},
    Posto{"mnuRicTasto", 0, 0, 0, 0, "Riconoscimento Tasti"},
    Posto{"Risorse", 0, 0, 0, 0, "&Risorse"},
    Posto{"mnuComposer", 0, 0, 0, 0, "Composizione Melodie/Armonie"},
    Posto{"mnuMetro", 0, 0, 0, 0, "Metronomo"},
    Posto{"mnuPromemoria", 0, 0, 0, 0, "Promemoria"},
    Posto{"mnuMidiTest", 0, 0, 0, 0, "MIDI Test ..."},
    Posto{"Opzioni", 0, 0, 0, 0, "&Opzioni"},
    Posto{"Nominote1", 0, 0, 0, 0, "Do,Re,Mi..."},
    Posto{"Nominote2", 0, 0, 0, 0, "C,D,E..."},
    Posto{"Suono1", 0, 0, 0, 0, "Suono Generico"},
    Posto{"Suono2", 0, 0, 0, 0, "Suono Nota"},
    Posto{"mnuOrgano", 0, 0, 0, 0, "Organo"},
    Posto{"mnuPiano", 0, 0, 0, 0, "Pianoforte"},
    Posto{"mnuSs", 0, 0, 0, 0, "Scegli"},
    Posto{"mnuNormale", 0, 0, 0, 0, "Normale"},
    Posto{"mnuAutomatico", 0, 0, 0, 0, "Automatico"},
    Posto{"mnuLingua", 0, 0, 0, 0, "Lingua"},
    Posto{"mnuIt", 0, 0, 0, 0, "Italiano"},
    Posto{"mnuEn", 0, 0, 0, 0, "Inglese"},
    Posto{"Help", 0, 0, 0, 0, "Help"},
    Posto{"mnuAiuto", 0, 0, 0, 0, "Aiuto"},
    Posto{"mnuVersione", 0, 0, 0, 0, "Versione"},
};

constexpr std::array posti = {
    Posto{"CorvanaMainF", 0, 0, 11550, 7380, "Corvana"},
    Posto{"img", 0, 0, 6330, 4710, {}, {}, "pentagramma"},
    Posto{"Regolo", 810, 15, 255, 4695, {}, "Clicca per scegliere l'intervallo", "regolo"},
    Posto{"lblnn", 1065, 2340, 525, 390, {}, {}, "nome"},
    Posto{"lblMn", 6975, 3225, 360, 360, "?", "Mostra/Nascondi il nome della nota", "aiuto"},

    Posto{"bgConta", 6480, 90, 1050, 1290},
    Posto{"conta", 6585, 180, 840, 330, "0", "Risposte esatte", "cifra"},
    Posto{"er", 6585, 570, 840, 330, "0", "Risposte errate", "cifra"},
    Posto{"PercEs", 6585, 960, 840, 330, "0", "Percentuale", "cifra"},
    Posto{"PercBg", 6840, 1500, 330, 1620, {}, {}, "barra"},
    Posto{"PercMet", 6840, 1500, 330, 1620, {}, {}, "barra"},

    Posto{"ShToolbar", 7650, 90, 90, 600},
    Posto{"frToolBar", 7785, 90, 3615, 600},
    Posto{"ToolButton1", 60, 60, 480, 480, {}, "Intonazione", "icona:orecchio"},
    Posto{"ToolButton2", 570, 60, 480, 480, {}, "Composizione Melodie/Armonie", "icona:composer"},
    Posto{"ToolButton3", 1080, 60, 480, 480, {}, "Metronomo", "icona:metronomo"},
    Posto{"ToolButton4", 1590, 60, 480, 480, {}, "Promemoria", "icona:promemoria"},
    Posto{"ToolButton5", 2100, 60, 480, 480, {}, "Scegli lo strumento", "icona:strumenti"},
    Posto{"ToolButton6", 2610, 60, 480, 480, {}, "Normale/Automatico", "icona:modo"},
    Posto{"ToolButton7", 3120, 60, 480, 480, {}, "Aiuto", "icona:aiuto"},

    Posto{"Intervallo", 7650, 780, 3750, 270, "Intervallo", {}, "titolo"},
    Posto{"difficolt", 7650, 1080, 3750, 2970, {}, "Scegli le note dell'esercizio"},
    Posto{"Start", 7650, 4155, 3750, 540, "Start", {}, "principale"},

    Posto{"pdo", 150, 4860, 930, 600, "DO", {}, "risposta"},
    Posto{"pre", 1170, 4860, 930, 600, "RE", {}, "risposta"},
    Posto{"pmi", 2190, 4860, 930, 600, "MI", {}, "risposta"},
    Posto{"pfa", 3210, 4860, 930, 600, "FA", {}, "risposta"},
    Posto{"psol", 4230, 4860, 930, 600, "SOL", {}, "risposta"},
    Posto{"pla", 5250, 4860, 930, 600, "LA", {}, "risposta"},
    Posto{"psi", 6270, 4860, 930, 600, "SI", {}, "risposta"},

    Posto{"Shape5", 150, 5580, 3900, 690},
    Posto{"lblAuto1", 240, 5610, 3720, 300, "Do - Re - Mi - Fa - Sol - La - Si"},
    Posto{"lblAuto2", 240, 5940, 3720, 300, "d   - 1    - f    - 2    - g   - 3   - h"},
    Posto{"Shape6", 4140, 5580, 3060, 690},
    Posto{"Velocità", 4230, 5610, 2880, 300},
    Posto{"Slider1", 4230, 5940, 2880, 270},

    Posto{"frmMetro", 150, 6360, 7050, 930},

    Posto{"frmRisultati", 7650, 4860, 3750, 1950},
    Posto{"bgRis0", 0, 0, 3750, 390},
    Posto{"bgRis1", 0, 390, 3750, 390},
    Posto{"bgRis2", 0, 780, 3750, 390},
    Posto{"bgRis3", 0, 1170, 3750, 390},
    Posto{"bgRis4", 0, 1560, 3750, 390},
    Posto{"Lresatte", 120, 45, 3510, 300},
    Posto{"Lrerrate", 120, 435, 3510, 300},
    Posto{"Ridate", 120, 825, 3510, 300},
    Posto{"Lnmostrate", 120, 1215, 3510, 300},
    Posto{"Tempoimp", 120, 1605, 3510, 300},

    Posto{"cmdEscibg", 10200, 6900, 1200, 390, {}, {}, "pulsante"},
    Posto{"cmdEsci", 10200, 6900, 1200, 390, "Esci", {}, "pulsante"},
};

void DisponiNote(CorvanaMainF& finestra) {
    constexpr std::array stili = {"maschera", "testa", "acuta"};
    auto nota = finestra.n.begin();
    for (const Posizione& p : Posizioni()) {
        nota->Left = p.left;
        nota->Top = p.top;
        nota->Width = p.width;
        nota->Height = p.height;
        nota->stile = stili.at(static_cast<std::size_t>(p.specie));
        ++nota;
    }
}

}  // namespace

void DisponiPrincipale(CorvanaMainF& finestra) {
    Disponi(finestra, menu.data(), menu.size());
    Disponi(finestra, posti.data(), posti.size());
    DisponiNote(finestra);
    for (const RigaEsercizio& riga : righeEsercizio)
        finestra.difficolt.AddItem(std::string(riga.testo));
    finestra.Slider1.Min = 20;
    finestra.Slider1.Max = 140;
    finestra.Slider1.Value = 30;
    for (Casella* casella : {&finestra.conta, &finestra.er, &finestra.PercEs})
        casella->Locked = true;
    finestra.cmdEsci.BackColor = Rgb(255, 236, 200);
    finestra.cmdEsci.ForeColor = Rgb(0, 0, 255);
    finestra.Start.BackColor = finestra.cmdEsci.BackColor();
    for (Bottone* risposta : {&finestra.pdo, &finestra.pre, &finestra.pmi, &finestra.pfa,
                              &finestra.psol, &finestra.pla, &finestra.psi})
        risposta->BackColor = Rgb(198, 239, 206);
    finestra.lblnn.Visible = false;
    finestra.Shape5.Visible = false;
    finestra.Shape6.Visible = false;
    finestra.mnuNormale.Checked = true;
}

}  // namespace corvana
