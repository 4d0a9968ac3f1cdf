#include "utilities/instruments.h"

#include <algorithm>
#include <array>

#include "core/effects.h"
#include "core/notation.h"
#include "forms/keys.h"

namespace corvana {

namespace {

constexpr int strumenti = 128;
constexpr Colore rosso = 255;
constexpr Colore blu = 0xFF0000;
/// Where the window opens, in twips from the main window.
constexpr int aDestra = 900;
constexpr int inBasso = 2600;
constexpr int aDestraDiInto = 400;  ///< of the ear trainer, when that opens it

constexpr std::array postiStrumenti = {
    Posto{"frmStrum", 0, 0, 4245, 3150, "Corvana"},
    Posto{"List1", 225, 225, 2850, 2700, {}, {}, "nome:frmStrum"},
    Posto{"cmdTest", 3300, 300, 720, 720, {}, "Test", "icona:prova"},
    Posto{"cmdEscibg", 3195, 2475, 825, 420, {}, {}, "pulsante dietro"},
    Posto{"cmdEsci", 3195, 2475, 825, 420, "O K", {}, "pulsante"},
};

}  // namespace

frmStrum::frmStrum(const Ambiente& ambiente, ChiamanteStrum chiamante)
    : Form("frmStrum"), a_(ambiente), chiamante_(std::move(chiamante)) {
    Disponi(*this, postiStrumenti.data(), postiStrumenti.size());
    cmdEsci.ForeColor = blu;
    List1.Click = [this] { List1_Click(); };
    cmdEsci.Click = cmdEscibg.Click = [this] { cmdEsci_Click(); };
    cmdTest.Click = [this] { cmdTest_Click(); };
    MouseDown = [this](const Evento& e) { Form_MouseDown(e.codice); };
    hover_.Affonda(cmdEscibg, cmdEsci, rosso, blu);
    hover_.Affonda(cmdTest);
    hover_.LasciaSu({this});
}

void frmStrum::Form_Load() {
    a_.globali.PickerAperto = true;
    RitagliaForm(*this, 283, 210);
    Gradiente(*this, 191, 255, 0, 255, 255, 0, "ds", "i");
    Righe righe;
    for (std::int32_t i = 0; i < strumenti; ++i)
        righe.push_back(std::to_string(i) + " - " + NomeStrumento(i));
    List1.List = std::move(righe);
    Colloca();
    // A stored state edited by hand may name an instrument that the list hasn't.
    List1.Seleziona(std::clamp(InVigore(), 0, strumenti - 1));
}

bool frmStrum::PerUnaVoce() const {
    return a_.globali.ComposerAperto && chiamante_.SceltaStrum;
}

std::int32_t frmStrum::InVigore() const {
    if (PerUnaVoce()) return chiamante_.strumentoVoce;
    return a_.globali.IntoAperto ? a_.globali.into.StrumentoInto : a_.globali.StrumentoGlobale;
}

void frmStrum::Colloca() {
    const Form* principale = a_.finestre.Principale();
    if (!principale) return;
    Left = principale->Left + aDestra;
    Top = principale->Top + inBasso;
    // It is the ear trainer that has opened this window, and is still in front.
    if (a_.globali.IntoAperto) Left = a_.finestre.Davanti()->Left + aDestraDiInto;
}

void frmStrum::List1_Click() {
    const bool into = a_.globali.IntoAperto;
    if (!into && PerUnaVoce()) return chiamante_.SceltaStrum(List1.ListIndex);
    (into ? a_.globali.into.StrumentoInto : a_.globali.StrumentoGlobale) = List1.ListIndex;
    a_.suono.CambiaStrumento(List1.ListIndex, 0);
    if (into && a_.globali.PaginaInto.front() && chiamante_.SaveLastIntoSup)
        chiamante_.SaveLastIntoSup();
}

void frmStrum::cmdTest_Click() {
    a_.suono.SuonaSigla(PerUnaVoce() ? chiamante_.canaleVoce : std::int16_t{1});
}

void frmStrum::cmdEsci_Click() {
    a_.finestre.Scarica(*this);
}

void frmStrum::Form_KeyDown(const Evento& tasto) {
    if (tasto.codice == vk::esc) cmdEsci_Click();
}

void frmStrum::Form_MouseDown(int Button) {
    if (Button == bottoneSinistro) Trascina();
}

void frmStrum::Form_Unload(bool& /*Cancel*/) {
    a_.globali.PickerAperto = false;
}

}  // namespace corvana
