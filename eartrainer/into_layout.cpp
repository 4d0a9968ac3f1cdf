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
    Posto{"frmInto", 0, 0, 12600, 6390,
          "Riconoscimento altezza nota / Intervallo / Tipo accordo / Tasti / Tonalità"},
    Posto{"lblStep", 180, 180, 8220, 600, {}, {}, "carta titolo centro mezzo letto annunciato"},
    Posto{"ShToolbar", 8580, 210, 120, 540, {}, {}, "tondo nome:strumento"},
    Posto{"frToolBar", 8790, 180, 3630, 600},
    Posto{"ToolButton1", 0, 60, 480, 480, {}, {}, "icona:orecchio"},
    Posto{"ToolButton2", 525, 60, 480, 480, {}, {}, "icona:intervallo"},
    Posto{"ToolButton3", 1050, 60, 480, 480, {}, {}, "icona:accordo"},
    Posto{"ToolButton4", 1575, 60, 480, 480, {}, {}, "icona:tonalita"},
    Posto{"ToolButton5", 2100, 60, 480, 480, {}, {}, "icona:tasti"},
    Posto{"ToolButton6", 2625, 60, 480, 480, {}, {}, "icona:strumenti"},
    Posto{"ToolButton7", 3150, 60, 480, 480, {}, {}, "icona:aiuto"},

    Posto{"bgPunti", 8580, 2310, 3840, 3120, {}, {}, "carta"},
    Posto{"Label2", 8790, 2490, 3420, 300, "Risposte esatte"},
    Posto{"txtResatte",
          8790,
          2805,
          2700,
          540,
          "0",
          {},
          "cifra riquadro giuste destra mezzo letto annunciato nome:Label2 nome:txtResatte"},
    Posto{"lblOk", 11670, 2805, 540, 540, {}, {}, "tondo esito giuste nome:Label2"},
    Posto{"Label1", 8790, 3480, 3420, 300, "Risposte errate"},
    Posto{"txtRerrate",
          8790,
          3795,
          2700,
          540,
          "0",
          {},
          "cifra riquadro sbagliate destra mezzo letto annunciato nome:Label1 nome:txtRerrate"},
    Posto{"lblKo", 11670, 3795, 540, 540, {}, {}, "tondo esito sbagliate nome:Label1"},
    Posto{"lblPerc", 8790, 4590, 3420, 600, "0", "Percentuale",
          "percento riquadro centro mezzo letto"},
    Posto{"cmdEsci", 8580, 5610, 3840, 600, "Esci", {}, "pulsante forte"},

    Posto{"frmInto2", 180, 2310, 8220, 3900, {}, {}, "carta"},
    Posto{"Label6", 210, 720, 1200, 600, "Modo", {}, "pulsante"},
    Posto{"lblMod", 1530, 720, 6480, 600, "/", {}, "detto"},
    Posto{"lblSolotb", 1530, 1560, 6480, 600, {}, {}, "detto tastierina"},
    Posto{"lblT1", 1835, 1650, 130, 250, {}, {}, "tastino"},
    Posto{"lblT2", 2055, 1650, 130, 250, {}, {}, "tastino"},
    Posto{"IntoStart", 210, 3090, 2490, 600, "Start", {}, "principale"},
    Posto{"cmdReimposta", 6510, 3090, 1500, 600, "Reimposta"},
    Posto{"frInto", 2820, 3000, 3660, 780},
    Posto{"lblRipInto", 0, 90, 1500, 600, "Ripeti", {}, "pulsante"},
    Posto{"lblIntoSh", 1620, 150, 480, 480, "?", {}, "aiuto"},
    Posto{"lblIntoNN", 2220, 90, 1320, 600, {}, {}, "nome centro mezzo letto annunciato"},

    Posto{"FrmIntervalli", 180, 2310, 8220, 3900, {}, {}, "carta"},
    Posto{"Label5", 135, 180, 1080, 285, "Semit.", {}, "piccolo mezzo"},
    Posto{"Label7", 210, 1755, 1200, 510, "Modo", {}, "pulsante"},
    Posto{"lblModo", 1530, 1755, 6480, 510, " : ", {}, "detto"},
    Posto{"lblFv", 210, 2385, 1650, 510, {}, {}, "pulsante"},
    Posto{"IntRoot", 1980, 2385, 960, 510, {}, {}, "nome centro mezzo"},
    Posto{"SelIntRoot", 3060, 2460, 4950, 360, {}, {}, "nome:lblFv nome:IntRoot"},
    Posto{"frmRifVar", 1980, 2325, 6030, 630},
    Posto{"lblRifInf", 0, 60, 960, 510, {}, {}, "pulsante"},
    Posto{"RifInf", 1080, 135, 1830, 360, {}, {}, "nome:lblFv nome:lblRifInf"},
    Posto{"lblRifSup", 3120, 60, 960, 510, {}, {}, "pulsante"},
    Posto{"RifSup", 4200, 135, 1830, 360, {}, {}, "nome:lblFv nome:lblRifSup"},
    Posto{"CmdIntStart", 210, 3090, 2490, 600, "Start", {}, "principale"},
    Posto{"lblRipInt", 2820, 3090, 1500, 600, "Ripeti", {}, "pulsante"},
    Posto{"lblIntSh", 4440, 3150, 480, 480, "?", {}, "aiuto"},
    Posto{"lblNi", 5040, 3090, 1320, 600, {}, {}, "nome centro mezzo letto annunciato"},
    Posto{"lblNs", 6480, 3090, 1320, 600, {}, {}, "nome centro mezzo letto annunciato"},

    Posto{"frmRacc", 180, 2310, 8220, 3900, {}, {}, "carta"},
    Posto{"ComdRacStart", 210, 3090, 2490, 600, "Start", {}, "principale"},
    Posto{"cmdRes", 6510, 3090, 1500, 600, "Reim", "Reimposta intervallo"},
    Posto{"lblRipta", 2820, 3090, 1500, 600, "Ripeti", {}, "pulsante"},
    Posto{"lblModoVt", 210, 2070, 1860, 600, "Modo", {}, "pulsante"},
    Posto{"lblVt", 2190, 2070, 1860, 600, {}, "Mostra tasti suonati", "pulsante"},

    Posto{"frmRicTasto", 180, 2310, 8220, 3900, {}, {}, "carta"},
    Posto{"lblSceltaTasti", 2190, 1170, 3840, 720, "Solo tasti bianchi",
          "Clicca per cambiare la difficoltà dell'esercizio", "pulsante titolo"},
    Posto{"cmdRicTasto", 210, 3090, 2490, 600, "Start", {}, "principale"},

    Posto{"frmTo", 180, 2310, 8220, 3900, {}, {}, "carta"},
    Posto{"Label9", 210, 120, 1800, 300, "Maggiore", {}, "forte mezzo"},
    Posto{"Label10", 210, 1470, 1800, 300, "Minore", {}, "forte mezzo"},
    Posto{"cmdT", 210, 3090, 2490, 600, "Start", {}, "principale"},
    Posto{"lblRipeti", 2820, 3090, 1500, 600, "Ripeti", {}, "pulsante"},
    Posto{"lblTsh", 4440, 3150, 480, 480, "?", "Mostra tonalità", "aiuto"},
};

