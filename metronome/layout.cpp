#include "metronome/layout.h"

#include <array>

#include "metronome/conf_metro.h"
#include "metronome/metronome_panel.h"
#include "metronome/pattern.h"

namespace corvana {

namespace {

constexpr std::array pannelloMetronomo = {
    Posto{"BgMetro", 0, 0, 7620, 990, {}, {}, "pannello"},
    Posto{"frmMetroC", 285, 105, 1650, 360, "Metronomo", {}, "titolo mezzo"},
    Posto{"lblTs", 2100, 105, 720, 360, "2/4", "Cambia il tempo", "scelta"},
    Posto{"lblX12", 2910, 105, 600, 360, "x1", {}, "scelta"},
    Posto{"lblTempo", 3600, 90, 960, 390, "60", "BPM", "cifra destra"},
    Posto{"MetroTempoS", 2910, 585, 2370, 330, {}, "BPM"},
    Posto{"MetroVol", 5385, 75, 330, 855, {}, "Volume"},
    Posto{"cmdSSmetro", 5820, 90, 1380, 390, " Start / Stop "},
    Posto{"cmdSetup", 5820, 555, 1380, 345, "a b c ...", "Scegli i suoni e la sequenza"},
    Posto{"lblCloseMetro", 7275, 60, 270, 270, "×", "Chiudi il metronomo", "chiudi"},
};

constexpr std::array conf = {
    Posto{"frmConfMetro", 0, 0, 6600, 5145, "Metronomo"},
    Posto{"Label1", 240, 150, 3000, 270, "Suoni", {}, "titolo"},
    Posto{"lblA", 240, 435, 900, 360, "a", {}, "lettera"},
    Posto{"lblB1", 1260, 435, 900, 360, "b", {}, "lettera"},
    Posto{"lblC", 2280, 435, 900, 360, "c", {}, "lettera"},
    Posto{"InstrA", 240, 810, 900, 2340, {}, {}, "nome:Label1 nome:lblA"},
    Posto{"InstrB1", 1260, 810, 900, 2340, {}, {}, "nome:Label1 nome:lblB1"},
    Posto{"InstrC", 2280, 810, 900, 2340, {}, {}, "nome:Label1 nome:lblC"},
    Posto{"Label2", 3480, 150, 2880, 270, "Sequenza", {}, "titolo"},
    Posto{"txtPattern", 3480, 450, 2880, 390, {}, {}, "nome:Label2"},
    Posto{"Label3", 3480, 990, 2880, 270, "Tempo", {}, "titolo"},
    Posto{"txtTempo", 3480, 1290, 1200, 390, {}, {}, "nome:Label3"},
    Posto{"seqPreset", 3480, 1800, 2880, 1350, {}, {}, "nome:Label2 nome:Label3"},
    Posto{"Text1",
          240,
          3330,
          6120,
          1260,
          "Puoi comporre a piacere  una sequenza di pulsazioni (abc)  fino a \r\n"
          "un massimo di 20 caratteri. Inserisci il tempo corrispondente nella \r\n"
          "relativa casella.",
          {},
          "spiegazione"},
    Posto{"cmdTest", 3480, 4530, 1350, 420, "Test"},
    Posto{"cmdOk", 5010, 4530, 1350, 420, "O K", {}, "principale"},
};

void Riempi(Lista& lista, std::initializer_list<const char*> righe) {
    for (const char* riga : righe)
        lista.AddItem(riga);
}

void DisponiLuci(PannelloMetronomo& pannello) {
    constexpr int primaLuce = 285;
    constexpr int passo = 120;
    int left = primaLuce;
    for (Etichetta& luce : pannello.lblPuls) {
        luce.Left = left;
        luce.Top = 690;
        luce.Width = 120;
        luce.Height = 165;
        luce.stile = "luce";
        luce.BackColor = coloreLuceSpenta;
        luce.Visible = false;
        left += passo;
    }
}

}  // namespace

void DisponiMetronomo(Form& finestra, PannelloMetronomo& pannello) {
    Disponi(finestra, pannelloMetronomo.data(), pannelloMetronomo.size());
    DisponiLuci(pannello);
    pannello.MetroTempoS.Min = 20;
    pannello.MetroTempoS.Max = 200;
    pannello.MetroTempoS.Value = 60;
    pannello.MetroVol.Min = 127;
    pannello.MetroVol.Max = 0;
    pannello.MetroVol.Value = 127;
    pannello.cmdSSmetro.BackColor = finestra.Trova("cmdEsci")->BackColor();
}

void DisponiConfMetro(frmConfMetro& finestra) {
    Disponi(finestra, conf.data(), conf.size());
    Riempi(finestra.InstrA, {"38", "40", "46", "49", "53", "61", "65", "66", "76", "77", "81"});
    Riempi(finestra.InstrB1, {"27", "35", "36", "45", "48", "54", "69", "75", "82", "85"});
    Riempi(finestra.InstrC, {"31", "33", "34", "37", "42", "43", "44", "51"});
    Riempi(finestra.seqPreset, {"abcb  2/4", "abcbcb  3/4", "abcbcbcb  4/4"});
    finestra.txtPattern.MaxLength = 20;
    finestra.txtTempo.MaxLength = 5;
    finestra.Text1.Locked = true;
    finestra.lblA.ForeColor = coloreA;
    finestra.lblB1.ForeColor = coloreB;
    finestra.lblC.ForeColor = coloreC;
}

}  // namespace corvana
