// An output without sound that tells when the logic strikes a note of a drill. Its one call is the
// logic thread's.
#pragma once

#include <functional>

#include "forms/real_clock.h"
#include "sound/platform_midi.h"

namespace corvana::misura {

class UscitaCronometrata final : public PiattaformaMidi {
public:
    /// What is called with the note's MIDI number and the clock's instant in seconds.
    using Battuta = std::function<void(int nota, double istante)>;

    explicit UscitaCronometrata(Battuta battuta) : battuta_(std::move(battuta)) {}

    int midiOutOpen(HandleDispositivo& handle, std::int32_t) override { return handle = 1, 0; }
    int midiOutClose(HandleDispositivo) override { return 0; }
    int midiOutReset(HandleDispositivo) override { return 0; }
    int midiOutShortMsg(HandleDispositivo, std::uint32_t messaggio) override {
        constexpr std::uint32_t notaAccesa = 0x640090;  // channel 1 at the drills' velocity
        if ((messaggio & 0xFF00FF) == notaAccesa)
            battuta_(static_cast<int>(messaggio >> 8 & 0x7F), orologio_.Adesso());
        return 0;
    }
    std::string midiOutGetErrorTextA(int) override { return {}; }
    int midiOutGetNumDevs() override { return 0; }
    int midiOutGetDevCapsA(std::int32_t, std::string&) override { return midiDispositivoErrato; }
    void sndPlaySoundA(const std::string&, unsigned) override {}

private:
    Battuta battuta_;
    OrologioReale orologio_;
};

}  // namespace corvana::misura
