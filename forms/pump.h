// The only ways to wait, and the only place where events are taken from their queue.
// Logic thread.
#pragma once

#include <functional>
#include <limits>

#include "forms/clock.h"

namespace corvana {

constexpr double perSempre = std::numeric_limits<double>::infinity();
/// What a `Sleep` lasts beyond its milliseconds: the granularity that playback counts on.
constexpr int granularitaSleep = 2;

class Pompa {
public:
    Pompa(Orologio& orologio, CodaEventi& coda) : orologio_(orologio), coda_(coda) {}

    /// What is done with each event that is taken; must not let a fault escape.
    void PonConsegna(std::function<void(const Evento&)> consegna) {
        consegna_ = std::move(consegna);
    }

    /// Delivers all events that wait, nested on this stack. No time passes.
    void PompaEventi();
    /// Lets time pass until an event waits or the instant `fino` comes, then as `PompaEventi`.
    void AttendiEvento(double fino);
    /// Lets exactly `secondi` pass and delivers nothing. Not above 0, it returns at once.
    void Attendi(double secondi);
    /// Lets `ms` + `granularitaSleep` milliseconds pass and delivers nothing.
    void Sleep(int ms);

    /// The instant that the logic stands at, in seconds: after a wait that the system ended a
    /// little late, the instant at which it should have ended.
    double Adesso() const;
    /// Local time of day in whole seconds since midnight.
    int OraDelGiorno() const { return orologio_.OraDelGiorno(); }

private:
    Orologio& orologio_;
    CodaEventi& coda_;
    std::function<void(const Evento&)> consegna_;
    double scadenza_ = -perSempre;
};

}  // namespace corvana
