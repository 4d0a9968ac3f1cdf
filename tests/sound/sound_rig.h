// The sound layer over a recorded output, on the virtual clock.
#pragma once

#include "forms/virtual_clock.h"
#include "sound/recorder.h"
#include "sound/sound.h"
#include "tests/support/scripted_boxes.h"

namespace corvana::prova {

struct BancoSuono {
    OrologioVirtuale orologio;
    CodaEventi coda;
    Pompa pompa{orologio, coda};
    Registratore uscita{[this] { return pompa.Adesso(); }};
    RiquadriDaCopione riquadri;
    Suono suono{uscita, pompa, riquadri};

    /// With the default output open.
    BancoSuono() { suono.ApriMidi(dispositivoPredefinito); }

    /// All messages that were accepted since the last call, as packed.
    std::vector<std::uint32_t> Messaggi() {
        std::vector<std::uint32_t> nuovi;
        for (; letti < uscita.messaggi.size(); ++letti)
            nuovi.push_back(uscita.messaggi[letti].messaggio);
        return nuovi;
    }
    std::size_t letti = 0;
};

using Pacchetti = std::vector<std::uint32_t>;
using Avvisi = std::vector<std::string>;

/// A note on of channel 1 (velocity 0 for a note off), packed as the platform takes it.
constexpr std::uint32_t Nota(std::uint32_t nota, std::uint32_t velocita) {
    return (velocita << 16) | (nota << 8) | 0x90;
}

}  // namespace corvana::prova
