// The frame of the note under the step.
#include "composer/modify_panel.h"

#include "composer/rows.h"
#include "core/notation.h"
#include "melody/durations.h"
#include "melody/tokens.h"

namespace corvana {

namespace {

constexpr int moltiplicatori = 12;

Righe ParoleDurata() {
    Righe parole;
    for (const Durata& durata : durate)
        parole.emplace_back(durata.parola);
    parole.emplace_back(altraDurata);
    return parole;
}

}  // namespace

PannelloModifica::PannelloModifica(const Ambiente& ambiente, Form& finestra, StatoComposer& stato,
                                   VicineModifica vicine)
    : finestra_(finestra),
      a_(ambiente),
      stato_(stato),
      passo_(stato.passo),
      vicine_(std::move(vicine)) {
    Riempi(cmbDurata, ParoleDurata(), -1);
    Riempi(cmbPer, Numeri(moltiplicatori), 0);
    Riempi(cmbAttributi, {"n", "s", "t", "a", "p"}, 0);
    cmdPaste.Enabled = false;
    frmModifica.Visible = false;
    Collega();
}

void PannelloModifica::Collega() {
    lblStep[0].Click = [this] { lblStep_Click(0); };
    lblStep[1].Click = [this] { lblStep_Click(1); };
    cmbDurata.Click = [this] { cmbDurata_Click(); };
    cmdModifica[0].Click = [this] { cmdModifica_Click(); };
    cmdInsertNote.Click = [this] { cmdInsertNote_Click(); };
    cmdCancNota.Click = [this] { cmdCancNota_Click(); };
    cmdNpp.Click = [this] { cmdNpp_Click(); };
    cmdCanc.Click = [this] { cmdCanc_Click(); };
}

std::string PannelloModifica::TestoDurata() const {
    const VoceMelodia& voce = stato_.melodia.Attiva();
    return std::string(ParolaDurata(Elemento(voce.durateVoce, stato_.passo.IndiceNotaPP),
                                    a_.globali.SeparatoreDecimale));
}

double PannelloModifica::ValoreCombo() const {
    return ValoreParola(cmbDurata.Text()) * NumeroNota(cmbPer.Text());
}

void PannelloModifica::cmbDurata_Click() {
    cmdModifica[0].Enabled = cmbDurata.Text() != altraDurata;
}

void PannelloModifica::MostraNota(std::int16_t nota) {
    lblActualNote.Caption = NomeNota(nota, a_.globali.NomiAnglo);
}

/// The tools take attribute and duration of the note under the step.
void PannelloModifica::CaricaAttrezzi() {
    cmbAttributi.PonTesto(Elemento(stato_.melodia.Attiva().attributiVoce, passo_.IndiceNotaPP));
    // A duration that the list has no word for can't be written back by it.
    cmbDurata.PonTesto(TestoDurata());
}

void PannelloModifica::MostraNumero() {
    stato_.lblNe.Caption = std::to_string(passo_.IndiceNotaPP + 1);
}

}  // namespace corvana
