// A clock for the whole program in real windows, on which nothing that the program waits for takes
// time: a wait for an instant ends at once, and time stands still while the program waits for its
// user. The logic thread reads and waits; any thread may ask whether it waits.
#pragma once

#include <atomic>
#include <cmath>

#include "forms/clock.h"

namespace corvana::prova {

class OrologioImpaziente final : public Orologio {
public:
    double Adesso() const override { return adesso_; }
    double Calcolato() const override { return 0; }
    int OraDelGiorno() const override { return 12 * 3600; }
    void AspettaFino(double fino) override { Avanza(fino); }
    void AspettaEvento(CodaEventi& coda, double fino) override {
        if (std::isfinite(fino)) {
            if (coda.Vuota()) Avanza(fino);
            return;
        }
        inAttesa_ = true;
        coda.Aspetta(fino);
        inAttesa_ = false;
    }

    /// The logic waits for its user. To be asked after whether an event waits, not before.
    bool InAttesa() const { return inAttesa_; }
    /// Time passes until then; only while the logic waits for its user.
    void Avanza(double fino) {
        if (fino > adesso_) adesso_ = fino;
    }

private:
    std::atomic<double> adesso_ = 0;
    std::atomic<bool> inAttesa_ = false;
};

}  // namespace corvana::prova
