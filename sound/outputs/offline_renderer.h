// The synthesiser, the mixer and the cues without a device: what is sent is rendered on demand,
// each message at its instant, just where the mixer would place it, bit for bit the same every
// time. One thread.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <vector>

#include "sound/outputs/engine.h"
#include "sound/outputs/output_settings.h"
#include "sound/platform_midi.h"

namespace corvana {

class ResaOffline final : public PiattaformaMidi {
public:
    /// `istante` tells the logic's time in seconds; the first rendered frame is instant 0.
    explicit ResaOffline(std::function<double()> istante,
                         const ImpostazioniUscite& impostazioni = {});

    int midiOutOpen(HandleDispositivo& handle, std::int32_t id) override;
    int midiOutClose(HandleDispositivo handle) override;
    int midiOutReset(HandleDispositivo handle) override;
    int midiOutShortMsg(HandleDispositivo handle, std::uint32_t messaggio) override;
    std::string midiOutGetErrorTextA(int codice) override;
    int midiOutGetNumDevs() override { return 0; }
    int midiOutGetDevCapsA(std::int32_t id, std::string& nome) override;
    /// The wave starts with the buffer of 256 frames in which its instant lies.
    void sndPlaySoundA(const std::string& percorso, unsigned flags) override;

    /// The next `secondi` of sound: stereo frames, left and right in turn, 48000 each second.
    std::vector<float> Rendi(double secondi);

private:
    struct Segnale {
        double istante;
        const Onda* onda;
    };

    int Accoda(HandleDispositivo handle, const MessaggioDatato& messaggio);
    /// Gives the mixer what belongs to instants before `fine`.
    void Passa(double fine);

    std::function<double()> istante_;
    MotoreSonoro motore_;
    bool pronto_;
    HandleDispositivo aperto_ = 0;
    std::deque<MessaggioDatato> messaggi_;
    std::deque<Segnale> segnali_;
    std::int64_t frame_ = 0;
};

}  // namespace corvana
