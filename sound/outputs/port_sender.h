// Sends to one MIDI port on a thread of its own, so that nothing that the port does, or fails to
// do, is felt by the logic. Logic thread.
#pragma once

#include <cstdint>
#include <memory>

#include "sound/outputs/abandonable_thread.h"
#include "sound/outputs/port.h"
#include "sound/outputs/port_queue.h"

namespace corvana {

class MittentePorta {
public:
    /// Begins to open the port.
    explicit MittentePorta(AperturaPorta apertura);
    MittentePorta(const MittentePorta&) = delete;
    MittentePorta& operator=(const MittentePorta&) = delete;
    /// Waits half a second at most for the end of what `Chiudi` began.
    ~MittentePorta();

    /// True when the port is open, which is waited for `secondi` at most.
    bool Aperta(double secondi);
    /// False once after the port was lost.
    bool Invia(std::uint32_t parola);
    /// All sound off and all controllers off, on 16 channels.
    void Azzera();
    /// Sends what waits, silences the port and closes it, in the background.
    void Chiudi();
    /// After `Chiudi`: it is done.
    bool Finita() { return filo_.AspettaFine(0); }

private:
    struct Stato;
    static void ApriESpedisci(Stato& stato, const AperturaPorta& apertura);

    std::shared_ptr<Stato> stato_;
    FiloAbbandonabile filo_;
};

}  // namespace corvana
