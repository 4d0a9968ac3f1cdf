#include "utilities/options.h"

#include "core/language.h"
#include "utilities/options_layout.h"
#include "utilities/utility_rows.h"

namespace corvana {

namespace {

constexpr Colore coloreScelto = Rgb(180, 254, 214);
constexpr Colore tonAperto = Rgb(238, 255, 192), tonChiuso = Rgb(255, 128, 128);
constexpr std::size_t tonGradi = righeSpecchio + 1;

}  // namespace

frmOptions::frmOptions(const Ambiente& ambiente) : Form("frmOptions"), a_(ambiente) {
    DisponiPromemoria(*this);
    for (std::size_t i = 0; i < cmdSel.size(); ++i)
        cmdSel[i].Click = [this, i] { cmdSel_Click(static_cast<int>(i)); };
    for (std::size_t i = 1; i <= Ton.size(); ++i) {
        Ton[i - 1].Click = [this, i] { Ton_Click(i); };
        PonTon(i, false);
    }
    cmdOK.Click = [this] { cmdOK_Click(); };
}

void frmOptions::Form_Load() {
    if (FileLinguaEsiste(a_)) UpdateString(a_, *this, BersagliOptions());
    for (std::size_t i = 1; i < Frame1.size(); ++i)
        Frame1[i].Visible = false;
    for (std::size_t i = 1; i < Img.size(); ++i)
        Img[i].Visible = false;
    Gradi.Visible = false;
    Davanti = 1;
    PonTon(Davanti, true);
    Seleziona(1);
}

void frmOptions::Form_Activate() {
    Pagina = 1;
    Frame1[0].Visible = true;
}

void frmOptions::cmdSel_Click(int Index) {
    const int nuova = Index + 1;
    if (nuova == Pagina) return;
    const auto vecchia = static_cast<std::size_t>(Pagina - 1);
    cmdSel.at(vecchia).BackColor = ColoreSel;
    cmdSel.at(vecchia).Checked = false;
    Frame1.at(static_cast<std::size_t>(Index)).Visible = true;
    Frame1.at(vecchia).Visible = false;
    Seleziona(nuova);
    Pagina = nuova;
}

void frmOptions::Seleziona(int pagina) {
    Interruttore& bottone = cmdSel.at(static_cast<std::size_t>(pagina - 1));
    ColoreSel = bottone.BackColor;
    bottone.BackColor = coloreScelto;
    bottone.Checked = true;
}

void frmOptions::Ton_Click(std::size_t Index) {
    if (Index == tonGradi) {
        MostraGradi(!Gradi.Visible);
        return MostraTonalita(Davanti, false);
    }
    MostraGradi(false);
    if (Img.at(Index - 1).Visible) return MostraTonalita(Index, false);
    // The picture in front goes first: it may be the one that is asked for, hidden by now.
    MostraTonalita(Davanti, false);
    MostraTonalita(Index, true);
    Davanti = Index;
}

void frmOptions::PonTon(std::size_t Index, bool aperto) {
    Interruttore& ton = Ton.at(Index - 1);
    ton.Caption = aperto ? "-" : "+";
    ton.BackColor = aperto ? tonAperto : tonChiuso;
    ton.Checked = aperto;
}

void frmOptions::MostraTonalita(std::size_t Index, bool mostra) {
    Img.at(Index - 1).Visible = mostra;
    PonTon(Index, mostra);
}

void frmOptions::MostraGradi(bool mostra) {
    Gradi.Visible = mostra;
    PonTon(tonGradi, mostra);
}

void frmOptions::cmdOK_Click() {
    a_.finestre.Scarica(*this);
}

}  // namespace corvana
