// The range and the reference: as they were stored, and as the learner sets them anew.
#include "eartrainer/intonation_page.h"
#include "eartrainer/stored_state.h"
#include "forms/fault.h"

namespace corvana {

void PaginaIntonazione::IntoRipristina() {
    PrendiMemorizzato();
    const StatoInto& stato = t_.Stato();
    t_.Segna(stato.IntoBasso, true);
    t_.Segna(stato.IntoAlto, true);
    t_.Segna(t_.NotaRif - scartoIndiceNota, true);
    // They were stored the other way round.
    lblMod_Click();
    lblSolotb_Click();
    t_.a.suono.CambiaStrumento(stato.StrumentoInto, 0);
    MostraStart();
    t_.lblStep.Caption = t_.Testi().msgPremiStart;
    IntoPronto = true;
}

void PaginaIntonazione::PrendiMemorizzato() {
    StatoMemorizzato letto;
    try {
        letto = LeggiStatoInto(t_.a.impostazioni.LeggiValore("IntoLastS")).value_or(letto);
    } catch (const Guasto& guasto) {
        t_.a.riquadri.MsgBox(TestoGuasto(guasto));
    }
    StatoInto& stato = t_.Stato();
    stato.IntoBasso = letto.IntoBasso;
    stato.IntoAlto = letto.IntoAlto;
    t_.NotaRif = letto.NotaRif;
    stato.ConRiferimento = letto.senzaRiferimento ? 1 : 0;
    stato.SoloBianchi = letto.tuttiITasti;
    stato.StrumentoInto = letto.StrumentoInto;
}

StatoMemorizzato PaginaIntonazione::Memorizza() const {
    const StatoInto& stato = t_.Stato();
    return {stato.IntoBasso,   stato.IntoAlto,     t_.NotaRif,
            !ConRiferimento(), !stato.SoloBianchi, stato.StrumentoInto};
}

void PaginaIntonazione::MostraStart() {
    IntoStart.Visible = true;
    IntoStart.SetFocus();
}

void PaginaIntonazione::cmdReimposta_Click() {
    t_.Esercizio.Enabled = false;
    IntoFermato = IntoPronto = IntoEstensioneOk = IntoRifOk = false;
    t_.punti.Azzera();
    t_.lblStep.Caption = t_.Testi().msgPrimoLimite;
    IntoStart.Visible = false;
    t_.a.suono.SuonaNota(fermaNota);
    t_.TogliEstensione(t_.Stato().IntoBasso, t_.Stato().IntoAlto);
    t_.Segna(t_.NotaRif - scartoIndiceNota, false);
}

void PaginaIntonazione::IntoFissaEstensione(std::int16_t indice) {
    if (!IntoEstensioneOk && !FissaLimite(indice)) return;
    if (!Limiti().Contiene(indice)) return t_.a.riquadri.MsgBox(t_.Testi().msgRifFuori);
    if (!IntoRifOk) {
        IntoRifOk = true;
        t_.lblStep.Caption = t_.Testi().msgScegliRif;
        return;
    }
    SpostaRiferimento(indice);
}

/// Takes a limit; true when the range stands.
bool PaginaIntonazione::FissaLimite(std::int16_t indice) {
    const auto [dopo, esito] = ClicSuEstensione(Limiti(), indice);
    t_.Stato().IntoBasso = dopo.basso;
    t_.Stato().IntoAlto = dopo.alto;
    if (esito == EsitoClic::StrettoSopra) t_.a.riquadri.MsgBox(t_.Testi().msgStrettoSopra);
    if (esito == EsitoClic::StrettoSotto) t_.a.riquadri.MsgBox(t_.Testi().msgStrettoSotto);
    if (esito != EsitoClic::Primo && esito != EsitoClic::Completa) return false;
    t_.Segna(indice, true);
    IntoEstensioneOk = esito == EsitoClic::Completa;
    if (IntoEstensioneOk) return true;
    t_.lblStep.Caption = t_.Testi().msgSecondoLimite;
    t_.cmdEsci.Visible = false;
    return false;
}

void PaginaIntonazione::SpostaRiferimento(std::int16_t indice) {
    MostraStart();
    const int vecchio = t_.NotaRif - scartoIndiceNota;
    if (vecchio != Limiti().basso && vecchio != Limiti().alto) t_.Segna(vecchio, false);
    t_.NotaRif = static_cast<std::int16_t>(indice + scartoIndiceNota);
    t_.Segna(indice, true);
    t_.a.suono.SuonaNota(indice);
}

}  // namespace corvana
