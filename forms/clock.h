// Where time comes from. The logic reads and waits for time through this alone, so that it runs as
// well on a clock that jumps. Logic thread.
#pragma once

#include "forms/event_queue.h"

namespace corvana {

class Orologio {
public:
    Orologio() = default;
    Orologio(const Orologio&) = delete;
    Orologio& operator=(const Orologio&) = delete;
    virtual ~Orologio() = default;

    /// Monotonic, in seconds from an instant of the clock's own.
    virtual double Adesso() const = 0;
    /// Processor time, in seconds, that the calling thread has used so far: it stands still while
    /// the system has the thread wait, whatever for.
    virtual double Calcolato() const = 0;
    /// Local time of day, in whole seconds since midnight, 0 to 86399.
    virtual int OraDelGiorno() const = 0;
    /// Returns at the instant `fino`, or at once when it has passed. Delivers nothing.
    virtual void AspettaFino(double fino) = 0;
    /// The same, and returns at once when the end of the program is asked for in `coda`, where the
    /// clock can tell.
    virtual void AspettaFine(CodaEventi& coda, double fino) {
        if (!coda.FineChiesta()) AspettaFino(fino);
    }
    /// Returns when an event waits in `coda`, the end is asked for there, or the instant `fino`
    /// (may be infinite) has come.
    virtual void AspettaEvento(CodaEventi& coda, double fino) = 0;
};

}  // namespace corvana
