// Saving: into the current folder, under a new name, and onto a removable medium.
#include "composer/file_panel.h"
#include "composer/melody_files.h"
#include "core/file_faults.h"
#include "core/text.h"
#include "melody/names.h"

namespace corvana {

namespace {

std::string NomeFile(const std::string& nome) {
    return nome + std::string(estensioneMelodia);
}

}  // namespace

/// The file in the current folder that has the name, or that is to get it.
std::string PannelloFile::Percorso(const std::string& nome) const {
    const std::string& cartella = a_.globali.percorsoCorrente;
    std::string usuale = cartella + NomeFile(nome);
    if (a_.file.Esiste(usuale)) return usuale;
    // Files of older systems may bear their extension in capitals.
    return MelodieInCartella(a_.file, cartella).Percorso(nome);
}

void PannelloFile::ScriviIn(const std::string& percorso) {
    Controlla(a_.file.ScriviAtomico(percorso, vicine_.byte()));
}

void PannelloFile::SalvaMelodia(const std::string& nome) {
    Salva(nome, [this](const std::string& percorso) { ScriviIn(percorso); });
}

/// Under a name that seemed to be nobody's. If it is somebody's all the same, he keeps it.
void PannelloFile::SalvaNuova(const std::string& nome) {
    Salva(nome, [this](const std::string& percorso) {
        Controlla(a_.file.ScriviSeLibero(percorso, vicine_.byte()));
    });
}

void PannelloFile::Salva(const std::string& nome, const Scrittura& scrivi) {
    if (nome.empty() || !a_.file.EsisteCartella(a_.globali.percorsoCorrente)) return;
    try {
        scrivi(Percorso(nome));
        stato_.lblModificato.Visible = false;
        stato_.lblNome.Caption = "Salvato: " + nome;
        ListaFD();
    } catch (const Guasto& guasto) {
        a_.riquadri.MsgBox(TestoGuasto(guasto));
    }
}

void PannelloFile::mnuSalva_Click() {
    mnuApri_Click();
    if (melodia_.nomeMelodia.empty())
        mnuSaveAs_Click();
    else
        SalvaMelodia(melodia_.nomeMelodia);
}

void PannelloFile::mnuSaveAs_Click() {
    mnuApri_Click();
    if (melodia_.voci[soprano].Vuota()) return;
    const std::string vecchio = melodia_.nomeMelodia;
    melodia_.nomeMelodia = ChiediNome(List1.Scelta());
    if (NomeRifiutato(melodia_.nomeMelodia, rifiutatiMelodia)) {
        melodia_.nomeMelodia = SenzaBlanchi(stato_.lblNome.Caption()).empty() ? "" : vecchio;
        a_.riquadri.MsgBox(a_.globali.testi.msgNomeMelodiaErrato);
        return;
    }
    if (!a_.file.Esiste(Percorso(melodia_.nomeMelodia))) return SalvaNuova(melodia_.nomeMelodia);
    const TestiLingua& testi = a_.globali.testi;
    if (a_.riquadri.Domanda(testi.msgMelodiaEsiste + melodia_.nomeMelodia + "\r\n" +
                            testi.msgSostituirla))
        SalvaMelodia(melodia_.nomeMelodia);
}

std::string PannelloFile::ChiediNome(const std::string& proposta) {
    const TestiLingua& testi = a_.globali.testi;
    return Chiedi(testi.prmNomeMelodia, testi.titSalvaConNome, proposta);
}

void PannelloFile::mnuSalvaA_Click() {
    if (melodia_.voci[soprano].Vuota()) return;
    if (melodia_.nomeMelodia.empty()) melodia_.nomeMelodia = ChiediNome("");
    if (melodia_.nomeMelodia.empty()) return;
    if (NomeRifiutato(melodia_.nomeMelodia, rifiutatiMelodia)) {
        melodia_.nomeMelodia.clear();
        a_.riquadri.MsgBox(a_.globali.testi.msgNomeMelodiaErrato);
        return;
    }
    const std::string nomeFile = NomeFile(melodia_.nomeMelodia);
    finestra_.MousePointer = puntatoreAttesa;
    try {
        ScriviSulSupporto(nomeFile);
    } catch (const Guasto& guasto) {
        finestra_.MousePointer = puntatoreNormale;
        MostraErroreSupporto(guasto);
        return;
    }
    stato_.lblModificato.Visible = false;
    finestra_.MousePointer = puntatoreNormale;
    a_.riquadri.MsgBox(nomeFile + "\r\n" + a_.globali.testi.msgSalvataSuA);
}

void PannelloFile::ScriviSulSupporto(const std::string& nomeFile) {
    const std::string supporto = a_.file.SupportoRimovibile();
    if (supporto.empty()) throw GuastoFile(ENOMEDIUM);
    ScriviIn(supporto + nomeFile);
}

void PannelloFile::MostraErroreSupporto(const Guasto& guasto) {
    std::string motivo = guasto.what();
    if (guasto.Numero() == guastoDiscoPieno) motivo = a_.globali.testi.msgDiscoPieno;
    if (guasto.Numero() == guastoDiscoNonPronto) motivo = a_.globali.testi.msgDiscoNonPronto;
    a_.riquadri.MsgBox("Errore: " + std::to_string(guasto.Numero()) + "\r\n\r\n" + motivo);
}

}  // namespace corvana
