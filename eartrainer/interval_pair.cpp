// How a pair of notes sounds, and what shows it.
#include "eartrainer/interval_page.h"

namespace corvana {

namespace {

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

void PaginaIntervalli::lblModo_Click() {
    IntModo = ModoDopo(IntModo);
    const RigaModo& riga = RigaDiModo(IntModo);
    lblModo.Caption = riga.testo;
    lblModo.ToolTipText = t_.Testi().*riga.consiglio;
}

void PaginaIntervalli::ppSuonaInt(int semitoni) {
    if (frmRifVar.Visible) EstraiRadice();
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

void PaginaIntervalli::LblSemi_MouseDown(int semitoni) {
    Semi(semitoni).BackStyle = fondoTrasparente;
    if (!t_.IntInCorso) ppSuonaInt(semitoni);
}

void PaginaIntervalli::LblSemi_MouseUp(int semitoni) {
    Semi(semitoni).BackStyle = fondoOpaco;
    if (!t_.IntInCorso) t_.SpegniCoppia();
}

void PaginaIntervalli::lblRipInt_Click() {
    if (TelaioInto::Corre(CmdIntStart) && IntCeNe()) ppSuonaCoppia(t_.IntBassa, t_.IntAlta);
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

void PaginaIntervalli::lblIntSh_Click() {
    if (!TelaioInto::Corre(CmdIntStart)) return;
    const bool mostra = lblIntSh.Caption() == "?";
    lblIntSh.Caption = mostra ? "" : "?";
    lblNi.Visible = mostra;
    lblNs.Visible = mostra;
    mostra ? MostraCoppia() : NascondiCoppia(IntSemitoni);
}

}  // namespace corvana
