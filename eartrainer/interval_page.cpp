#include "eartrainer/interval_page.h"

#include <algorithm>

namespace corvana {

namespace {

constexpr Colore coloreConsonante = Rgb(192, 255, 255), coloreDissonante = Rgb(224, 224, 224);
constexpr std::array<std::size_t, 3> ammesseAllIngresso = {3, 4, 7};

}  // namespace

PaginaIntervalli::PaginaIntervalli(TelaioInto& telaio) : t_(telaio) {
    FaiEtichette();
    CollegaRadici();
    CmdIntStart.Click = [this] { CmdIntStart_Click(); };
    lblIntSh.Click = [this] { lblIntSh_Click(); };
    lblRipInt.Click = [this] { lblRipInt_Click(); };
    lblModo.Click = Label7.Click = [this] { lblModo_Click(); };
    lblFv.Click = [this] { lblFv_Click(); };
}

void PaginaIntervalli::FaiEtichette() {
    for (int n = 0; n < dimensioniIntervallo; ++n) {
        LblSemi.emplace_back(t_.finestra, "LblSemi" + std::to_string(n), &FrmIntervalli).Caption =
            std::to_string(n);
        Il.emplace_back(t_.finestra, "Il" + std::to_string(n), &FrmIntervalli).BackColor =
            coloreAmmesso;
        CollegaRiga(n);
    }
    for (const NomeIntervallo& riga : nomiIntervalli) {
        Etichetta& nome = Label4.emplace_back(t_.finestra, "Label4" + std::to_string(Label4.size()),
                                              &FrmIntervalli);
        nome.Caption = std::string(riga.nome);
        nome.BackColor = riga.consonante ? coloreConsonante : coloreDissonante;
    }
}

void PaginaIntervalli::CollegaRiga(int n) {
    LblSemi.back().Click = [this, n] { LblSemi_Click(n); };
    LblSemi.back().MouseDown = [this, n](const Evento&) { LblSemi_MouseDown(n); };
    LblSemi.back().MouseUp = [this, n](const Evento&) { LblSemi_MouseUp(n); };
    // The whole row's switch reacts to a double click alone, the others to a click alone.
    if (n == 0)
        Il.back().DblClick = [this, n] { Il_DblClick(n); };
    else
        Il.back().Click = [this, n] { Il_Click(n); };
}

void PaginaIntervalli::Carica() {
    lblModo.ToolTipText = t_.Testi().ttArmonico;
    lblFv.Caption = t_.Testi().capRifFisso;
    t_.IntBassa = t_.IntAlta = 0;
    IntModo = ModoIntervallo::Armonico;
    PrendiRadice();
    for (std::size_t n = 1; n < Il.size(); ++n) {
        Il[n].ToolTipText = t_.Testi().ttIntAmmesso;
        IntEscluso.at(n) = false;
    }
}

void PaginaIntervalli::Entra() {
    t_.lblStep.Caption = std::string();
    IntModo = ModoIntervallo::Melodico;
    lblModo.Caption = "/";
    lblModo.ToolTipText = t_.Testi().ttMelodico;
    for (std::size_t n = 0; n < Il.size(); ++n)
        Escludi(n, std::find(ammesseAllIngresso.begin(), ammesseAllIngresso.end(), n) ==
                       ammesseAllIngresso.end());
    if (t_.a.suono.UltimaNota >= 0) t_.a.suono.SuonaNota(fermaNota);
}

void PaginaIntervalli::Escludi(std::size_t n, bool escluso) {
    IntEscluso.at(n) = escluso;
    Il[n].BackColor = escluso ? coloreEscluso : coloreAmmesso;
    Il[n].ToolTipText = escluso ? t_.Testi().ttIntEscluso : t_.Testi().ttIntAmmesso;
}

bool PaginaIntervalli::IntCeNe() const {
    return std::find(IntEscluso.begin(), IntEscluso.end(), false) != IntEscluso.end();
}

void PaginaIntervalli::CmdIntStart_Click() {
    TelaioInto::Corre(CmdIntStart) ? Ferma() : Avvia();
}

void PaginaIntervalli::Ferma() {
    t_.PonStart(CmdIntStart, false);
    t_.Esercizio.Enabled = true;
    t_.cmdEsci.Enabled = true;
    t_.IntInCorso = false;
    t_.SpegniCoppia();
}

void PaginaIntervalli::Avvia() {
    t_.PonStart(CmdIntStart, true);
    if (!IntCeNe()) return;
    t_.Esercizio.Enabled = false;
    t_.cmdEsci.Enabled = false;
    t_.punti.Azzera();
    t_.SpegniTastiCoppia();
    t_.IntInCorso = true;
    Domanda();
    t_.lblStep.Caption = t_.Testi().msgInt;
}

void PaginaIntervalli::Domanda() {
    IntSemitoni = EstraiAmmesso(t_.a.casuale, dimensioniIntervallo,
                                [this](std::size_t n) { return !IntEscluso.at(n); });
    ppSuonaInt(IntSemitoni);
}

void PaginaIntervalli::LblSemi_Click(int semitoni) {
    if (!t_.IntInCorso || !IntCeNe()) return;
    const bool esatta = semitoni == IntSemitoni;
    t_.punti.Punteggio(esatta);
    if (esatta) Domanda();
}

void PaginaIntervalli::Il_Click(int semitoni) {
    const auto n = static_cast<std::size_t>(semitoni);
    if (n > 0) Escludi(n, !IntEscluso.at(n));
}

void PaginaIntervalli::Il_DblClick(int semitoni) {
    if (semitoni != 0) return;
    const bool tutte = !IntEscluso[0];
    for (std::size_t n = 0; n < Il.size(); ++n)
        Escludi(n, tutte);
}

}  // namespace corvana
