#include "composer/file_panel.h"

#include "composer/folder_steps.h"
#include "core/text.h"

namespace corvana {

PannelloFile::PannelloFile(const Ambiente& ambiente, Form& finestra, StatoComposer& stato,
                           VicineFile vicine)
    : finestra_(finestra),
      a_(ambiente),
      stato_(stato),
      melodia_(stato.melodia),
      vicine_(std::move(vicine)),
      demo_(ambiente.file, ambiente.impostazioni, ambiente.globali) {
    Fr2.Visible = false;
    cmbDrive.Click = [this] { cmbDrive_Click(); };
    cmdD.Click = [this] { cmdD_Click(); };
    List1.DblClick = [this] { List1_DblClick(); };
    cmdEseguiFile.Click = [this] { cmdEseguiFile_Click(); };
    cmdRename.Click = [this] { cmdRename_Click(); };
    cmdDelete.Click = [this] { cmdDelete_Click(); };
    cmdMkdir.Click = [this] { cmdMkdir_Click(); };
    cmdChiudi.Click = [this] { cmdChiudi_Click(); };
}

void PannelloFile::Carica() {
    const std::string ultima = a_.impostazioni.LeggiValore("LastDir");
    const std::string demo = demo_.AllApertura();
    a_.globali.percorsoCorrente =
        ultima.empty() || demo_.DelProgramma(ultima) ? demo : ConSeparatore(ultima);
}

void PannelloFile::Ricorda() {
    a_.impostazioni.ScriviValore("LastDir", a_.globali.percorsoCorrente);
}

void PannelloFile::mnuApri_Click() {
    if (Fr2.Visible() && !List1.List->empty()) return;
    Fr2.Visible = true;
    ListaD();
    ListaFD();
}

void PannelloFile::cmdChiudi_Click() {
    Fr2.Visible = false;
    vicine_.fuocoPlay();
}

Righe PannelloFile::Radici() const {
    Righe radici = {"/", a_.globali.CartellaUtente, a_.globali.CartellaDocumenti};
    for (std::string& supporto : a_.file.Supporti())
        radici.push_back(std::move(supporto));
    radici = RadiciDistinte(radici);
    std::erase_if(radici, [this](const auto& radice) { return !a_.file.EsisteCartella(radice); });
    return radici;
}

void PannelloFile::ListaD() {
    if (stato_.inEsecuzione) return;
    riempiDrive = true;
    Righe radici = Radici();
    if (radici.empty()) return;
    cmbDrive.Clear();
    cmbDrive.List = std::move(radici);
    cmbDrive.Seleziona(RadiceDi(cmbDrive.List(), a_.globali.percorsoCorrente));
    riempiDrive = false;
}

/// The way down or up may have led into another root.
void PannelloFile::MostraRadice() {
    cmbDrive.ListIndex = RadiceDi(cmbDrive.List(), a_.globali.percorsoCorrente);
}

void PannelloFile::ListaFD() {
    if (stato_.inEsecuzione) return;
    const std::string& percorso = a_.globali.percorsoCorrente;
    lblPercorso.Caption = Minuscolo(percorso);
    lblPercorso.ToolTipText = " " + Minuscolo(percorso) + " ";
    MostraRadice();
    Righe righe = RigheCartella(percorso, a_.file.Elenca(percorso));
    List1.Clear();
    List1.List = std::move(righe);
}

void PannelloFile::cmdD_Click() {
    if (stato_.inEsecuzione) return;
    a_.globali.percorsoCorrente = demo_.ARichiesta();
    ListaD();
    ListaFD();
}

void PannelloFile::cmbDrive_Click() {
    const std::string radice = cmbDrive.Text();
    if (riempiDrive || radice.empty()) return;
    if (stato_.inEsecuzione) return MostraRadice();
    a_.globali.percorsoCorrente = radice;
    ListaFD();
}

void PannelloFile::cmdEseguiFile_Click() {
    const std::string riga = List1.Scelta();
    const GenereRiga genere = GenereDi(riga);
    if (genere == GenereRiga::Nessuna) return;
    if (genere == GenereRiga::Melodia) return vicine_.carica(riga);
    if (stato_.inEsecuzione) return;
    a_.globali.percorsoCorrente = Aperta(a_.globali.percorsoCorrente, riga);
    ListaFD();
}

void PannelloFile::List1_DblClick() {
    if (!stato_.inEsecuzione) cmdEseguiFile_Click();
}

}  // namespace corvana
