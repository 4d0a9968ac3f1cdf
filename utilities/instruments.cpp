#include "utilities/instruments.h"

#include <algorithm>

#include "core/effects.h"
#include "core/notation.h"
#include "forms/keys.h"
#include "utilities/instruments_layout.h"

namespace corvana {

namespace {

constexpr int strumenti = 128;
constexpr Colore rosso = 255;
constexpr Colore blu = 0xFF0000;
/// Where the window opens, in twips from the main window.
constexpr int aDestra = 900;
constexpr int inBasso = 2600;
constexpr int aDestraDiInto = 400;  ///< of the ear trainer, when that opens it

}  // namespace

frmStrum::frmStrum(const Ambiente& ambiente, ChiamanteStrum chiamante)
    : Form("frmStrum"), a_(ambiente), chiamante_(std::move(chiamante)) {
    DisponiStrumenti(*this);
    cmdEsci.ForeColor = blu;
    cmdPlaySstru.ForeColor = blu;
    List1.Click = [this] { List1_Click(); };
    cmdEsci.Click = cmdEscibg.Click = [this] { cmdEsci_Click(); };
    cmdTest.Click = [this] { cmdTest_Click(); };
    CollegaVoci();
    MouseDown = [this](const Evento& e) { Form_MouseDown(e.codice); };
    hover_.Affonda(cmdEscibg, cmdEsci, rosso, blu);
    hover_.Affonda(cmdPlaybg, cmdPlaySstru, rosso, blu);
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
    if (PerUnaVoce()) return CaricaVoci();
    const std::int32_t inVigore =
        a_.globali.IntoAperto ? a_.globali.into.StrumentoInto : a_.globali.StrumentoGlobale;
    // A stored state edited by hand may name an instrument that the list hasn't.
    List1.Seleziona(std::clamp(inVigore, 0, strumenti - 1));
}

void frmStrum::Colloca() {
    const Form* principale = a_.finestre.Principale();
    if (!principale) return;
    Left = principale->Left + aDestra;
    Top = principale->Top + inBasso;
    // It is the ear trainer that has opened this window, and is still in front.
    if (a_.globali.IntoAperto && !PerUnaVoce()) Left = a_.finestre.Davanti()->Left + aDestraDiInto;
}

void frmStrum::List1_Click() {
    const bool into = a_.globali.IntoAperto;
    if (!into && PerUnaVoce()) return chiamante_.composer->SceltaStrum(List1.ListIndex);
    (into ? a_.globali.into.StrumentoInto : a_.globali.StrumentoGlobale) = List1.ListIndex;
    a_.suono.CambiaStrumento(List1.ListIndex, 0);
    if (into && a_.globali.PaginaInto.front() && chiamante_.SaveLastIntoSup)
        chiamante_.SaveLastIntoSup();
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

void frmStrum::Form_Unload(bool& Cancel) {
    if (InPlay() && !a_.finestre.InChiusura()) {
        Cancel = true;
        return;
    }
    a_.globali.PickerAperto = false;
    hover_.Lascia();
}

}  // namespace corvana
