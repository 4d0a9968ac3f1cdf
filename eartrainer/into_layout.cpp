#include "eartrainer/into_layout.h"

#include <array>

#include "eartrainer/into.h"

namespace corvana {

namespace {

constexpr std::array postiMenu = {
    Posto{"Esercizio", 0, 0, 0, 0, "&Esercizio"},
    Posto{"mnuNotA", 0, 0, 0, 0, "Riconoscimento altezza nota"},
    Posto{"mnuRint", 0, 0, 0, 0, "Riconoscimento intervallo"},
    Posto{"mnuRicTa", 0, 0, 0, 0, "Riconoscimento tipo accordo"},
    Posto{"mnuRicTasto", 0, 0, 0, 0, "Riconoscimento tasti"},
    Posto{"mnuRicTo", 0, 0, 0, 0, "Riconoscimento Tonalità"},
    Posto{"strumento", 0, 0, 0, 0, "&Strumento"},
    Posto{"mnuPiano", 0, 0, 0, 0, "Pianoforte"},
    Posto{"mnuOrgano", 0, 0, 0, 0, "Organo"},
    Posto{"mnuSs", 0, 0, 0, 0, "Scegli"},
    Posto{"Opzioni", 0, 0, 0, 0, "&Opzioni"},
    Posto{"mnuNotLat", 0, 0, 0, 0, "Do,Re,Mi..."},
    Posto{"mnuNotAnglo", 0, 0, 0, 0, "C,D,E..."},
};

constexpr std::array postiInto = {
    Posto{"frmInto", 0, 0, 11190, 6600,
          "Riconoscimento altezza nota / Intervallo / Tipo accordo / Tasti / Tonalità"},
    Posto{"ShToolbar", 180, 210, 120, 540, {}, {}, "tondo nome:strumento"},
    Posto{"frToolBar", 390, 180, 3630, 600},
    Posto{"ToolButton1", 0, 60, 480, 480, {}, {}, "icona:orecchio"},
    Posto{"ToolButton2", 525, 60, 480, 480, {}, {}, "icona:intervallo"},
    Posto{"ToolButton3", 1050, 60, 480, 480, {}, {}, "icona:accordo"},
    Posto{"ToolButton4", 1575, 60, 480, 480, {}, {}, "icona:tonalita"},
    Posto{"ToolButton5", 2100, 60, 480, 480, {}, {}, "icona:tasti"},
    Posto{"ToolButton6", 2625, 60, 480, 480, {}, {}, "icona:strumenti"},
    Posto{"ToolButton7", 3150, 60, 480, 480, {}, {}, "icona:aiuto"},
    Posto{"lblStep", 180, 1050, 8040, 600, {}, {}, "carta titolo centro mezzo"},

    Posto{"Label2", 8430, 1050, 2580, 300, "Risposte esatte"},
    Posto{"txtResatte", 8430, 1350, 1800, 450, "0", {}, "cifra giuste destra"},
    Posto{"lblOk", 10380, 1380, 390, 390, {}, {}, "tondo"},
    Posto{"Label1", 8430, 1920, 2580, 300, "Risposte errate"},
    Posto{"txtRerrate", 8430, 2220, 1800, 450, "0", {}, "cifra sbagliate destra"},
    Posto{"lblKo", 10380, 2250, 390, 390, {}, {}, "tondo"},
    Posto{"lblPerc", 8430, 2790, 2580, 450, "0", "Percentuale", "percento centro"},
    Posto{"cmdEsci", 8430, 5760, 2580, 600, "Esci", {}, "pulsante forte"},

    Posto{"frmInto2", 180, 3000, 8040, 3360, {}, {}, "carta"},
    Posto{"Label6", 210, 210, 960, 480, "Modo", {}, "pulsante"},
    Posto{"lblMod", 1290, 210, 600, 480, "/", {}, "pulsante"},
    Posto{"lblSolotb", 2160, 210, 900, 660, {}, {}, "pulsante"},
    Posto{"lblT1", 2400, 225, 150, 390},
    Posto{"lblT2", 2670, 225, 150, 390},
    Posto{"IntoStart", 210, 2550, 2490, 600, "Start", {}, "principale"},
    Posto{"cmdReimposta", 2820, 2550, 1800, 600, "Reimposta"},
    Posto{"frInto", 3600, 120, 4290, 900},
    Posto{"lblRipInto", 60, 90, 1500, 480, "Ripeti", {}, "pulsante"},
    Posto{"lblIntoSh", 1680, 90, 480, 480, "?", {}, "aiuto"},
    Posto{"lblIntoNN", 2280, 90, 1200, 480, {}, {}, "nome centro"},

    Posto{"FrmIntervalli", 180, 3000, 8040, 3360, {}, {}, "carta"},
    Posto{"Label5", 45, 420, 540, 420, "Semit.", {}, "piccolo mezzo"},
    Posto{"Label7", 210, 1620, 960, 480, "Modo", {}, "pulsante"},
    Posto{"lblModo", 1290, 1620, 900, 480, " : ", {}, "pulsante"},
    Posto{"lblFv", 2310, 1620, 1500, 480, {}, {}, "pulsante"},
    Posto{"IntRoot", 3930, 1620, 600, 480, {}, {}, "nome centro"},
    Posto{"SelIntRoot", 4620, 1680, 3240, 360},
    Posto{"frmRifVar", 3900, 1560, 4020, 600},
    Posto{"lblRifInf", 0, 60, 600, 480, {}, {}, "pulsante"},
    Posto{"RifInf", 630, 120, 1320, 360},
    Posto{"lblRifSup", 2040, 60, 600, 480, {}, {}, "pulsante"},
    Posto{"RifSup", 2670, 120, 1320, 360},
    Posto{"CmdIntStart", 210, 2550, 2490, 600, "Start", {}, "principale"},
    Posto{"lblRipInt", 2820, 2550, 1500, 600, "Ripeti", {}, "pulsante"},
    Posto{"lblIntSh", 4440, 2610, 480, 480, "?", {}, "aiuto"},
    Posto{"lblNi", 5040, 2610, 1200, 480, {}, {}, "nome centro"},
    Posto{"lblNs", 6360, 2610, 1200, 480, {}, {}, "nome centro"},

    Posto{"frmRacc", 180, 3000, 8040, 3360, {}, {}, "carta"},
    Posto{"ComdRacStart", 210, 2550, 2490, 600, "Start", {}, "principale"},
    Posto{"cmdRes", 2820, 2550, 1500, 600, "Reim", "Reimposta intervallo"},
    Posto{"lblRipta", 4440, 2550, 1500, 600, "Ripeti", {}, "pulsante"},
    Posto{"lblModoVt", 210, 1620, 960, 480, "Modo", {}, "pulsante"},
    Posto{"lblVt", 1290, 1620, 1800, 480, {}, "Mostra tasti suonati", "pulsante"},

    Posto{"frmRicTasto", 180, 3000, 8040, 3360, {}, {}, "carta"},
    Posto{"lblSceltaTasti", 210, 300, 3600, 480, "Solo tasti bianchi",
          "Clicca per cambiare la difficoltà dell'esercizio", "pulsante"},
    Posto{"cmdRicTasto", 210, 2550, 2490, 600, "Start", {}, "principale"},

    Posto{"frmTo", 180, 3000, 8040, 3360, {}, {}, "carta"},
    Posto{"Label9", 120, 90, 1800, 285, "Maggiore"},
    Posto{"Label10", 120, 1260, 1800, 285, "Minore"},
    Posto{"cmdT", 210, 2550, 2490, 600, "Start", {}, "principale"},
    Posto{"lblRipeti", 2820, 2550, 1500, 600, "Ripeti", {}, "pulsante"},
    Posto{"lblTsh", 4440, 2610, 480, 480, "?", "Mostra tonalità", "aiuto"},
};

constexpr Colore fondoPasso = Rgb(255, 255, 192), fondoModo = Rgb(255, 236, 200);
constexpr Colore fondoRisposte = Rgb(224, 240, 255);
constexpr Colore fondoMaggiori = Rgb(202, 247, 247), fondoMinori = Rgb(218, 255, 218);

void PoniIn(Controllo& controllo, int left, int top, int width, int height, const char* stile) {
    controllo.Left = left;
    controllo.Top = top;
    controllo.Width = width;
    controllo.Height = height;
    controllo.stile = stile;
}

/// A grid of columns, one for each number of semitones.
void DisponiGriglia(PaginaIntervalli& pagina) {
    constexpr int sinistra = 600, colonna = 525, larga = 495;
    const auto posto = [](int semitoni) { return sinistra + semitoni * colonna; };
    for (int n = 0; n < dimensioniIntervallo; ++n) {
        const auto quale = static_cast<std::size_t>(n);
        PoniIn(pagina.LblSemi[quale], posto(n), 420, larga, 420, "risposta pulsante");
        PoniIn(pagina.Il[quale], posto(n), 870, larga, 105, "tondo");
        pagina.LblSemi[quale].BackColor = fondoRisposte;
    }
    for (std::size_t i = 0; i < nomiIntervalli.size(); ++i) {
        const NomeIntervallo& nome = nomiIntervalli.at(i);
        PoniIn(pagina.Label4[i], posto(nome.semitoni) - 15, nome.sopra ? 105 : 1020, colonna, 285,
               "piccolo centro tondo");
    }
    pagina.lblIntSh.BackColor = fondoRisposte;
}

void DisponiTipi(PaginaAccordi& pagina, Colore neutro) {
    constexpr int colonna = 1650, larga = 1500;
    for (std::size_t i = 0; i < pagina.TipoAcc.size(); ++i) {
        const int sinistra = 210 + static_cast<int>(i) * colonna;
        PoniIn(pagina.TipoAcc[i], sinistra, 240, larga, 600, "risposta pulsante");
        PoniIn(pagina.EsclTa[i], sinistra, 870, larga, 105, "tondo");
        pagina.TipoAcc[i].BackColor = neutro;
    }
}

void DisponiCelle(PaginaTonalita& pagina) {
    constexpr int colonna = 645, larga = 600;
    for (std::size_t i = 0; i < corvana::tonalita; ++i) {
        const int sinistra = 150 + static_cast<int>(i % tonalitaMaggiori) * colonna;
        const int sopra = Maggiore(i) ? 375 : 1545;
        PoniIn(pagina.lblT[i], sinistra, sopra, larga, 105, "tondo");
        PoniIn(pagina.T[i], sinistra, sopra + 135, larga, 600, "risposta pulsante");
        pagina.T[i].BackColor = Maggiore(i) ? fondoMaggiori : fondoMinori;
    }
}

}  // namespace

void DisponiInto(frmInto& f) {
    Disponi(f, postiMenu.data(), postiMenu.size());
    Disponi(f, postiInto.data(), postiInto.size());
    f.telaio.lblStep.BackColor = fondoPasso;
    f.intonazione.Label6.BackColor = fondoModo;
    for (Bottone* start : {&f.intonazione.IntoStart, &f.intervalli.CmdIntStart,
                           &f.accordi.ComdRacStart, &f.tasti.cmdRicTasto, &f.tonalita.cmdT})
        start->BackColor = fondoModo;
    DisponiGriglia(f.intervalli);
    DisponiTipi(f.accordi, f.intervalli.Label4[7].BackColor);
    DisponiCelle(f.tonalita);
    // What shows only once it was asked for.
    f.intonazione.lblIntoNN.Visible = false;
    f.intervalli.lblNi.Visible = false;
    f.intervalli.lblNs.Visible = false;
    f.intervalli.frmRifVar.Visible = false;
}

}  // namespace corvana
