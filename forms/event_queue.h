// The one queue in which what the user did waits for the logic. Any thread adds; the logic thread
// takes and waits.
#pragma once

#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>

#include "forms/event.h"

namespace corvana {

class CodaEventi {
public:
    /// A move of a slider or of the pointer takes the place of the one that still waits.
    void Aggiungi(Evento evento);
    std::optional<Evento> Prendi();
    bool Vuota() const;
    /// Sleeps until an event waits or the monotonic instant `fino` (seconds, may be infinite)
    /// comes. True when an event waits.
    bool Aspetta(double fino);

private:
    mutable std::mutex blocco_;
    std::condition_variable arrivo_;
    std::deque<Evento> eventi_;
};

}  // namespace corvana
