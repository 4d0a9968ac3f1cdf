// The texts of a voice, what is split from them, and what the window shows of it.
#include "composer/composer.h"
#include "composer/ranges.h"
#include "core/text.h"
#include "melody/durations.h"
#include "melody/tokens.h"

namespace corvana {

namespace {

void Svuota(VoceMelodia& voce) {
    voce.testoNote.clear();
    voce.testoDurate.clear();
    voce.testoAttributi.clear();
    voce.primaNota = 0;
    voce.ultimaNota = 0;
}

}  // namespace

void frmComposer::AggiornaVoce() {
    VoceMelodia& voce = melodia.Attiva();
    Spezza(voce);
    if (melodia.IndiceAttiva() == soprano)
        AggiornaSoprano();
    else
        AggiornaAltra(voce, perVoce[melodia.IndiceAttiva()]);
}

void frmComposer::AggiornaSoprano() {
    VoceMelodia& voce = melodia.voci[soprano];
    if (voce.numeroNote == -1) {
        voce.primaNota = 0;
        lblNini.Text = "";
        lblNfine.Text = "";
        lstBookMark.Clear();
        return;
    }
    lblNt.Caption = std::to_string(voce.numeroNote);
    voce.ultimaNota = static_cast<std::int16_t>(voce.numeroNote - 1);
    lblNfine.Text = std::to_string(voce.numeroNote);
    lblNini.Text = std::to_string(voce.primaNota + 1);
    if (!lstBookMark.List->empty()) AggiornaRiferimentoIntero();
}

void frmComposer::AggiornaAltra(VoceMelodia& voce, const ControlliVoce& controlli) {
    if (voce.numeroNote == -1) {
        voce.primaNota = 0;
        controlli.prima.Text = "";
        controlli.ultima.Text = "";
        return;
    }
    voce.ultimaNota = static_cast<std::int16_t>(voce.numeroNote - 1);
    controlli.ultima.Text = std::to_string(voce.numeroNote);
    if (controlli.prima.Text->empty()) controlli.prima.Text = "1";
}

void frmComposer::MostraNoteVoce() {
    const VoceMelodia& voce = melodia.Attiva();
    const ControlliVoce& controlli = perVoce[melodia.IndiceAttiva()];
    controlli.nomi.Caption = "";
    if (voce.Vuota()) return;
    controlli.nomi.Caption = NomiFino(voce, NumeroNota(controlli.ultima.Text()));
}

/// The names of the first `note` notes, as far as the display has room for the last of them.
std::string frmComposer::NomiFino(const VoceMelodia& voce, long note) const {
    std::string nomi;
    for (long i = 0; i < note; ++i)
        nomi.append(NomeDi(NumeroNota(Elemento(voce.noteVoce, i)))).append(";");
    return nomi.size() > lettereNomi ? nomi.substr(nomi.size() - lettereNomi) : nomi;
}

void frmComposer::TogliNota() {
    TogliTokenDopo(melodia.Attiva(), melodia.IndiceNotaPP);
    AggiornaVoce();
    MostraNoteVoce();
}

std::string frmComposer::TestoDurata() const {
    const VoceMelodia& voce = melodia.voci[melodia.IndiceAttiva()];
    return std::string(ParolaDurata(Elemento(voce.durateVoce, melodia.IndiceNotaPP),
                                    a_.globali.SeparatoreDecimale));
}

double frmComposer::ValoreCombo() const {
    return ValoreParola(cmbDurata.Text()) * NumeroNota(cmbPer.Text());
}

void frmComposer::AzzeraMelodia() {
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        Svuota(melodia.voci[voce]);
        perVoce[voce].nomi.Caption = "";
        perVoce[voce].prima.Text = "";
        perVoce[voce].ultima.Text = "";
    }
    melodia.voci[soprano].numeroNote = 0;
    riproduzione.voci[soprano].posizione = 0;
    riproduzione.voci[soprano].ultima = 0;
    lblNt.Caption = "";
    lblNe.Caption = "";
    lblPnn.Caption = "";
}

}  // namespace corvana
