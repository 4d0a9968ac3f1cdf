#include "composer/file_panel.h"

#include <algorithm>

#include "core/text.h"
#include "melody/names.h"

namespace corvana {

namespace {

/// The melodies that come with the program, below its folder.
constexpr const char* cartellaDemo = "/Melodie/Demo/";

constexpr std::string_view segnoCartella = "» ";
constexpr std::string_view cartellaSopra = "» ..";

std::string ConSeparatore(std::string cartella) {
    if (!cartella.ends_with('/')) cartella += '/';
    return cartella;
}

void Ordina(Righe& righe) {
    std::stable_sort(righe.begin(), righe.end(), [](const std::string& a, const std::string& b) {
        return Minuscolo(a) < Minuscolo(b);
    });
}

void Entra(std::string& percorso, std::string_view riga) {
    if (riga != cartellaSopra) {
        percorso.append(riga.substr(segnoCartella.size())).append("/");
        return;
    }
    for (int volta = 0; volta < 2; ++volta)
        percorso.erase(std::min(percorso.rfind('/'), percorso.size()));
    percorso += '/';
}

}  // namespace

PannelloFile::PannelloFile(const Ambiente& ambiente, Form& finestra, StatoComposer& stato,
                           VicineFile vicine)
    : finestra_(finestra),
      a_(ambiente),
      stato_(stato),
      melodia_(stato.melodia),
      vicine_(std::move(vicine)) {
    Fr2.Visible = false;
    cmdEseguiFile.Click = [this] { cmdEseguiFile_Click(); };
    cmdChiudi.Click = [this] { cmdChiudi_Click(); };
}

void PannelloFile::Carica() {
    const std::string ultima = a_.impostazioni.LeggiValore("LastDir");
    a_.globali.percorsoCorrente =
        ultima.empty() ? a_.globali.CartellaProgramma + cartellaDemo : ConSeparatore(ultima);
}

void PannelloFile::Ricorda() {
    a_.impostazioni.ScriviValore("LastDir", a_.globali.percorsoCorrente);
}

void PannelloFile::mnuApri_Click() {
    if (Fr2.Visible() && !List1.List->empty()) return;
    Fr2.Visible = true;
    ListaFD();
}

void PannelloFile::cmdChiudi_Click() {
    Fr2.Visible = false;
    vicine_.fuocoPlay();
}

void PannelloFile::ListaFD() {
    if (stato_.inEsecuzione) return;
    const std::string& percorso = a_.globali.percorsoCorrente;
    lblPercorso.Caption = Minuscolo(percorso);
    lblPercorso.ToolTipText = " " + Minuscolo(percorso) + " ";
    Righe cartelle;
    Righe melodie;
    for (const VoceCartella& voce : a_.file.Elenca(percorso)) {
        if (voce.cartella)
            cartelle.push_back(std::string(segnoCartella) + voce.nome);
        else if (auto nome = NomeDaFile(voce.nome))
            melodie.push_back(std::move(*nome));
    }
    Ordina(cartelle);
    // Files that differ in the extension's case alone are one name, and one row.
    std::sort(melodie.begin(), melodie.end());
    melodie.erase(std::unique(melodie.begin(), melodie.end()), melodie.end());
    Ordina(melodie);
    if (percorso != "/") cartelle.insert(cartelle.begin(), std::string(cartellaSopra));
    cartelle.insert(cartelle.end(), melodie.begin(), melodie.end());
    List1.Clear();
    List1.List = std::move(cartelle);
}

void PannelloFile::cmdEseguiFile_Click() {
    const std::string riga = List1.Scelta();
    if (riga.empty()) return;
    if (!riga.starts_with(segnoCartella)) return vicine_.carica(riga);
    Entra(a_.globali.percorsoCorrente, riga);
    ListaFD();
}

}  // namespace corvana
