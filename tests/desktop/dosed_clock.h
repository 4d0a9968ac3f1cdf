// A clock for the whole program in real windows that passes only as far as its user lets it: up to
// there a wait ends at once, and what waits for longer stands still. The logic thread reads and
// waits; the user's thread gives time and asks.
#pragma once

#include <atomic>
#include <chrono>

#include "forms/clock.h"

namespace corvana::prova {

class OrologioADosi final : public Orologio {
public:
    double Adesso() const override { return adesso_; }
    double Calcolato() const override { return 0; }
    int OraDelGiorno() const override { return 12 * 3600; }
    void AspettaFino(double fino) override { Avanza(fino); }
    void AspettaFine(CodaEventi& coda, double fino) override {
        while (fino > limite_ && !coda.FineChiesta()) {
            fermo_ = true;
            coda.AspettaFine(FraPoco());
        }
        fermo_ = false;
        Avanza(fino);
    }
    void AspettaEvento(CodaEventi& coda, double fino) override {
        while (fino > limite_ && coda.Vuota() && !coda.FineChiesta()) {
            inAttesa_ = true;
            coda.Aspetta(FraPoco());
        }
        inAttesa_ = false;
        if (coda.Vuota() && fino <= limite_) Avanza(fino);
    }

    /// It passes by itself up to there, in seconds, which is enough for the program to begin.
    static constexpr double inizio = 5;
    /// Lets so many seconds pass.
    void Concedi(double secondi) { limite_ = adesso_ + secondi; }
    /// The logic has come as far as it may, and takes no event.
    bool Fermo() const { return fermo_; }
    /// It has come as far as it may, or waits for its user. To be asked after whether an event
    /// waits, not before.
    bool InAttesa() const { return inAttesa_; }

private:
    void Avanza(double fino) {
        if (fino > adesso_) adesso_ = fino;
    }
    static double FraPoco() {
        constexpr std::chrono::milliseconds poco(1);
        const auto quando = std::chrono::steady_clock::now().time_since_epoch() + poco;
        return std::chrono::duration<double>(quando).count();
    }

    std::atomic<double> adesso_ = 0;
    std::atomic<double> limite_ = inizio;
    std::atomic<bool> fermo_ = false;
    std::atomic<bool> inAttesa_ = false;
};

}  // namespace corvana::prova
