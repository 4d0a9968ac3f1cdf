// The machine's audio device. A thread of its own opens it, notices its loss and opens it again
// each second; the device's thread lets the mixer render. After a long silence the device is let
// go, so that a program at rest costs nothing, and opened again when somebody wakes the stream.
// Everything here may hang with a dead sound server, and then hangs alone.
#pragma once

#include <memory>

#include "sound/outputs/abandonable_thread.h"
#include "sound/outputs/engine.h"
#include "sound/outputs/output_settings.h"

namespace corvana {

class FlussoAudio {
public:
    /// Begins to open the device and returns at once.
    FlussoAudio(std::shared_ptr<MotoreSonoro> motore, const ImpostazioniUscite& impostazioni);
    FlussoAudio(const FlussoAudio&) = delete;
    FlussoAudio& operator=(const FlussoAudio&) = delete;
    /// Closes the device; takes a second at most.
    ~FlussoAudio();

    /// Something is about to sound, or may be soon. To be called after each message too. Logic
    /// thread; returns at once.
    void Sveglia();
    /// True while a device plays or rests in silence. Until the first attempt to open one has ended
    /// it waits, 1.5 seconds at most in all. Logic thread.
    bool Udibile();

private:
    struct Stato;
    class Custode;

    std::shared_ptr<Stato> stato_;
    bool atteso_ = false;
    FiloAbbandonabile filo_;
};

}  // namespace corvana
