#include "sound/outputs/cue_voice.h"

namespace corvana {

float VoceSegnale::Lettura::Prossimo() {
    if (!onda) return 0;
    if (posizione == onda->campioni.size()) {
        onda = nullptr;
        return 0;
    }
    return onda->campioni[posizione++];
}

void VoceSegnale::Avvia(const Onda* onda) {
    tagliata_ = attuale_;
    restoDelTaglio_ = frameDiTaglio;
    attuale_ = {onda, 0};
}

void VoceSegnale::Aggiungi(float* stereo, int frame) {
    for (int i = 0; i < frame && Suona(); ++i) {
        float campione = attuale_.Prossimo();
        if (tagliata_.onda) {
            --restoDelTaglio_;
            campione += tagliata_.Prossimo() * static_cast<float>(restoDelTaglio_) / frameDiTaglio;
            if (restoDelTaglio_ == 0) tagliata_ = {};
        }
        stereo[2 * i] += campione;
        stereo[2 * i + 1] += campione;
    }
}

}  // namespace corvana
