#include "utilities/options_layout.h"

#include <algorithm>
#include <array>

#include "utilities/options.h"

namespace corvana {

namespace {

constexpr std::array postiOptions = {
    Posto{"frmOptions", 0, 0, 13200, 9300, "Promemoria"},
    Posto{"cmdSel0", 240, 210, 2550, 570, "Nomi Note", {}, "scheda risposta"},
    Posto{"cmdSel1", 2880, 210, 2550, 570, "Tonalità", {}, "scheda risposta"},
    Posto{"cmdSel2", 5520, 210, 2550, 570, "Intervalli", {}, "scheda risposta"},
    Posto{"cmdOK", 10890, 210, 2070, 570, "Chiudi", {}, "principale"},

    Posto{"Frame11",
          240,
          960,
          12720,
          8100,
          "Nomi delle note, loro durata e simboli delle relative pause ",
          {},
          "carta pagina"},
    Posto{"Scala", 360, 930, 12000, 1440, {}, {}, "scala"},
    Posto{"Image1", 360, 3480, 12000, 4350, {}, {}, "valori"},

    Posto{"Frame12", 240, 960, 12720, 8100, "Specchio delle tonalità ", {}, "carta pagina"},
    Posto{"Image3", 360, 810, 7740, 7170, {}, {}, "specchio"},
    Posto{"Label37", 360, 1215, 1200, 330, "N° Acc.", {}, "centro titolo"},
    Posto{"lblModo", 1560, 840, 3300, 330, "Modo", {}, "centro titolo"},
    Posto{"lblMa", 1560, 1215, 1650, 330, "Maggiore", {}, "centro titolo"},
    Posto{"lblMi", 3210, 1215, 1650, 330, "Minore", {}, "centro titolo"},
    Posto{"lblNa0", 4980, 1215, 2400, 330, "Nota alterata", {}, "titolo"},
    Posto{"Gradi", 8340, 1620, 4020, 6360, "Gradi", {}, "pannello pagina"},

    Posto{"Frame13", 240, 960, 12720, 8100, "Intervalli ", {}, "carta pagina"},
    Posto{"Label31", 360, 1830, 750, 900, "Semit.", {}, "mezzo forte"},
    Posto{"Label32", 360, 4080, 3840, 690, "Intervalli consonanti", {}, "consonante forte"},
    Posto{
        "Label34", 4440, 4080, 3840, 690, "Consonanti se l'intervallo è melodico", {}, "melodico"},
    Posto{"Label33", 8520, 4080, 3840, 690, "Intervalli dissonanti", {}, "dissonante"},
    Posto{"lblInter0", 360, 5490, 1830, 720, "Intervallo", {}, "titolo mezzo"},
    Posto{"lblInter1", 2280, 5490, 10140, 720, "2 3 4 5 6 7 M m G E D", {}, "spaziato cifra"},
    Posto{"Frecce", 2280, 6210, 10140, 420, {}, {}, "frecce"},
    Posto{"lblInter2", 360, 6630, 1830, 720, "Rivolto", {}, "titolo mezzo"},
    Posto{"lblInter3", 2280, 6630, 10140, 720, "7 6 5 4 3 2 m M G D E", {}, "spaziato cifra"},
};

constexpr std::array nomiLatini = {"Do", "Re", "Mi", "Fa", "Sol", "La", "Si"};
constexpr std::array lettere = {"C", "D", "E", "F", "G", "A", "B"};
constexpr std::array valori = {"Semibreve", "Minima",   "Semiminima",  "Croma",
                               "Semicroma", "Biscroma", "Semibiscroma"};
constexpr std::array gradi = {
    " I      Tonica",   " II     Sopratonica",   " III    Mediante", " IV    Sottodominante",
    " V     Dominante", " VI    Sopradominante", " VII   Sensibile"};

constexpr Colore coloreSel = Rgb(255, 224, 192);
constexpr Colore consonante = Rgb(192, 255, 255), melodico = Rgb(192, 192, 192),
                 dissonante = Rgb(224, 224, 224), numeroDissonante = Rgb(255, 255, 192);

void Poni(Controllo& controllo, int left, int top, int width, int height, std::string stile) {
    controllo.Left = left;
    controllo.Top = top;
    controllo.Width = width;
    controllo.Height = height;
    controllo.stile = std::move(stile);
}

void DisponiNomiEValori(frmOptions& f) {
    constexpr int sinistra = 360, colonna = 12000 / 7;
    for (std::size_t i = 0; i < nomiLatini.size(); ++i) {
        const int x = sinistra + static_cast<int>(i) * colonna;
        Etichetta& lettera = f.Label36[i + nomiLatini.size()];
        Poni(f.Label36[i], x, 2400, colonna, 450, "nome centro");
        Poni(lettera, x, 2850, colonna, 360, "titolo centro");
        Poni(f.lblnn[i], x, 6705, colonna, 300, "forte centro");
        f.Label36[i].Caption = nomiLatini.at(i);
        lettera.Caption = lettere.at(i);
        f.lblnn[i].Caption = valori.at(i);
    }
}

std::string Detto(const char* nome, std::size_t numero) {
    return std::string(" nome:") + nome + std::to_string(numero);
}

/// What a screen reader says for a row's button: the key's two names and what they alter.
std::string NomeTon(std::size_t riga) {
    std::string nome =
        "titolo nome:lblMa" + Detto("lblMag", riga) + " nome:lblMi" + Detto("lblMin", riga);
    if (riga > 1) nome += Detto("lblNa", riga - 1);
    return nome;
}

void DisponiSpecchio(frmOptions& f) {
    constexpr int sopra = 1620, passo = 390, larghezzaTon = 540, sinistraTon = 7470;
    constexpr int traRighe = 45;
    const auto top = [](std::size_t riga) { return sopra + static_cast<int>(riga) * passo; };
    for (std::size_t i = 0; i < righeSpecchio; ++i) {
        const RigaSpecchio& riga = specchioTonalita.at(i);
        Poni(f.lblMag[i], 2475, top(i), 600, passo, "mezzo");
        Poni(f.lblMin[i], 4125, top(i), 600, passo, "mezzo");
        f.lblMag[i].Caption = "(" + std::string(riga.letteraMaggiore) + ")";
        f.lblMin[i].Caption = "(" + std::string(riga.letteraMinore) + ")";
        if (i > 0) {
            Poni(f.lblNa[i], 4980, top(i), 2400, passo, "mezzo");
            f.lblNa[i].Caption = std::string(riga.alterate);
        }
        Poni(f.Ton[i], sinistraTon, top(i) + traRighe / 2, larghezzaTon, passo - traRighe,
             NomeTon(i + 1));
        Poni(f.Img[i], 8340, sopra, 4020, 6360, "armatura pannello");
    }
    Poni(f.Ton.back(), sinistraTon, 7590 + traRighe / 2, larghezzaTon, passo - traRighe, "titolo");
    f.Ton.back().ToolTipText = "Mostra/Nascondi i gradi della scala";
    for (std::size_t i = 0; i < gradi.size(); ++i) {
        Poni(f.Label35[i], 360, 1140 + static_cast<int>(i) * 660, 3300, 540, "grado titolo");
        f.Label35[i].Caption = gradi.at(i);
    }
}

/// The name's class, by colour and by the frame around it.
void PonClasse(Etichetta& nome, const NomeIntervallo& intervallo, const std::string& detto) {
    const bool secondaMelodica = intervallo.nome == "2 Min" || intervallo.nome == "2 Mag";
    if (intervallo.consonante) {
        nome.BackColor = consonante;
        nome.stile = "consonante forte" + detto + " nome:Label32";
    } else if (secondaMelodica) {
        nome.BackColor = melodico;
        nome.stile = "melodico" + detto + " nome:Label34";
    } else {
        nome.BackColor = dissonante;
        nome.stile = "dissonante" + detto + " nome:Label33";
    }
}

bool NumeroConsonante(int semitoni) {
    constexpr std::array dissonanti = {1, 2, 6, 10, 11, 13};
    return std::find(dissonanti.begin(), dissonanti.end(), semitoni) == dissonanti.end();
}

void DisponiIntervalli(frmOptions& f) {
    constexpr int sinistra = 1155, colonna = 805, larga = 745;
    const auto posto = [](int semitoni) { return sinistra + semitoni * colonna; };
    for (std::size_t i = 0; i < nomiIntervalli.size(); ++i) {
        const NomeIntervallo& intervallo = nomiIntervalli.at(i);
        Poni(f.Label4[i], posto(intervallo.semitoni), intervallo.sopra ? 1080 : 2790, larga, 690,
             {});
        f.Label4[i].Caption = std::string(intervallo.nome);
        PonClasse(f.Label4[i], intervallo, Detto("Label4", i));
    }
    for (int n = 0; n < dimensioniIntervallo; ++n) {
        Etichetta& numero = f.LblSemi[static_cast<std::size_t>(n)];
        const bool bene = NumeroConsonante(n);
        Poni(numero, posto(n), 1830, larga, 900, bene ? "cifra consonante" : "cifra dissonante");
        numero.Caption = std::to_string(n);
        numero.BackColor = bene ? consonante : numeroDissonante;
    }
    f.Label32.BackColor = consonante;
    f.Label34.BackColor = melodico;
    f.Label33.BackColor = dissonante;
}

}  // namespace

void DisponiPromemoria(frmOptions& form) {
    Disponi(form, postiOptions.data(), postiOptions.size());
    for (Interruttore& bottone : form.cmdSel)
        bottone.BackColor = coloreSel;
    DisponiNomiEValori(form);
    DisponiSpecchio(form);
    DisponiIntervalli(form);
}

}  // namespace corvana
