#include "composer/mix_panel.h"

#include "core/notation.h"

namespace corvana {

namespace {

constexpr Colore coloreAttiva = Rgb(0, 255, 0);
constexpr Colore coloreAltra = Rgb(255, 0, 0);
constexpr int volumePieno = 100;
constexpr int volumeIniziale = 2;
constexpr int volumeSommesso = 60;  // of the others, at the first press of a solo button
constexpr int passiSolo = 2;        // and at the next press it is back at the first
constexpr std::int32_t pianoforteMix = 0, organoMix = 16;

}  // namespace

PannelloMix::PannelloMix(const Ambiente& ambiente, Form& finestra, StatoComposer& stato,
                         VicineMix vicine)
    : finestra_(finestra),
      a_(ambiente),
      stato_(stato),
      melodia_(stato.melodia),
      vicine_(std::move(vicine)) {
    for (std::size_t voce = 0; voce < numeroVoci; ++voce)
        Prepara(voce);
    ColoraVoci(soprano);
}

void PannelloMix::Prepara(std::size_t voce) {
    const ControlliVolume& controlli = perVoce[voce];
    controlli.volume.Min = volumeMuto;
    controlli.volume.Max = 0;
    controlli.volume.Value = volumeIniziale;
    lblInstr[voce].BackColor = coloriVoci[voce];
    lblMuteC[voce].Max = passiSolo;
    VoceAttiva[voce].Click = [this, voce] { VoceAttiva_Click(static_cast<int>(voce)); };
    lblMuteC[voce].Click = [this, voce] { lblMuteC_Click(static_cast<int>(voce)); };
    controlli.volume.Change = [&controlli] { VolumeCambiato(controlli); };
    controlli.percento.Click = [this, voce] { lblVol_Click(voce); };
    controlli.percento.DblClick = [this] { ResetVolumi(); };
}

void PannelloMix::Carica() {
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        melodia_.voci[voce].strumento = a_.globali.StrumentoGlobale;
        MandaStrumento(voce);
    }
}

void PannelloMix::VoceAttiva_Click(int Index) {
    if (Index < 0 || Index >= static_cast<int>(numeroVoci)) return;
    const auto scelta = static_cast<std::size_t>(Index);
    stato_.passo.modoPasso = false;
    melodia_.voceAttiva = nomiVoci[scelta];
    vicine_.abilitaAddBm(scelta == soprano);
    ColoraVoci(scelta);
    if (!melodia_.Attiva().Vuota()) stato_.lblNt.Caption = vicine_.fineTratto(scelta);
}

void PannelloMix::ColoraVoci(std::size_t scelta) {
    for (std::size_t voce = 0; voce < numeroVoci; ++voce)
        VoceAttiva[voce].BackColor = voce == scelta ? coloreAttiva : coloreAltra;
}

void PannelloMix::lblMuteC_Click(int Index) {
    if (Index < 0 || Index >= static_cast<int>(numeroVoci)) return;
    const auto voce = static_cast<std::size_t>(Index);
    switch (statoSolo[voce]) {
        case 0: PonVolumi(voce, volumeSommesso); break;
        case 1: PonVolumi(voce, volumeMuto); break;
        default: return ResetVolumi();
    }
    ++statoSolo[voce];
    MostraPassi();
}

void PannelloMix::lblVol_Click(std::size_t voce) {
    PonVolumi(voce, volumeMuto);
}

void PannelloMix::ResetVolumi() {
    for (const ControlliVolume& voce : perVoce)
        voce.volume.PonValore(0);
    statoSolo = {};
    MostraPassi();
}

void PannelloMix::MostraPassi() {
    for (std::size_t voce = 0; voce < numeroVoci; ++voce)
        lblMuteC[voce].Value = statoSolo[voce];
}

/// That voice full, the others as told.
void PannelloMix::PonVolumi(std::size_t voce, int altre) {
    for (std::size_t i = 0; i < numeroVoci; ++i)
        perVoce[i].volume.PonValore(i == voce ? 0 : altre);
}

void PannelloMix::mnuPiano_Click() {
    PonStrumenti(pianoforteMix);
}

void PannelloMix::mnuOrgano_Click() {
    PonStrumenti(organoMix);
}

void PannelloMix::PonStrumenti(std::int32_t programma) {
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        melodia_.voci[voce].strumento = programma;
        MandaStrumento(voce);
    }
    vicine_.fuocoPlay();
}

void PannelloMix::SceltaStrum(std::int32_t programma) {
    VoceMelodia& voce = melodia_.Attiva();
    if (programma != voce.strumento && !melodia_.voci[soprano].Vuota() && !melodia_.inCaricamento)
        stato_.lblModificato.Visible = true;
    voce.strumento = programma;
    MandaStrumento(melodia_.IndiceAttiva());
}

void PannelloMix::MandaStrumenti() {
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        const std::int32_t programma = melodia_.voci[voce].strumento;
        if (voce == soprano || programma >= 0)
            a_.suono.CambiaStrumento(programma, static_cast<std::int32_t>(voce));
    }
    for (std::size_t voce = 0; voce < numeroVoci; ++voce)
        MostraStrumento(voce);
}

void PannelloMix::MandaStrumento(std::size_t voce) {
    a_.suono.CambiaStrumento(melodia_.voci[voce].strumento, static_cast<std::int32_t>(voce));
    MostraStrumento(voce);
}

void PannelloMix::MostraStrumento(std::size_t voce) {
    const std::int32_t programma = melodia_.voci[voce].strumento;
    lblInstr[voce].Caption = std::to_string(programma) + "-" + NomeStrumento(programma);
}

void PannelloMix::VolumeCambiato(const ControlliVolume& voce) {
    const int vol = voce.volume.Value();
    voce.percento.Caption = std::to_string(vol == volumeMuto ? 0 : volumePieno - vol);
}

}  // namespace corvana
