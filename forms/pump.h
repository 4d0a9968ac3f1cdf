// The only ways to wait, and the only place where events are taken from their queue.
// Logic thread.
#pragma once

#include <functional>
#include <limits>

#include "forms/clock.h"
#include "forms/granularity.h"

namespace corvana {

constexpr double perSempre = std::numeric_limits<double>::infinity();

/// Thrown by every way to wait once the end of the program was asked for: it ends whatever loop
/// waits. Nobody but `Finestre` catches it.
struct FineProgramma {};

class Pompa {
public:
    Pompa(Orologio& orologio, CodaEventi& coda) : orologio_(orologio), coda_(coda) {}

    /// What is done with each event that is taken; must not let a fault escape.
    void PonConsegna(std::function<void(const Evento&)> consegna) {
        consegna_ = std::move(consegna);
    }

    /// Called before each event that is taken; may be empty.
    void PonSveglia(std::function<void()> sveglia) { sveglia_ = std::move(sveglia); }

    /// Called before time passes, whichever loop waits, when an event was delivered since the last
    /// time; it must not wait itself. May be empty.
    void PonSguardo(std::function<void()> sguardo) { sguardo_ = std::move(sguardo); }
    /// The same for who lets time pass without a wait of the pump's.
    void Guarda();

    /// True when nothing is to be waited for any more, since the program ends: in what unwinds the
    /// stack, and while the windows are closed (`PonCongedo`). Elsewhere it then throws
    /// `FineProgramma`.
    bool InChiusura();
    /// The windows are being closed because the program ends.
    void PonCongedo(bool congedo) { congedo_ = congedo; }

    /// Delivers all events that wait, nested on this stack. No time passes.
    void PompaEventi();
    /// Lets time pass until an event waits or the instant `fino` comes, then as `PompaEventi`.
    void AttendiEvento(double fino);
    /// Lets exactly `secondi` pass and delivers nothing. Not above 0, it returns at once.
    void Attendi(double secondi);
    /// Lets `ms` + `granularitaSleep` milliseconds pass and delivers nothing.
    void Sleep(int ms);

    /// The instant that the logic stands at, in seconds: the one that its last wait asked for,
    /// plus what it has computed since when that is more than 2 ms. What the system withholds from
    /// it meanwhile isn't lost but made up, up to a quarter of a second; whoever is stopped for
    /// longer goes on from the clock's instant.
    double Adesso() const;
    /// Local time of day in whole seconds since midnight.
    int OraDelGiorno() const { return orologio_.OraDelGiorno(); }

private:
    /// A wait has ended, on the logic's timeline at `istante`.
    void Riprendi(double istante);
    /// How far a wait for an event, which was to last until `fino`, has come.
    double Raggiunto(double fino) const;

    Orologio& orologio_;
    CodaEventi& coda_;
    std::function<void(const Evento&)> consegna_;
    std::function<void()> sveglia_;
    std::function<void()> sguardo_;
    bool daGuardare_ = false;      ///< an event was delivered since
    double istante_ = -perSempre;  ///< the instant that the last wait asked for
    double risveglio_ = 0;         ///< the clock's when that wait had ended
    double calcolato_ = 0;         ///< the processor time used until then
    bool congedo_ = false;
};

}  // namespace corvana