// Its keys are as wide, all together, as what stands above and below them.
constexpr Rettangolo postoTastieraInto{153, 800, 12311, 1426};

constexpr Colore fondoPasso = Rgb(255, 255, 192), fondoModo = Rgb(255, 236, 200);
constexpr Colore fondoOk = Rgb(0, 191, 11), fondoKo = Rgb(255, 80, 80);
constexpr Colore fondoRisposte = Rgb(224, 240, 255);
constexpr Colore fondoMaggiori = Rgb(202, 247, 247), fondoMinori = Rgb(218, 255, 218);

void PoniIn(Controllo& controllo, const Rettangolo& posto, const std::string& stile) {
    controllo.Left = posto.left;
    controllo.Top = posto.top;
    controllo.Width = posto.width;
    controllo.Height = posto.height;
    controllo.stile = stile;
}

/// An answer, and the strip that says whether it may be asked: the one bears the other's name.
void PoniCoppia(Etichetta& risposta, Etichetta& striscia, const Rettangolo& posto, int sopra,
                const std::string& griglia) {
    constexpr int alta = 210;
    PoniIn(risposta, posto, "risposta pulsante griglia:" + griglia);
    PoniIn(striscia, {posto.left, posto.top + sopra, posto.width, alta},
           "ammissione griglia:" + griglia + " nome:" + risposta.Name);
}

/// A grid of columns, one for each number of semitones.
void DisponiGriglia(PaginaIntervalli& pagina) {
    constexpr int sinistra = 135, colonna = 570, larga = 540;
    const auto posto = [](int semitoni) { return sinistra + semitoni * colonna; };
    for (int n = 0; n < dimensioniIntervallo; ++n) {
        const auto quale = static_cast<std::size_t>(n);
        PoniCoppia(pagina.LblSemi[quale], pagina.Il[quale], {posto(n), 495, larga, 480}, 510,
                   "semitoni");
        pagina.LblSemi[quale].BackColor = fondoRisposte;
    }
    for (std::size_t i = 0; i < nomiIntervalli.size(); ++i) {
        const NomeIntervallo& nome = nomiIntervalli.at(i);
        PoniIn(pagina.Label4[i], {posto(nome.semitoni), nome.sopra ? 180 : 1245, larga, 285},
               nome.consonante ? "piccolo centro mezzo tondo sottolineato"
                               : "piccolo centro mezzo tondo");
    }
    pagina.lblIntSh.BackColor = fondoRisposte;
}

void DisponiTipi(PaginaAccordi& pagina, Colore neutro) {
    constexpr int colonna = 1980, larga = 1860, alta = 840;
    for (std::size_t i = 0; i < pagina.TipoAcc.size(); ++i) {
        PoniCoppia(pagina.TipoAcc[i], pagina.EsclTa[i],
                   {210 + static_cast<int>(i) * colonna, 450, larga, alta}, alta + 30, "accordi");
        pagina.TipoAcc[i].BackColor = neutro;
    }
}

void DisponiCelle(PaginaTonalita& pagina) {
    constexpr int sinistra = 210, colonna = 654, larga = 606;
    for (std::size_t i = 0; i < corvana::tonalita; ++i) {
        const int qui = sinistra + static_cast<int>(i % tonalitaMaggiori) * colonna;
        PoniCoppia(pagina.T[i], pagina.lblT[i], {qui, Maggiore(i) ? 660 : 2010, larga, 660}, -240,
                   "tonalita");
        // Two names stand in some of them.
        pagina.T[i].stile += " fitta";
        pagina.T[i].BackColor = Maggiore(i) ? fondoMaggiori : fondoMinori;
    }
}

}  // namespace

void DisponiInto(frmInto& f) {
    Disponi(f, postiMenu.data(), postiMenu.size());
    Disponi(f, postiInto.data(), postiInto.size());
    f.telaio.tastiera.PonPosto(postoTastieraInto);
    f.telaio.lblStep.BackColor = fondoPasso;
    f.telaio.punti.lblOk.BackColor = fondoOk;
    f.telaio.punti.lblKo.BackColor = fondoKo;
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
