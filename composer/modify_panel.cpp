#include "composer/modify_panel.h"

#include "composer/rows.h"
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

PannelloModifica::PannelloModifica(const Ambiente& ambiente, Form& finestra, StatoComposer& stato)
    : finestra_(finestra), a_(ambiente), stato_(stato) {
    Riempi(cmbDurata, ParoleDurata(), -1);
    Riempi(cmbPer, Numeri(moltiplicatori), 0);
    Riempi(cmbAttributi, {"n", "s", "t", "a", "p"}, 0);
    cmdPaste.Enabled = false;
    frmModifica.Visible = false;
}

std::string PannelloModifica::TestoDurata() const {
    const VoceMelodia& voce = stato_.melodia.Attiva();
    return std::string(ParolaDurata(Elemento(voce.durateVoce, stato_.passo.IndiceNotaPP),
                                    a_.globali.SeparatoreDecimale));
}

double PannelloModifica::ValoreCombo() const {
    return ValoreParola(cmbDurata.Text()) * NumeroNota(cmbPer.Text());
}

void PannelloModifica::Chiudi() {
    stato_.passo.modoPasso = false;
    frmModifica.Visible = false;
}

}  // namespace corvana
