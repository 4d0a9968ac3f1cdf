#include "composer/copy_from_a.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <limits>
#include <optional>

#include "composer/composer_rows.h"
#include "composer/folder_steps.h"
#include "composer/melody_files.h"
#include "core/file_faults.h"
#include "core/language.h"
#include "forms/for_now.h"

namespace corvana {

namespace {

constexpr int aiutoCopia = 67;
constexpr int scostamento = 500;  ///< from the window beneath, in twips

constexpr std::array postiCopia = {
    Posto{"frmCopyFromA", 0, 0, 6000, 4830, "Copia melodie da supporto rimovibile"},
    Posto{"Label1", 240, 180, 5520, 330, "Seleziona i files che vuoi copiare in:", {}, "mezzo"},
    Posto{"lblCurrPath", 240, 540, 5520, 420, {}, {}, "riquadro piccolo mezzo"},
    Posto{"List1", 240, 1095, 5520, 2850, {}, {}, "nome:Label1"},
    Posto{"cmdCopia", 240, 4110, 1800, 510, "Copia", {}, "principale"},
    Posto{"cmdChiudi", 5190, 4110, 570, 510, "Chiudi", {}, "icona:chiudi"},
};

std::string Supporto(ArchivioFile& file) {
    std::string supporto = file.SupportoRimovibile();
    if (supporto.empty()) throw GuastoFile(ENOMEDIUM);
    return supporto;
}

/// The rows are counted in 8 bits.
std::uint8_t Conta(std::size_t riga) {
    if (riga > std::numeric_limits<std::uint8_t>::max())
        throw Guasto(guastoTraboccamento, "Overflow");
    return static_cast<std::uint8_t>(riga);
}

/// From the medium to a folder, whose files are looked up once.
class Trasporto {
public:
    Trasporto(ArchivioFile& file, const std::string& cartella)
        : file_(file), da_(file, Supporto(file)), a_(file, cartella) {}

    void Copia(const std::string& nome) {
        std::string byte;
        Controlla(file_.Leggi(da_.Percorso(nome), byte));
        Controlla(file_.ScriviAtomico(a_.Percorso(nome), byte));
    }

private:
    ArchivioFile& file_;
    MelodieInCartella da_, a_;
};

/// The pointer waits until the block is left.
class Attesa {
public:
    explicit Attesa(Form& form) : form_(form) { form_.MousePointer = puntatoreAttesa; }
    Attesa(const Attesa&) = delete;
    Attesa& operator=(const Attesa&) = delete;
    ~Attesa() { form_.MousePointer = puntatoreNormale; }

private:
    Form& form_;
};

}  // namespace

frmCopyFromA::frmCopyFromA(const Ambiente& ambiente, const Form& composer,
                           std::function<void()> ListaFD)
    : Form("frmCopyFromA"), a_(ambiente), composer_(composer), ListaFD_(std::move(ListaFD)) {
    Disponi(*this, postiCopia.data(), postiCopia.size());
    HelpContextID = aiutoCopia;
    cmdCopia.Click = List1.DblClick = [this] { cmdCopia_Click(); };
    cmdChiudi.Click = [this] { cmdChiudi_Click(); };
}

void frmCopyFromA::Form_Load() {
    if (FileLinguaEsiste(a_)) UpdateString(a_, *this, BersagliCopyFromA());
    // Here already, so that it opens at its place.
    Colloca();
}

void frmCopyFromA::Colloca() {
    Left = composer_.Left() + scostamento;
    Top = composer_.Top() + scostamento;
}

void frmCopyFromA::Form_Activate() {
    Colloca();
    cmdChiudi.SetFocus();
    lblCurrPath.Caption = a_.globali.percorsoCorrente;
    lblCurrPath.ToolTipText = a_.globali.percorsoCorrente;
    Lavora(&frmCopyFromA::ElencaSupporto);
}

/// What can be read of the medium is listed, whatever ends the reading.
void frmCopyFromA::ElencaSupporto() {
    std::vector<VoceCartella> voci;
    const int errore = a_.file.Elenca(Supporto(a_.file), voci);
    Righe righe = List1.List();
    for (std::string& nome : NomiMelodie(voci))
        righe.push_back(std::move(nome));
    List1.List = std::move(righe);
    Controlla(errore);
}

/// False when a fault has ended it, which is shown once the window is free again.
bool frmCopyFromA::Lavora(void (frmCopyFromA::*lavoro)()) {
    try {
        const PerOra<bool> occupata(occupata_, true);
        (this->*lavoro)();
        return true;
    } catch (const Guasto& guasto) {
        a_.riquadri.MsgBox(TestoGuasto(guasto));
        return false;
    }
}

void frmCopyFromA::cmdCopia_Click() {
    if (!List1.Selected->empty() && Lavora(&frmCopyFromA::CopiaScelte)) ListaFD_();
}

void frmCopyFromA::CopiaScelte() {
    const Attesa attesa(*this);
    std::optional<Trasporto> trasporto;
    const NumeriRiga& scelte = List1.Selected();
    for (std::size_t riga = 0; riga < List1.List->size(); ++riga) {
        if (!std::binary_search(scelte.begin(), scelte.end(), Conta(riga))) continue;
        if (!trasporto) trasporto.emplace(a_.file, a_.globali.percorsoCorrente);
        trasporto->Copia(List1.List()[riga]);
    }
}

void frmCopyFromA::cmdChiudi_Click() {
    a_.finestre.Scarica(*this);
}

void frmCopyFromA::Form_Unload(bool& Cancel) {
    Cancel = occupata_ && !a_.finestre.InChiusura();
}

}  // namespace corvana
