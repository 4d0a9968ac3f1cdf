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

std::string PannelloModifica::ParolaDi(const VoceMelodia& voce, std::int16_t indice) const {
    return std::string(
        ParolaDurata(Elemento(voce.durateVoce, indice), a_.globali.SeparatoreDecimale));
}

std::string PannelloModifica::TestoDurata() const {
    return ParolaDi(stato_.melodia.Attiva(), passo_.IndiceNotaPP);
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

/// The tools take a note of the active voice, and its number is shown.
void PannelloModifica::CaricaNota(std::int16_t indice) {
    const VoceMelodia& voce = stato_.melodia.Attiva();
    MostraNota(NumeroNota(Elemento(voce.noteVoce, indice)));
    cmbAttributi.PonTesto(Elemento(voce.attributiVoce, indice));
    // A duration that the list has no word for can't be written back by it.
    cmbDurata.PonTesto(ParolaDi(voce, indice));
    MostraNumero(indice);
}

void PannelloModifica::MostraNumero(std::int16_t indice) {
    stato_.lblNe.Caption = std::to_string(indice + 1);
}

}  // namespace corvana
