// The walk of the step mode.
#include "composer/modify_panel.h"
#include "core/notation.h"
#include "melody/step_mode.h"
#include "melody/tokens.h"

namespace corvana {

void PannelloModifica::lblStep_Click(int Index) {
    if (stato_.inEsecuzione) return;
    vicine_.spegniMetronomo();
    if (stato_.melodia.Attiva().Vuota() || !Muovi(Index)) return;
    const std::int16_t nota =
        NumeroNota(Elemento(stato_.melodia.Attiva().noteVoce, passo_.IndiceNotaPP));
    stato_.inserimento.notaAttiva = nota;
    stato_.lblActNote.Caption = NomeNota(nota, a_.globali.NomiAnglo);
    CaricaNota(passo_.IndiceNotaPP);
    vicine_.spegniLoop();
    vicine_.suonaNota(passo_.modoPasso);
}

/// False, with a word of it, when the range reaches beyond the voice and the step with it.
bool PannelloModifica::Muovi(int Index) {
    const VoceMelodia& voce = stato_.melodia.Attiva();
    TrattoPasso tratto = TrattoDaCaselle(vicine_.primaNota().Text(), vicine_.ultimaNota().Text());
    if (ConSoprano()) tratto.fine = voce.ultimaNota;
    stato_.lblNt.Caption = std::to_string(tratto.a + 1);
    ApriPasso(tratto);
    passo_.IndiceNotaPP = Index == 0 ? PassoIndietro(passo_.IndiceNotaPP, tratto)
                                     : PassoAvanti(passo_.IndiceNotaPP, tratto);
    if (passo_.IndiceNotaPP < voce.numeroNote) return true;
    a_.riquadri.MsgBox(AvvisoPasso(passo_.IndiceNotaPP, tratto));
    return false;
}

void PannelloModifica::ApriPasso(const TrattoPasso& tratto) {
    if (!passo_.modoPasso) passo_.IndiceNotaPP = PrimaDelTratto(tratto);
    passo_.modoPasso = true;
    if (ConSoprano()) cmdCanc.Enabled = false;
    frmModifica.Visible = true;
    cmbPer.PonTesto("1");
}

void PannelloModifica::cmdNpp_Click() {
    Chiudi();
    cmdCanc.Enabled = true;
}

void PannelloModifica::Chiudi() {
    passo_.modoPasso = false;
    frmModifica.Visible = false;
}

}  // namespace corvana
