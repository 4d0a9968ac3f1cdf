// A synthesiser that a test plays at instants of its own and listens to afterwards.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "sound/outputs/offline_renderer.h"
#include "tests/outputs/hearing.h"

namespace corvana::prova {

constexpr std::uint32_t Pacco(int stato, int dato1, int dato2) {
    return static_cast<std::uint32_t>((dato2 * 256 + dato1) * 256 + stato);
}

class Resa {
public:
    explicit Resa(const ImpostazioniUscite& impostazioni = {})
        : uscite([this] { return adesso; }, impostazioni) {
        EXPECT_EQ(uscite.midiOutOpen(handle, dispositivoPredefinito), midiSenzaErrore);
    }

    void Messaggio(double istante, int stato, int dato1, int dato2 = 0) {
        adesso = istante;
        EXPECT_EQ(uscite.midiOutShortMsg(handle, Pacco(stato, dato1, dato2)), midiSenzaErrore);
    }
    void Nota(double istante, int nota, int velocita = 100) {
        Messaggio(istante, 0x90, nota, velocita);
    }
    void Azzera(double istante) {
        adesso = istante;
        EXPECT_EQ(uscite.midiOutReset(handle), midiSenzaErrore);
    }
    std::vector<float> Ascolta(double secondi) { return Mono(uscite.Rendi(secondi)); }

    double adesso = 0;
    ResaOffline uscite;
    HandleDispositivo handle = 0;
};

/// The first frame that isn't perfectly silent; the length when there is none.
inline std::size_t PrimoSuono(const std::vector<float>& mono) {
    std::size_t i = 0;
    while (i < mono.size() && mono[i] == 0)
        ++i;
    return i;
}

}  // namespace corvana::prova
