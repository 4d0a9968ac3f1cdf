// Where everything lies in the main window, in twips, and its texts before a language is applied.
#include <array>

#include "trainer/corvana_main.h"

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
    Posto{"Help", 0, 0, 0, 0, "&Help"},
    Posto{"mnuAiuto", 0, 0, 0, 0, "Aiuto"},
    Posto{"mnuVersione", 0, 0, 0, 0, "Versione"},
};

constexpr std::array posti = {
    Posto{"CorvanaMainF", 0, 0, 12000, 7800, "Corvana", {}, "ornamento"},
    Posto{"img", 0, 0, 6330, 4710, {}, {}, "pentagramma letto"},
    Posto{"Regolo", 810, 15, 255, 4695, {}, "Clicca per scegliere l'intervallo", "regolo"},
    Posto{"lblnn", 1065, 2340, 525, 390, {}, {}, "nome letto annunciato"},
    Posto{"lblMn", 6975, 3225, 360, 360, "?", "Mostra/Nascondi il nome della nota", "aiuto"},

    Posto{"bgConta", 6420, 180, 1470, 1560, {}, {}, "carta"},
    Posto{"conta", 6480, 270, 1350, 420, "0", "Risposte esatte", "cifra giuste destra letto"},
    Posto{"er", 6480, 750, 1350, 420, "0", "Risposte errate",
          "cifra sbagliate destra letto annunciato"},
    Posto{"PercEs", 6480, 1230, 1350, 420, "0", "Percentuale", "percento centro letto"},
    Posto{"PercBg", 6960, 1890, 390, 1200, {}, {}, "barra"},
    Posto{"PercMet", 6960, 1890, 390, 1200, {}, {}, "barra"},

    Posto{"ShToolbar", 7980, 210, 120, 540, {}, {}, "tondo nome:Risorse"},
    Posto{"frToolBar", 8190, 180, 3630, 600},
    Posto{"ToolButton1", 0, 60, 480, 480, {}, "Intonazione", "icona:orecchio"},
    Posto{"ToolButton2", 525, 60, 480, 480, {}, "Composizione Melodie/Armonie", "icona:composer"},
    Posto{"ToolButton3", 1050, 60, 480, 480, {}, "Metronomo", "icona:metronomo"},
    Posto{"ToolButton4", 1575, 60, 480, 480, {}, "Promemoria", "icona:promemoria"},
    Posto{"ToolButton5", 2100, 60, 480, 480, {}, "Scegli lo strumento", "icona:strumenti"},
    Posto{"ToolButton6", 2625, 60, 480, 480, {}, "Normale/Automatico", "icona:modo"},
    Posto{"ToolButton7", 3150, 60, 480, 480, {}, "Aiuto", "icona:aiuto"},

    Posto{"Intervallo", 7980, 930, 3840, 300, "Intervallo", {}, "titolo"},
    Posto{"difficolt", 7980, 1260, 3840, 3450, {}, "Scegli le note dell'esercizio", "separata"},
    Posto{"Start", 7980, 4920, 2490, 600, "Start", {}, "principale"},
    Posto{"cmdEscibg", 10620, 4920, 1200, 600, {}, {}, "pulsante dietro"},
    Posto{"cmdEsci", 10620, 4920, 1200, 600, "Esci", {}, "pulsante forte"},

    Posto{"pdo", 180, 4920, 960, 600, "DO", {}, "risposta"},
    Posto{"pre", 1290, 4920, 960, 600, "RE", {}, "risposta"},
    Posto{"pmi", 2400, 4920, 960, 600, "MI", {}, "risposta"},
    Posto{"pfa", 3510, 4920, 960, 600, "FA", {}, "risposta"},
    Posto{"psol", 4620, 4920, 960, 600, "SOL", {}, "risposta"},
    Posto{"pla", 5730, 4920, 960, 600, "LA", {}, "risposta"},
    Posto{"psi", 6840, 4920, 960, 600, "SI", {}, "risposta"},

    Posto{"Shape5", 180, 5670, 4290, 870, {}, {}, "carta"},
    Posto{"lblAuto1",
          240,
          5730,
          4170,
          300,
          "Do - Re - Mi - Fa - Sol - La - Si",
          {},
          "colonne piccolo"},
    Posto{"lblAuto2",
          240,
          6045,
          4170,
          405,
          "d   - 1    - f    - 2    - g   - 3   - h",
          {},
          "colonne tasti"},
    Posto{"Shape6", 4620, 5670, 3180, 870, {}, {}, "carta"},
    Posto{"Velocità", 4770, 5745, 2880, 300},
    Posto{"Slider1", 4770, 6075, 2880, 330},

    Posto{"frmMetro", 180, 6660, 7620, 990},

    Posto{"frmRisultati", 7980, 5670, 3840, 1980, {}, {}, "carta"},
    Posto{"bgRis0", 75, 75, 3690, 330, {}, {}, "tondo"},
    Posto{"bgRis1", 75, 450, 3690, 330, {}, {}, "tondo"},
    Posto{"bgRis2", 75, 825, 3690, 330, {}, {}, "tondo"},
    Posto{"bgRis3", 75, 1200, 3690, 330, {}, {}, "tondo"},
    Posto{"bgRis4", 75, 1575, 3690, 330, {}, {}, "tondo"},
    Posto{"Lresatte", 180, 75, 3480, 330, {}, {}, "forte mezzo letto annunciato"},
    Posto{"Lrerrate", 180, 450, 3480, 330, {}, {}, "forte mezzo letto annunciato"},
    Posto{"Ridate", 180, 825, 3480, 330, {}, {}, "forte mezzo letto annunciato"},
    Posto{"Lnmostrate", 180, 1200, 3480, 330, {}, {}, "forte mezzo letto annunciato"},
    Posto{"Tempoimp", 180, 1575, 3480, 330, {}, {}, "forte mezzo letto annunciato"},
};

}  // namespace

void DisponiPrincipale(CorvanaMainF& finestra) {
    Disponi(finestra, menu.data(), menu.size());
    Disponi(finestra, posti.data(), posti.size());
    finestra.cmdEsci.BackColor = coloreFermo;
    finestra.cmdEsci.ForeColor = Rgb(0, 0, 255);
}

}  // namespace corvana
