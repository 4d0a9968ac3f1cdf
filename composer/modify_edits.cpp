// What the tools change: the note under the step, the one behind it, the voice's last one.
#include "composer/modify_panel.h"
#include "melody/edits.h"
#include "melody/numbers.h"
#include "melody/step_mode.h"
#include "melody/tokens.h"

namespace corvana {

void PannelloModifica::cmdModifica_Click() {
    stato_.lblModificato.Visible = true;
    if (stato_.lblActNote.Caption().empty()) return;
    const bool cambiato = !stato_.melodia.Attiva().noteVoce.empty() && CambiaNota();
    vicine_.nascondiAccento();
    if (!cambiato) return;
    vicine_.aggiornaVoce();
    vicine_.suonaNota(true);
}

bool PannelloModifica::CambiaNota() {
    VoceMelodia& voce = stato_.melodia.Attiva();
    const StatoInserimento& inserimento = stato_.inserimento;
    const EsitoModifica esito = ModificaNota(
        voce, passo_.IndiceNotaPP,
        {inserimento.notaAttiva, ValoreCombo(), inserimento.attributoAttivo == attributoTerzina,
         cmbAttributi.Text(), a_.globali.SeparatoreDecimale});
    if (esito.mostrata) MostraNota(*esito.mostrata);
    if (esito.terzinaUsata) vicine_.azzeraAttributi();
    return esito.cambiato;
}

void PannelloModifica::cmdInsertNote_Click() {
    stato_.lblModificato.Visible = true;
    if (!stato_.melodia.Attiva().noteVoce.empty()) InserisciDietro();
    MostraNota(Pausa() ? std::int16_t{0} : stato_.inserimento.notaAttiva);
}

/// The step moves onto the new note.
void PannelloModifica::InserisciDietro() {
    VoceMelodia& voce = stato_.melodia.Attiva();
    const StatoInserimento& s = stato_.inserimento;
    const bool terzina = s.attributoAttivo == attributoTerzina;
    const double valore = terzina ? (s.valoreFigura + s.valoreFigura) / 3 : ValoreCombo();
    InserisciDopo(voce, passo_.IndiceNotaPP,
                  {Pausa() ? tokenPausa : std::to_string(s.notaAttiva),
                   TestoNumero(valore, a_.globali.SeparatoreDecimale), cmbAttributi.Text()});
    ++passo_.IndiceNotaPP;
    vicine_.aggiornaVoce();
    MostraNumero(passo_.IndiceNotaPP);
    vicine_.suonaNota(true);
    stato_.lblNt.Caption = std::to_string(voce.numeroNote);
}

void PannelloModifica::cmdCancNota_Click() {
    stato_.lblModificato.Visible = true;
    VoceMelodia& voce = stato_.melodia.Attiva();
    if (vicine_.ultimaNota().Text().empty()) return;
    if (voce.numeroNote == 1) return SvuotaVoce(voce);
    const DopoCancellata dopo = CancellataSotto(passo_.IndiceNotaPP, voce.primaNota);
    // First of all, since a token that the tools can't take is a fault, which must leave the voice.
    if (dopo.carica) CaricaNota(dopo.indice);
    // The range's end follows the voice's, as behind every change.
    stato_.lblNt.Caption = std::to_string(voce.numeroNote - 1);
    --passo_.IndiceNotaPP;
    vicine_.togliNota();
    passo_.IndiceNotaPP = dopo.indice;
    voce.primaNota = dopo.primaNota;
    if (dopo.primaCambiata) vicine_.primaNota().Text = std::to_string(voce.primaNota + 1);
    if (ConSoprano()) vicine_.svuotaRiferimenti();
}

void PannelloModifica::SvuotaVoce(VoceMelodia& voce) {
    SvuotaTesti(voce);
    vicine_.aggiornaVoce();
    passo_.IndiceNotaPP = 0;
    stato_.lblNe.Caption = "";
    stato_.lblNt.Caption = "";
}

void PannelloModifica::cmdCanc_Click() {
    vicine_.fuocoInsNota();
    const Taglio taglio = TagliaUltima(stato_.melodia.Attiva());
    if (taglio == Taglio::Niente) return;
    if (taglio == Taglio::Accorciata) stato_.lblModificato.Visible = true;
    vicine_.aggiornaVoce();
    if (taglio == Taglio::Accorciata && ConSoprano()) vicine_.sopranoIntero();
}

}  // namespace corvana
