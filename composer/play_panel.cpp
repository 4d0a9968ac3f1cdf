#include "composer/play_panel.h"

#include <algorithm>

#include "composer/playback.h"
#include "melody/numbers.h"
#include "melody/tokens.h"

namespace corvana {

namespace {

constexpr int passoRitardo = 1000;  // milliseconds

}  // namespace

PannelloPlay::PannelloPlay(const Ambiente& ambiente, Form& finestra, StatoComposer& stato,
                           VicinePlay vicine)
    : finestra_(finestra),
      a_(ambiente),
      stato_(stato),
      melodia_(stato.melodia),
      vicine_(std::move(vicine)) {
    Slider1.Min = tempoMassimo;
    Slider1.Max = tempoMinimo;
    Slider1.Value = tempoIniziale;
    cmdPlay.BackColor = stato_.lblNe.BackColor();
    for (Figura& luce : Secondo)
        luce.Visible = false;
    cmdPlay.Click = [this] { cmdPlay_Click(); };
    chekLoop.Click = [this] { cmdPlay.SetFocus(); };
    Slider1.Change = [this] { Slider1_Change(); };
    Slider1.Scroll = [this] { Slider1_Scroll(); };
}

void PannelloPlay::Carica() {
    melodia_.tempo = tempoIniziale;
    Velocità.Caption = std::to_string(Slider1.Value());
}

void PannelloPlay::PrendiTempo(const std::string& tempo) {
    Slider1.PonValore(NumeroLetto(tempo));
}

void PannelloPlay::Slider1_Scroll() {
    melodia_.tempo = static_cast<std::uint8_t>(Slider1.Value());
    Velocità.Caption = std::to_string(Slider1.Value());
}

void PannelloPlay::Slider1_Change() {
    Slider1_Scroll();
    cmdPlay.SetFocus();
    if (!melodia_.voci[soprano].Vuota() && !melodia_.inCaricamento)
        stato_.lblModificato.Visible = true;
}

void PannelloPlay::SuonaMelodia(const std::int16_t& primaNota, const std::int16_t& ultimaNota,
                                const bool& soloNota) {
    if (stato_.inEsecuzione)
        FermaMelodia();
    else
        Esecuzione(a_, stato_, *this, vicine_, {primaNota, ultimaNota, soloNota}).Suona();
}

/// The play that goes on lies below on this stack and sees it between two ticks.
void PannelloPlay::FermaMelodia() {
    stato_.inEsecuzione = false;
    MostraFermo();
}

void PannelloPlay::cmdPlay_Click() {
    const VoceMelodia& voce = melodia_.voci[soprano];
    if (voce.Vuota()) return;
    vicine_.chiudiModifica();
    SuonaMelodia(voce.primaNota, voce.ultimaNota, false);
}

void PannelloPlay::mnuPlayRitardo_Click() {
    if (melodia_.voci[soprano].Vuota()) return;
    // The window may be closed while it waits: nobody could stop what it would play then.
    const std::uint32_t questa = finestra_.Identita();
    for (Figura& luce : Secondo) {
        luce.Visible = true;
        a_.pompa.PompaEventi();
        if (finestra_.Identita() != questa) break;
        a_.pompa.Sleep(passoRitardo);
    }
    for (Figura& luce : Secondo)
        luce.Visible = false;
    a_.pompa.PompaEventi();
    if (finestra_.Identita() == questa) cmdPlay_Click();
}

Tick PannelloPlay::TickFinoANota(std::int16_t indice) const {
    return SommaTick(melodia_.voci[soprano].durateVoce, indice);
}

void PannelloPlay::CalcolaTickTotali() {
    Tick& totali = stato_.riproduzione.tickTotali;
    totali = -1;
    for (const VoceMelodia& voce : melodia_.voci)
        if (!voce.Vuota())
            totali = std::max(totali, SommaTick(voce.durateVoce, NoteIntere(voce) - 1));
}

void PannelloPlay::MostraInPlay() {
    cmdPlay.Caption = "Stop";
    cmdPlay.BackColor = vicine_.coloreInPlay();
}

void PannelloPlay::MostraFermo() {
    cmdPlay.Caption = "Play";
    cmdPlay.BackColor = stato_.lblNe.BackColor();
}

void PannelloPlay::PlayFinito() {
    if (!a_.globali.PickerAperto)
        cmdPlay.SetFocus();
    else if (vicine_.finePlayDaPicker)
        vicine_.finePlayDaPicker();
}

}  // namespace corvana
