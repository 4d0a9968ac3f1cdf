// Outputs that are made on a thread of their own, as the first window comes up. A call that needs
// them waits until they are there. Logic thread.
#pragma once

#include <functional>
#include <future>
#include <memory>

#include "sound/platform_midi.h"

namespace corvana {

class UsciteDifferite final : public PiattaformaMidi {
public:
    /// `crea` begins at once, on the other thread. What it throws each call throws that needs the
    /// outputs.
    explicit UsciteDifferite(std::function<std::unique_ptr<PiattaformaMidi>()> crea);

    int midiOutOpen(HandleDispositivo& handle, std::int32_t id) override;
    int midiOutClose(HandleDispositivo handle) override;
    int midiOutReset(HandleDispositivo handle) override;
    int midiOutShortMsg(HandleDispositivo handle, std::uint32_t messaggio) override;
    std::string midiOutGetErrorTextA(int codice) override;
    int midiOutGetNumDevs() override;
    int midiOutGetDevCapsA(std::int32_t id, std::string& nome) override;
    void sndPlaySoundA(const std::string& percorso, unsigned flags) override;
    /// Of outputs that nobody has called yet: they are as good as awake.
    void Sveglia() override;
    bool Udibile() override;

private:
    PiattaformaMidi& Vere();

    std::shared_future<std::unique_ptr<PiattaformaMidi>> promesse_;
    PiattaformaMidi* vere_ = nullptr;
};

}  // namespace corvana
