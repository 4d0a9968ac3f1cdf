// Which voice is the active one, what plays each voice, and how loud.
#include "composer/composer.h"
#include "core/notation.h"

namespace corvana {

namespace {

constexpr Colore coloreAttiva = Rgb(0, 255, 0);
constexpr Colore coloreAltra = Rgb(255, 0, 0);
constexpr int volumePieno = 100;

}  // namespace

void frmComposer::VoceAttiva_Click(int Index) {
    if (Index < 0 || Index >= static_cast<int>(numeroVoci)) return;
    const auto scelta = static_cast<std::size_t>(Index);
    melodia.modoPasso = false;
    melodia.voceAttiva = nomiVoci[scelta];
    cmdAddBm.Enabled = scelta == soprano;
    for (std::size_t voce = 0; voce < numeroVoci; ++voce)
        VoceAttiva[voce].BackColor = voce == scelta ? coloreAttiva : coloreAltra;
    if (!melodia.Attiva().Vuota()) lblNt.Caption = perVoce[scelta].ultima.Text();
}

void frmComposer::SceltaStrum(std::int32_t programma) {
    VoceMelodia& voce = melodia.Attiva();
    if (programma != voce.strumento && !melodia.voci[soprano].Vuota() && !melodia.inCaricamento)
        lblModificato.Visible = true;
    voce.strumento = programma;
    MandaStrumento(melodia.IndiceAttiva());
}

void frmComposer::MandaStrumento(std::size_t voce) {
    a_.suono.CambiaStrumento(melodia.voci[voce].strumento, static_cast<std::int32_t>(voce));
    MostraStrumento(voce);
}

void frmComposer::MostraStrumento(std::size_t voce) {
    const std::int32_t programma = melodia.voci[voce].strumento;
    lblInstr[voce].Caption = std::to_string(programma) + "-" + NomeStrumento(programma);
}

void frmComposer::VolumeCambiato(const ControlliVoce& voce) {
    const int vol = voce.volume.Value();
    voce.percento.Caption = std::to_string(vol == volumeMuto ? 0 : volumePieno - vol);
}

}  // namespace corvana
