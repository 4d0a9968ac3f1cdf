// Saving: into the current folder, under a new name, and onto a removable medium.
#include "composer/composer.h"
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
std::string frmComposer::Percorso(const std::string& nome) const {
    const std::string& cartella = a_.globali.percorsoCorrente;
    std::string usuale = cartella + NomeFile(nome);
    if (a_.file.Esiste(usuale)) return usuale;
    // Files of older systems may bear their extension in capitals.
    for (const VoceCartella& voce : a_.file.Elenca(cartella))
        if (!voce.cartella && NomeDaFile(voce.nome) == nome) return cartella + voce.nome;
    return usuale;
}

void frmComposer::ScriviIn(const std::string& percorso) {
    std::optional<MetronomoMel> metronomo;
    if (metroAttivo) metronomo = {Pulsazioni.Text(), DurataPulsazioni.Text(), InizioPuls.Value()};
    const DaScrivere melodiaIntera{melodia.voci, Slider1.Value(), metronomo, lstBookMark.List()};
    Controlla(a_.file.ScriviAtomico(percorso, ScriviMel(melodiaIntera)));
}

void frmComposer::SalvaMelodia(const std::string& nome) {
    if (nome.empty() || !a_.file.EsisteCartella(a_.globali.percorsoCorrente)) return;
    try {
        ScriviIn(Percorso(nome));
        lblModificato.Visible = false;
        lblNome.Caption = "Salvato: " + nome;
        ListaFD();
    } catch (const Guasto& guasto) {
        a_.riquadri.MsgBox(TestoGuasto(guasto));
    }
}

void frmComposer::mnuSalva_Click() {
    mnuApri_Click();
    if (melodia.nomeMelodia.empty())
        mnuSaveAs_Click();
    else
        SalvaMelodia(melodia.nomeMelodia);
}

void frmComposer::mnuSaveAs_Click() {
    mnuApri_Click();
    if (melodia.voci[soprano].Vuota()) return;
    const std::string vecchio = melodia.nomeMelodia;
    melodia.nomeMelodia = ChiediNome(List1.Scelta());
    if (NomeRifiutato(melodia.nomeMelodia, rifiutatiMelodia)) {
        melodia.nomeMelodia = SenzaBlanchi(lblNome.Caption()).empty() ? "" : vecchio;
        a_.riquadri.MsgBox(a_.globali.testi.msgNomeMelodiaErrato);
        return;
    }
    const TestiLingua& testi = a_.globali.testi;
    if (a_.file.Esiste(Percorso(melodia.nomeMelodia)) &&
        !a_.riquadri.Domanda(testi.msgMelodiaEsiste + melodia.nomeMelodia + "\r\n" +
                             testi.msgSostituirla))
        return;
    SalvaMelodia(melodia.nomeMelodia);
}

/// The answer without outer blanks; empty when the box was cancelled.
std::string frmComposer::ChiediNome(const std::string& proposta) {
    const TestiLingua& testi = a_.globali.testi;
    const auto risposta =
        a_.riquadri.InputBox(testi.prmNomeMelodia, testi.titSalvaConNome, proposta);
    return std::string(SenzaBlanchi(risposta.value_or("")));
}

void frmComposer::mnuSalvaA_Click() {
    if (melodia.voci[soprano].Vuota()) return;
    if (melodia.nomeMelodia.empty()) melodia.nomeMelodia = ChiediNome("");
    if (melodia.nomeMelodia.empty()) return;
    if (NomeRifiutato(melodia.nomeMelodia, rifiutatiMelodia)) {
        melodia.nomeMelodia.clear();
        a_.riquadri.MsgBox(a_.globali.testi.msgNomeMelodiaErrato);
        return;
    }
    const std::string nomeFile = NomeFile(melodia.nomeMelodia);
    MousePointer = puntatoreAttesa;
    try {
        ScriviSulSupporto(nomeFile);
    } catch (const Guasto& guasto) {
        MousePointer = puntatoreNormale;
        MostraErroreSupporto(guasto);
        return;
    }
    lblModificato.Visible = false;
    MousePointer = puntatoreNormale;
    a_.riquadri.MsgBox(nomeFile + "\r\n" + a_.globali.testi.msgSalvataSuA);
}

void frmComposer::ScriviSulSupporto(const std::string& nomeFile) {
    const std::string supporto = a_.file.SupportoRimovibile();
    if (supporto.empty()) throw GuastoFile(ENOMEDIUM);
    ScriviIn(supporto + nomeFile);
}

void frmComposer::MostraErroreSupporto(const Guasto& guasto) {
    std::string motivo = guasto.what();
    if (guasto.Numero() == guastoDiscoPieno) motivo = a_.globali.testi.msgDiscoPieno;
    if (guasto.Numero() == guastoDiscoNonPronto) motivo = a_.globali.testi.msgDiscoNonPronto;
    a_.riquadri.MsgBox("Errore: " + std::to_string(guasto.Numero()) + "\r\n\r\n" + motivo);
}

}  // namespace corvana
