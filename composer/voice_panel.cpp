#include "composer/voice_panel.h"

#include <algorithm>

#include "core/notation.h"
#include "melody/edits.h"
#include "melody/tokens.h"

namespace corvana {

namespace {

/// The last letters of a voice's note names that its display has room for.
constexpr std::size_t lettereNomi = 40;

}  // namespace

PannelloVoci::PannelloVoci(const Ambiente& ambiente, Form& finestra, StatoComposer& stato,
                           std::function<void()> sopranoContato)
    : finestra_(finestra),
      a_(ambiente),
      stato_(stato),
      melodia_(stato.melodia),
      sopranoContato_(std::move(sopranoContato)) {
    for (std::size_t voce = 0; voce < numeroVoci; ++voce)
        perVoce[voce].nomi.BackColor = coloriVoci[voce];
}

void PannelloVoci::Carica() {
    AzzeraMelodia();
    melodia_.voceAttiva = nomiVoci[soprano];
}

void PannelloVoci::AggiornaVoce() {
    VoceMelodia& voce = melodia_.Attiva();
    Spezza(voce);
    if (melodia_.IndiceAttiva() == soprano)
        AggiornaSoprano();
    else
        AggiornaAltra(voce, perVoce[melodia_.IndiceAttiva()]);
}

void PannelloVoci::AggiornaSoprano() {
    VoceMelodia& voce = melodia_.voci[soprano];
    if (voce.numeroNote == -1) {
        voce.primaNota = 0;
        lblNini.Text = "";
        lblNfine.Text = "";
    } else {
        stato_.lblNt.Caption = std::to_string(voce.numeroNote);
        voce.ultimaNota = static_cast<std::int16_t>(voce.numeroNote - 1);
        lblNfine.Text = std::to_string(voce.numeroNote);
        lblNini.Text = std::to_string(voce.primaNota + 1);
    }
    sopranoContato_();
}

void PannelloVoci::AggiornaAltra(VoceMelodia& voce, const ControlliVoce& controlli) {
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

void PannelloVoci::MostraNoteVoce() {
    const VoceMelodia& voce = melodia_.Attiva();
    const ControlliVoce& controlli = perVoce[melodia_.IndiceAttiva()];
    controlli.nomi.Caption = "";
    if (voce.Vuota()) return;
    controlli.nomi.Caption = NomiFino(voce, NumeroNota(controlli.ultima.Text()));
}

void PannelloVoci::MostraTrattoSoprano() {
    const VoceMelodia& voce = melodia_.voci[soprano];
    const long note = voce.Vuota() ? 0 : std::max(static_cast<long>(voce.noteVoce.size()) - 1, 0L);
    LblNoteString.Caption = NomiFino(voce, std::min(voce.ultimaNota + 1L, note));
}

void PannelloVoci::MostraNomiInteri() {
    for (std::size_t voce = 0; voce < numeroVoci; ++voce)
        if (const VoceMelodia& v = melodia_.voci[voce]; !v.Vuota())
            perVoce[voce].nomi.Caption = NomiFino(v, NoteIntere(v));
}

/// The names of the first `note` notes, as far as the display has room for the last of them.
std::string PannelloVoci::NomiFino(const VoceMelodia& voce, long note) const {
    std::string nomi;
    for (long i = 0; i < note; ++i)
        nomi.append(NomeNota(NumeroNota(Elemento(voce.noteVoce, i)), a_.globali.NomiAnglo))
            .append(";");
    return nomi.size() > lettereNomi ? nomi.substr(nomi.size() - lettereNomi) : nomi;
}

void PannelloVoci::TogliNota() {
    TogliTokenDopo(melodia_.Attiva(), stato_.passo.IndiceNotaPP);
    AggiornaVoce();
    MostraNoteVoce();
}

void PannelloVoci::AzzeraMelodia() {
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        SvuotaTesti(melodia_.voci[voce]);
        melodia_.voci[voce].primaNota = 0;
        melodia_.voci[voce].ultimaNota = 0;
        perVoce[voce].nomi.Caption = "";
        perVoce[voce].prima.Text = "";
        perVoce[voce].ultima.Text = "";
    }
    melodia_.voci[soprano].numeroNote = 0;
    stato_.riproduzione.voci[soprano].posizione = 0;
    stato_.riproduzione.voci[soprano].ultima = 0;
    stato_.lblNt.Caption = "";
    stato_.lblNe.Caption = "";
    stato_.lblPnn.Caption = "";
}

bool PannelloVoci::PrendiSoprano() {
    VoceMelodia& voce = melodia_.voci[soprano];
    AggiornaVoce();
    const std::size_t elementi = voce.noteVoce.size();
    if (voce.durateVoce.size() != elementi || voce.attributiVoce.size() != elementi) return false;
    LblNoteString.Caption = NomiFino(voce, voce.numeroNote);
    return true;
}

void PannelloVoci::MostraSopranoIntero() {
    VoceMelodia& voce = melodia_.voci[soprano];
    stato_.lblNt.Caption = std::to_string(voce.numeroNote);
    voce.primaNota = 0;
    voce.ultimaNota = static_cast<std::int16_t>(voce.numeroNote - 1);
    lblNini.Text = "1";
    lblNfine.Text = std::to_string(voce.numeroNote);
}

void PannelloVoci::PrendiAltreVoci() {
    for (std::size_t voce = soprano + 1; voce < numeroVoci; ++voce) {
        melodia_.voceAttiva = nomiVoci[voce];
        AggiornaVoce();
        MostraNoteVoce();
    }
    melodia_.voceAttiva = nomiVoci[soprano];
}

void PannelloVoci::Blocca(bool bloccate) {
    for (const ControlliVoce& voce : perVoce) {
        voce.prima.Locked = bloccate;
        voce.ultima.Locked = bloccate;
    }
}

}  // namespace corvana
