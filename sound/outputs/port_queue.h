// The messages on their way to a MIDI port. The logic puts and never waits; the port's own thread
// takes. Bounded: when the port takes no more, what waits is given up and a reset stands in its
// place, so that no note is left sounding for want of its end.
#pragma once

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <mutex>
#include <optional>

namespace corvana {

struct MessaggioPorta {
    std::uint32_t parola = 0;
    bool azzera = false;  ///< instead: silence the port
};

constexpr std::size_t messaggiPerPorta = 1024;

class CodaPorta {
public:
    void Metti(const MessaggioPorta& messaggio);
    /// What waits is still taken, then nothing more comes.
    void Chiudi();
    /// Waits for a message; nothing when the queue has been closed and is empty.
    std::optional<MessaggioPorta> Prendi();
    std::size_t InAttesa() const;

private:
    mutable std::mutex blocco_;
    std::condition_variable arrivo_;
    std::deque<MessaggioPorta> messaggi_;
    bool chiusa_ = false;
};

}  // namespace corvana
