#include "composer/mix_panel.h"

#include "core/notation.h"

namespace corvana {

namespace {

constexpr Colore coloreAttiva = Rgb(0, 255, 0);
constexpr Colore coloreAltra = Rgb(255, 0, 0);
constexpr int volumePieno = 100;
constexpr int volumeIniziale = 2;

}  // namespace

PannelloMix::PannelloMix(const Ambiente& ambiente, Form& finestra, StatoComposer& stato,
                         VicineMix vicine)
    : finestra_(finestra),
      a_(ambiente),
      stato_(stato),
      melodia_(stato.melodia),
      vicine_(std::move(vicine)) {
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        perVoce[voce].volume.Min = volumeMuto;
        perVoce[voce].volume.Max = 0;
        perVoce[voce].volume.Value = volumeIniziale;
        lblInstr[voce].BackColor = coloriVoci[voce];
        VoceAttiva[voce].Click = [this, voce] { VoceAttiva_Click(static_cast<int>(voce)); };
        perVoce[voce].volume.Change = [this, voce] { VolumeCambiato(perVoce[voce]); };
    }
    ColoraVoci(soprano);
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
