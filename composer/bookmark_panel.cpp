#include "composer/bookmark_panel.h"

#include "core/text.h"
#include "melody/bookmark.h"
#include "melody/names.h"

namespace corvana {

PannelloRiferimenti::PannelloRiferimenti(const Ambiente& ambiente, Form& finestra,
                                         StatoComposer& stato, PannelloVoci& voci,
                                         VicineRiferimenti vicine)
    : finestra_(finestra),
      a_(ambiente),
      stato_(stato),
      soprano_(stato.melodia.voci[soprano]),
      voci_(voci),
      vicine_(std::move(vicine)) {
    frBookMark.Visible = false;
    Collega();
}

void PannelloRiferimenti::Collega() {
    cmdAddBm.Click = [this] { cmdAddBm_Click(); };
    cmdPlayBm.Click = [this] { cmdPlayBm_Click(); };
    lstBookMark.DblClick = [this] { lstBookMark_DblClick(); };
    cmdDelBm.Click = [this] { cmdDelBm_Click(); };
    cmdModBm.Click = [this] { cmdModBm_Click(); };
    cmdRenameBm.Click = [this] { cmdRenameBm_Click(); };
    cmdMbUd[0].Click = [this] { cmdMbUd_Click(0); };
    cmdMbUd[1].Click = [this] { cmdMbUd_Click(1); };
    cmdHideBm.Click = [this] { cmdHideBm_Click(); };
}

void PannelloRiferimenti::cmdAddBm_Click() {
    AggiungiRiferimento();
}

void PannelloRiferimenti::cmdPlayBm_Click() {
    lstBookMark_DblClick();
}

void PannelloRiferimenti::lstBookMark_DblClick() {
    EseguiRiferimento();
}

void PannelloRiferimenti::cmdHideBm_Click() {
    frBookMark.Visible = false;
}

void PannelloRiferimenti::AggiungiRiferimento() {
    const TestiLingua& testi = a_.globali.testi;
    if (soprano_.primaNota < 0 || soprano_.ultimaNota >= soprano_.numeroNote) return;
    Modificata();
    frBookMark.Visible = true;
    const std::string nome =
        NomeRiferimento(a_.riquadri.InputBox(testi.prmNomeRiferimento, "", "").value_or(""));
    if (NomeRifiutato(nome, rifiutatiInAggiunta))
        return a_.riquadri.MsgBox(testi.msgNomeRiferimentoErrato);
    if (nome.empty()) return;
    if (lstBookMark.List->empty()) lstBookMark.AddItem(Intero());
    lstBookMark.AddItem(
        Riferimento(soprano_.primaNota + 1L, soprano_.ultimaNota + 1L, nome).Testo());
}

void PannelloRiferimenti::EseguiRiferimento() {
    if (stato_.inEsecuzione || Scelto() < 0) return;
    const Riferimento scelto = Riferimento::Leggi(lstBookMark.Scelta());
    const std::int16_t prima = scelto.PrimaNota(), ultima = scelto.UltimaNota();
    soprano_.primaNota = prima;
    soprano_.ultimaNota = ultima;
    voci_.lblNini.Text = std::to_string(prima + 1);
    voci_.lblNfine.Text = std::to_string(ultima + 1);
    vicine_.scegliVoce(static_cast<int>(soprano));
    voci_.MostraTrattoSoprano();
    vicine_.suona();
}

void PannelloRiferimenti::cmdDelBm_Click() {
    const int scelto = Scelto();
    if (stato_.inEsecuzione || scelto < 1) return;
    if (!a_.riquadri.Domanda(a_.globali.testi.msgEliminaRiferimento + lstBookMark.Scelta() + " ?"))
        return;
    Righe righe = lstBookMark.List;
    righe.erase(righe.begin() + scelto);
    if (righe.size() == 1) righe.clear();
    lstBookMark.Clear();
    lstBookMark.List = std::move(righe);
    Modificata();
}

void PannelloRiferimenti::cmdModBm_Click() {
    const int scelto = Scelto();
    if (lstBookMark.List->size() < 2 || scelto < 1) return;
    const std::string nome = Riferimento::Leggi(lstBookMark.Scelta()).Nome();
    lstBookMark.PonRiga(
        scelto, Riferimento(soprano_.primaNota + 1L, soprano_.ultimaNota + 1L, nome).Testo());
    Modificata();
}

void PannelloRiferimenti::cmdRenameBm_Click() {
    const TestiLingua& testi = a_.globali.testi;
    const int scelto = Scelto();
    if (lstBookMark.List->size() < 2 || scelto < 0) return;
    Riferimento riferimento = Riferimento::Leggi(lstBookMark.Scelta());
    const auto risposta =
        a_.riquadri.InputBox(testi.prmNuovoNome, testi.titRinominaRiferimento, riferimento.Nome());
    const std::string nome(SenzaBlanchi(risposta.value_or("")));
    if (nome.empty()) return;
    if (NomeRifiutato(nome, rifiutatiRiferimento))
        return a_.riquadri.MsgBox(testi.msgNuovoNomeErrato);
    riferimento.Rinomina(nome);
    lstBookMark.PonRiga(scelto, riferimento.Testo());
    Modificata();
}

void PannelloRiferimenti::cmdMbUd_Click(int Index) {
    Righe righe = lstBookMark.List;
    const int numero = static_cast<int>(righe.size());
    if (numero < 3) return;
    Modificata();
    const int da = Scelto(), a = Index == 0 ? da - 1 : da + 1;
    if (da < 0 || a < 0 || a >= numero) return;
    std::swap(righe[static_cast<std::size_t>(da)], righe[static_cast<std::size_t>(a)]);
    lstBookMark.List = std::move(righe);
    lstBookMark.Seleziona(a);
}

std::string PannelloRiferimenti::TestoRiferimenti() const {
    return corvana::TestoRiferimenti(lstBookMark.List());
}

/// The row that is chosen, -1 for none.
int PannelloRiferimenti::Scelto() const {
    const int riga = lstBookMark.ListIndex();
    return riga < static_cast<int>(lstBookMark.List->size()) ? riga : -1;
}

std::string PannelloRiferimenti::Intero() const {
    return Riferimento::Intero(soprano_.numeroNote, a_.globali.testi.TxtMelodiaIntera).Testo();
}

void PannelloRiferimenti::AggiornaRiferimentoIntero() {
    Righe righe = lstBookMark.List;
    if (righe.empty()) return;
    righe.front() = Intero();
    lstBookMark.List = std::move(righe);
}

void PannelloRiferimenti::SegueSoprano() {
    if (soprano_.numeroNote == -1)
        lstBookMark.Clear();
    else
        AggiornaRiferimentoIntero();
}

}  // namespace corvana
