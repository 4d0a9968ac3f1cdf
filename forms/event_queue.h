// The one queue in which what the user did waits for the logic, and the fact that the program ends,
// which is no event: it overtakes them all and can't be taken back. Any thread adds; the logic
// thread takes and waits.
#pragma once

#include <atomic>
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
    /// Sleeps until an event waits, the end is asked for, or the monotonic instant `fino` (seconds,
    /// may be infinite) comes. True when an event waits.
    bool Aspetta(double fino);

    /// From now on the program ends.
    void ChiediFine();
    bool FineChiesta() const { return fineChiesta_; }
    /// Sleeps until the end is asked for or the instant `fino` comes, whatever events arrive.
    void AspettaFine(double fino);
    /// The logic has seen it, and does nothing but end.
    void SegnaFineVista() { fineVista_ = true; }
    bool FineVista() const { return fineVista_; }

private:
    mutable std::mutex blocco_;
    std::condition_variable arrivo_;
    std::deque<Evento> eventi_;
    // Of their own: an event that comes must not disturb who waits for the end alone.
    std::mutex bloccoFine_;
    std::condition_variable fine_;
    std::atomic<bool> fineChiesta_ = false;
    std::atomic<bool> fineVista_ = false;
};

}  // namespace corvana
