#include "composer/transposition_panel.h"

#include <algorithm>

#include "melody/edits.h"

namespace corvana {

namespace {

constexpr int ottavaIntera = 12;  // the most semitones, up or down

}  // namespace

PannelloTrasposizione::PannelloTrasposizione(const Ambiente& ambiente, Form& finestra,
                                             StatoComposer& stato, VicineTrasposizione vicine)
    : finestra_(finestra),
      a_(ambiente),
      stato_(stato),
      melodia_(stato.melodia),
      vicine_(std::move(vicine)) {
    for (std::size_t i = 0; i < lblIDs.size(); ++i)
        lblIDs[i].Click = [this, i] { lblIDs_Click(static_cast<int>(i)); };
    lblSemitoni.Click = [this] { lblSemitoni_Click(); };
}

void PannelloTrasposizione::Carica() {
    PonSemitoni(0);
}

void PannelloTrasposizione::lblIDs_Click(int Index) {
    if (melodia_.voci[soprano].Vuota() || Index < 0 || Index > 1) return;
    PonSemitoni(std::clamp(melodia_.semitoni + (Index ? 1 : -1), -ottavaIntera, ottavaIntera));
}

void PannelloTrasposizione::lblSemitoni_Click() {
    if (!stato_.inEsecuzione && melodia_.semitoni != 0) Trasponi();
}

void PannelloTrasposizione::Trasponi() {
    const TestiLingua& testi = a_.globali.testi;
    if (corvana::Trasponi(melodia_.voci, melodia_.semitoni))
        Applica();
    else
        a_.riquadri.MsgBox(testi.msgTrasposizioneNo + "\n" + testi.msgNoteFuori);
    PonSemitoni(0);
    vicine_.fuocoPlay();
}

/// The texts and arrays have changed.
void PannelloTrasposizione::Applica() {
    if (std::all_of(melodia_.voci.begin(), melodia_.voci.end(),
                    [](const VoceMelodia& voce) { return voce.Vuota(); }))
        return;
    vicine_.mostraNomi();
    stato_.lblModificato.Visible = true;
}

void PannelloTrasposizione::PonSemitoni(int semitoni) {
    melodia_.semitoni = static_cast<std::int16_t>(semitoni);
    lblSemitoni.Caption = std::to_string(semitoni);
}

}  // namespace corvana
