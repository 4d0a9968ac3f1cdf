// The commands around a play: start and stop, the delayed start, how long the melody is.
#include <algorithm>

#include "composer/composer.h"
#include "composer/playback.h"
#include "melody/tokens.h"

namespace corvana {

namespace {

constexpr int passoRitardo = 1000;  // milliseconds

}  // namespace

void frmComposer::SuonaMelodia(const std::int16_t& primaNota, const std::int16_t& ultimaNota,
                               const bool& soloNota) {
    if (inEsecuzione)
        FermaMelodia();
    else
        Esecuzione(*this, a_, primaNota, ultimaNota, soloNota).Suona();
}

/// The play that goes on lies below on this stack and sees it between two ticks.
void frmComposer::FermaMelodia() {
    inEsecuzione = false;
    cmdPlay.Caption = "Play";
    cmdPlay.BackColor = lblNe.BackColor();
}

void frmComposer::cmdPlay_Click() {
    const VoceMelodia& voce = melodia.voci[soprano];
    if (voce.Vuota()) return;
    melodia.modoPasso = false;
    frmModifica.Visible = false;
    SuonaMelodia(voce.primaNota, voce.ultimaNota, false);
}

void frmComposer::mnuPlayRitardo_Click() {
    if (melodia.voci[soprano].Vuota()) return;
    // The window may be closed while it waits: nobody could stop what it would play then.
    const std::uint32_t questa = Identita();
    for (Figura& luce : Secondo) {
        luce.Visible = true;
        a_.pompa.PompaEventi();
        if (Identita() != questa) break;
        a_.pompa.Sleep(passoRitardo);
    }
    for (Figura& luce : Secondo)
        luce.Visible = false;
    a_.pompa.PompaEventi();
    if (Identita() == questa) cmdPlay_Click();
}

Tick frmComposer::TickFinoANota(std::int16_t indice) const {
    return SommaTick(melodia.voci[soprano].durateVoce, indice);
}

void frmComposer::CalcolaTickTotali() {
    riproduzione.tickTotali = -1;
    for (const VoceMelodia& voce : melodia.voci)
        if (!voce.Vuota())
            riproduzione.tickTotali =
                std::max(riproduzione.tickTotali, SommaTick(voce.durateVoce, NoteIntere(voce) - 1));
}

void frmComposer::PlayFinito() {
    if (!a_.globali.PickerAperto)
        cmdPlay.SetFocus();
    else if (vicine_.finePlayDaPicker)
        vicine_.finePlayDaPicker();
}

}  // namespace corvana
