// What the melody window's controls hold before it is loaded.
#include <string>

#include "composer/composer.h"
#include "composer/ranges.h"
#include "melody/durations.h"

namespace corvana {

namespace {

constexpr int volumeIniziale = 2;
constexpr int moltiplicatori = 12;
constexpr int pulsiDisegnati = 8;

constexpr std::array coloriVoci = {Rgb(216, 252, 255), Rgb(197, 247, 241), Rgb(252, 241, 171),
                                   Rgb(255, 224, 163)};

/// The places that movements are measured from, in twips, and the texts before a language is
/// applied.
constexpr std::array posti = {
    Posto{"frmComposer", 0, 0, 0, 0, "Composizione melodie e armonie"},
    Posto{"mnuPiano", 0, 0, 0, 0, "Pianoforte"},
    Posto{"mnuOrgano", 0, 0, 0, 0, "Organo"},
    Posto{"mnuPlayRitardo", 0, 0, 0, 0, "Play (ritardo 5 Sec.)"},
    Posto{"Regolo", 75, 945, 360, 3120},
    Posto{"lblCursore", 60, 0, 75, 165},
    Posto{"lblAccidente", 135, 0, 165, 165, "#"},
    Posto{"lblRigaCur", sinistraRigaCur, 0, corsaCursore, 0},
    Posto{"Cursore", sinistraRigaCur, 0, 0, 0},
    Posto{"PausaPer", 0, 0, 0, 0, "1"},
    Posto{"cmdPlay", 0, 0, 0, 0, "Play"},
    Posto{"cmdEseguiFile", 0, 0, 0, 0, "Play"},
    Posto{"cmdDelBm", 0, 0, 0, 0, "Elimina"},
    Posto{"lblTs", 0, 0, 0, 0, "Off", "Metronomo On/Off"},
    Posto{"lblVolS", 0, 0, 0, 0, "100"},
    Posto{"lblVolC", 0, 0, 0, 0, "100"},
    Posto{"lblVolT", 0, 0, 0, 0, "100"},
    Posto{"lblVolB", 0, 0, 0, 0, "100"},
};

void Regola(Barra& barra, int minimo, int massimo, int valore) {
    barra.Min = minimo;
    barra.Max = massimo;
    barra.Value = valore;
}

void Riempi(Lista& lista, Righe righe, int scelta) {
    lista.List = std::move(righe);
    lista.ListIndex = scelta;
}

Righe ParoleDurata() {
    Righe parole;
    for (const Durata& durata : durate)
        parole.emplace_back(durata.parola);
    parole.emplace_back(altraDurata);
    return parole;
}

Righe Numeri(int fine) {
    Righe numeri;
    for (int i = 1; i <= fine; ++i)
        numeri.push_back(std::to_string(i));
    return numeri;
}

}  // namespace

void frmComposer::PreparaControlli() {
    Disponi(*this, posti.data(), posti.size());
    for (Etichetta& tasto : lb)
        tasto.BackStyle = fondoTrasparente;
    Regola(Slider1, tempoMassimo, tempoMinimo, tempoIniziale);
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        Regola(perVoce[voce].volume, volumeMuto, 0, volumeIniziale);
        perVoce[voce].nomi.BackColor = coloriVoci[voce];
        lblInstr[voce].BackColor = coloriVoci[voce];
        VoceAttiva[voce].BackColor = voce == soprano ? Rgb(0, 255, 0) : Rgb(255, 0, 0);
    }
    Regola(VolumeMetro, forzaPulsi, 0, 0);
    Regola(InizioPuls, pulsiDisegnati, 1, 1);
    LblInizioPuls.Caption = "1";
    Riempi(cmbDurata, ParoleDurata(), -1);
    Riempi(cmbPer, Numeri(moltiplicatori), 0);
    Riempi(cmbAttributi, {"n", "s", "t", "a", "p"}, 0);
    Riempi(Pulsazioni, Numeri(pulsiMassimi), 1);
    Riempi(DurataPulsazioni, {"1", "2", "4", "8", "16"}, 2);
    cmdInsNota.BackColor = Rgb(255, 224, 130);
    lblNe.BackColor = Rgb(224, 240, 224);
    cmdPlay.BackColor = lblNe.BackColor();
    lblTs.BackColor = Rgb(255, 0, 0);
    lblTs.ForeColor = Rgb(255, 255, 255);
    lblCursore.BackColor = Rgb(255, 0, 0);
    Regolo.BackColor = Rgb(224, 255, 255);
    cmdPaste.Enabled = false;
    for (Controllo* nascosto :
         {static_cast<Controllo*>(&lblModificato), static_cast<Controllo*>(&lblAccidente),
          static_cast<Controllo*>(&frmModifica), static_cast<Controllo*>(&frMetro),
          static_cast<Controllo*>(&lblDebug), static_cast<Controllo*>(&frBookMark),
          static_cast<Controllo*>(&Fr2)})
        nascosto->Visible = false;
    for (Figura& luce : Secondo)
        luce.Visible = false;
}

}  // namespace corvana
