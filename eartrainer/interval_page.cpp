#include "eartrainer/interval_page.h"

#include <algorithm>

namespace corvana {

namespace {

constexpr int radiceZero = 60;  ///< MIDI number of a root of 0
constexpr Colore coloreConsonante = Rgb(192, 255, 255), coloreDissonante = Rgb(224, 224, 224);
constexpr std::array<std::size_t, 3> ammesseAllIngresso = {3, 4, 7};
constexpr std::int16_t fermaUltima = -1;

// In seconds.
constexpr double durataNota = 0.7;
constexpr double fraLeNote = 0.1;
constexpr double dopoLeNote = 0.3;
constexpr double primaDellUnione = 0.7;

struct RigaModo {
    const char* testo;
    std::string TestiLingua::*consiglio;
};

constexpr std::array<RigaModo, 4> righeModo = {{{" : ", &TestiLingua::ttArmonico},
                                                {" / ", &TestiLingua::ttMelodico},
                                                {" / : ", &TestiLingua::ttMisto},
                                                {" \\ ", &TestiLingua::ttMelodico}}};

const RigaModo& RigaDiModo(ModoIntervallo modo) {
    return righeModo.at(static_cast<std::size_t>(modo) - 1);
}

ModoIntervallo ModoDopo(ModoIntervallo modo) {
    return static_cast<ModoIntervallo>(static_cast<std::size_t>(modo) % righeModo.size() + 1);
}

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

void PaginaIntervalli::CollegaRadici() {
    struct Corsa {
        Barra& barra;
        int min, max;
    };
    for (const auto& [barra, min, max] : {Corsa{SelIntRoot, 36, 82}, Corsa{RifInf, 36, radiceZero},
                                          Corsa{RifSup, radiceZero, 82}}) {
        barra.Min = min;
        barra.Max = max;
        barra.Value = radiceZero;
    }
    SelIntRoot.Change = [this] { SelIntRoot_Change(); };
    const auto collega = [this](Barra& barra, Etichetta& nome) {
        barra.Change = [this, &barra, &nome] {
            nome.Caption = t_.Nome(barra.Value);
            ppSuonaRadice(barra.Value);
        };
        nome.MouseDown = [this](const Evento&) { MostraEstensioneRadici(true); };
        nome.MouseUp = [this](const Evento&) { MostraEstensioneRadici(false); };
    };
    collega(RifInf, lblRifInf);
    collega(RifSup, lblRifSup);
}

void PaginaIntervalli::Carica() {
    lblModo.ToolTipText = t_.Testi().ttArmonico;
    lblFv.Caption = t_.Testi().capRifFisso;
    t_.IntBassa = t_.IntAlta = 0;
    IntModo = ModoIntervallo::Armonico;
    IntRadice = static_cast<std::int16_t>(SelIntRoot.Value - radiceZero);
    IntRoot.Caption = t_.Nome(SelIntRoot.Value);
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
    if (t_.a.suono.UltimaNota >= 0) t_.a.suono.SuonaNota(fermaUltima);
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

void PaginaIntervalli::ppSuonaInt(int semitoni) {
    if (frmRifVar.Visible)
        IntRadice = static_cast<std::int16_t>(
            CasualeIntero(t_.a.casuale, static_cast<std::int16_t>(RifInf.Value()),
                          static_cast<std::int16_t>(RifSup.Value())) -
            radiceZero);
    if (semitoni < 0 || semitoni >= dimensioniIntervallo) return;
    const int bassa = IntRadice + radiceZero;
    ppSuonaCoppia(bassa, bassa + semitoni);
}

void PaginaIntervalli::ppSuonaCoppia(int bassa, int alta) {
    t_.NotaOff(t_.IntBassa);
    t_.NotaOff(t_.IntAlta);
    if (Aiuto()) NascondiCoppia(t_.IntAlta - t_.IntBassa);
    if (!t_.IntInCorso) {
        t_.SpegniTastiCoppia();
        t_.sw(bassa, true);
        t_.sw(alta, true);
    }
    const ModoIntervallo modo = IntModo;
    if (modo != ModoIntervallo::Armonico) t_.a.pompa.PompaEventi();
    if (t_.Chiusa()) return;
    SuonaPerModo(modo, bassa, alta);
    t_.IntBassa = static_cast<std::int16_t>(bassa);
    t_.IntAlta = static_cast<std::int16_t>(alta);
    if (Aiuto()) MostraCoppia();
}

void PaginaIntervalli::SuonaPerModo(ModoIntervallo modo, int bassa, int alta) {
    const bool scende = modo == ModoIntervallo::Discendente;
    const bool misto = modo == ModoIntervallo::Misto;
    if (modo != ModoIntervallo::Armonico) {
        Suona(scende ? alta : bassa);
        t_.a.suono.Attendi(fraLeNote);
        Suona(scende ? bassa : alta);
        t_.a.suono.Attendi(misto ? primaDellUnione : dopoLeNote);
    }
    if (modo != ModoIntervallo::Armonico && !misto) return;
    t_.NotaOn(bassa);
    t_.NotaOn(alta);
    if (misto) t_.a.suono.Attendi(durataNota);
}

void PaginaIntervalli::Suona(int nota) {
    t_.NotaOn(nota);
    t_.a.suono.Attendi(durataNota);
    t_.NotaOff(nota);
}

void PaginaIntervalli::ppSuonaRadice(int nota) {
    t_.sw(nota, true);
    Suona(nota);
    t_.sw(nota, false);
}

void PaginaIntervalli::MostraCoppia() {
    t_.sw(t_.IntBassa, true);
    lblNi.Caption = t_.Nome(t_.IntBassa);
    t_.sw(t_.IntAlta, true);
    lblNs.Caption = t_.Nome(t_.IntAlta);
    Semi(IntSemitoni).BackColor = coloreSvelato;
}

void PaginaIntervalli::NascondiCoppia(int semitoni) {
    t_.sw(t_.IntBassa, false);
    lblNi.Caption = std::string();
    t_.sw(t_.IntAlta, false);
    lblNs.Caption = std::string();
    Semi(semitoni).BackColor = lblIntSh.BackColor();
}

void PaginaIntervalli::LblSemi_Click(int semitoni) {
    if (!t_.IntInCorso || !IntCeNe()) return;
    const bool esatta = semitoni == IntSemitoni;
    t_.punti.Punteggio(esatta);
    if (esatta) Domanda();
}

void PaginaIntervalli::LblSemi_MouseDown(int semitoni) {
    Semi(semitoni).BackStyle = fondoTrasparente;
    if (!t_.IntInCorso) ppSuonaInt(semitoni);
}

void PaginaIntervalli::LblSemi_MouseUp(int semitoni) {
    Semi(semitoni).BackStyle = fondoOpaco;
    if (!t_.IntInCorso) t_.SpegniCoppia();
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

void PaginaIntervalli::lblIntSh_Click() {
    if (!TelaioInto::Corre(CmdIntStart)) return;
    const bool mostra = lblIntSh.Caption() == "?";
    lblIntSh.Caption = mostra ? "" : "?";
    lblNi.Visible = mostra;
    lblNs.Visible = mostra;
    mostra ? MostraCoppia() : NascondiCoppia(IntSemitoni);
}

void PaginaIntervalli::lblRipInt_Click() {
    if (TelaioInto::Corre(CmdIntStart) && IntCeNe()) ppSuonaCoppia(t_.IntBassa, t_.IntAlta);
}

void PaginaIntervalli::lblModo_Click() {
    IntModo = ModoDopo(IntModo);
    const RigaModo& riga = RigaDiModo(IntModo);
    lblModo.Caption = riga.testo;
    lblModo.ToolTipText = t_.Testi().*riga.consiglio;
}

void PaginaIntervalli::lblFv_Click() {
    const bool variabile = lblFv.Caption() == t_.Testi().capRifFisso;
    lblFv.Caption = variabile ? t_.Testi().capRifVariabile : t_.Testi().capRifFisso;
    if (variabile) {
        lblRifInf.Caption = t_.Nome(RifInf.Value);
        lblRifSup.Caption = t_.Nome(RifSup.Value);
    } else {
        IntRadice = static_cast<std::int16_t>(SelIntRoot.Value - radiceZero);
    }
    frmRifVar.Visible = variabile;
    IntRoot.Visible = !variabile;
    SelIntRoot.Visible = !variabile;
}

void PaginaIntervalli::SelIntRoot_Change() {
    IntRadice = static_cast<std::int16_t>(SelIntRoot.Value - radiceZero);
    IntRoot.Caption = t_.Nome(SelIntRoot.Value);
    ppSuonaRadice(SelIntRoot.Value);
}

void PaginaIntervalli::MostraEstensioneRadici(bool mostra) {
    t_.sw(RifInf.Value, mostra);
    t_.sw(RifSup.Value, mostra);
}

}  // namespace corvana
