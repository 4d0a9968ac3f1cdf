// The picker's part for the melody window: which voice a choice is for, and its melody played.
#include <algorithm>

#include "core/effects.h"
#include "utilities/instruments.h"
#include "utilities/instruments_layout.h"

namespace corvana {

namespace {

constexpr std::array<std::string_view, 4> nomiVoce = {"soprano", "contralto", "tenore", "basso"};
constexpr Colore coloreScelta = Rgb(0, 255, 0), coloreNonScelta = Rgb(255, 0, 0);
constexpr const char* parolaPlay = "Play";
constexpr const char* parolaStop = "Stop";

/// The language's word, once there is one.
void PonConsiglio(Controllo& controllo, const std::string& consiglio) {
    if (!consiglio.empty()) controllo.ToolTipText = consiglio;
}

}  // namespace

void frmStrum::CollegaVoci() {
    frmVoci.Visible = false;
    for (std::size_t voce = 0; voce < VoceAttiva.size(); ++voce)
        VoceAttiva[voce].Click = [this, voce] { VoceAttiva_Click(static_cast<int>(voce)); };
    cmdPlaySstru.Click = cmdPlaybg.Click = [this] { cmdPlaySstru_Click(); };
}

void frmStrum::CaricaVoci() {
    Gradiente(bgVoci, 255, 239, 154, 255, 191, 58, "ds", "i");
    const TestiLingua& testi = a_.globali.testi;
    PonConsiglio(VoceAttiva[1], testi.TipContralto);
    PonConsiglio(VoceAttiva[2], testi.TipTenore);
    PonConsiglio(VoceAttiva[3], testi.TipBasso);
    FaPostoAlleVoci(*this);
    frmVoci.Visible = true;
    VoceAttiva[1].Caption = chiamante_.composer->SiglaContralto();
    VoceAttiva_Click(static_cast<int>(IndiceVoce()));
}

std::size_t frmStrum::IndiceVoce() const {
    const auto nome =
        std::find(nomiVoce.begin(), nomiVoce.end(), chiamante_.composer->voceAttiva());
    return nome == nomiVoce.end() ? 0 : static_cast<std::size_t>(nome - nomiVoce.begin());
}

void frmStrum::VoceAttiva_Click(int Index) {
    if (!PerUnaVoce() || Index < 0 || Index >= static_cast<int>(nomiVoce.size())) return;
    const auto scelta = static_cast<std::size_t>(Index);
    VociComposer& composer = *chiamante_.composer;
    composer.PonVoceAttiva(std::string(nomiVoce[scelta]));
    ScegliStrumento(composer.strumento(scelta));
    ColoraVoci(scelta);
    composer.VoceAttiva_Click(Index);
    lblVoceAttiva.Caption = VoceAttiva[scelta].ToolTipText();
}

/// What the voice has. A melody's file may name an instrument that the list hasn't: then no row is
/// chosen, and looking at the voice doesn't change it.
void frmStrum::ScegliStrumento(std::int32_t programma) {
    if (programma >= 0 && programma < static_cast<std::int32_t>(List1.List->size()))
        List1.Seleziona(programma);
    else
        List1.ListIndex = -1;
}

void frmStrum::ColoraVoci(std::size_t scelta) {
    for (std::size_t voce = 0; voce < VoceAttiva.size(); ++voce)
        VoceAttiva[voce].BackColor = voce == scelta ? coloreScelta : coloreNonScelta;
}

bool frmStrum::InPlay() const {
    return cmdPlaySstru.Caption() == parolaStop;
}

void frmStrum::cmdTest_Click() {
    if (!PerUnaVoce()) return a_.suono.SuonaSigla(1);
    if (!InPlay()) a_.suono.SuonaSigla(static_cast<std::int16_t>(IndiceVoce() + 1));
}

void frmStrum::cmdPlaySstru_Click() {
    if (!PerUnaVoce() || chiamante_.composer->SopranoVuoto()) return;
    cmdPlaySstru.Caption = InPlay() ? parolaPlay : parolaStop;
    chiamante_.composer->cmdPlay_Click();
}

void frmStrum::PlayFinito() {
    cmdPlaySstru.Caption = parolaPlay;
}

}  // namespace corvana
