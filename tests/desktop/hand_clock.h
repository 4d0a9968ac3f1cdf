// A clock for the whole program in real windows, on which nothing that the program waits for takes
// time: a wait for an instant ends at once, and time stands still while the program waits for its
// user. It can be stopped at an instant, so that the user comes before what would follow. The logic
// thread reads and waits; any thread may ask whether it waits.
#pragma once

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cmath>
#include <condition_variable>
#include <limits>
#include <mutex>

#include "forms/clock.h"

namespace corvana::prova {

class OrologioImpaziente final : public Orologio {
public:
    double Adesso() const override { return adesso_; }
    double Calcolato() const override { return 0; }
    int OraDelGiorno() const override { return 12 * 3600; }
    void AspettaFino(double fino) override { Avanza(fino); }
    void AspettaFine(CodaEventi& coda, double fino) override {
        constexpr std::chrono::milliseconds occhiata(5);
        std::unique_lock guardia(blocco_);
        while (fino > fermata_ && !coda.FineChiesta()) {
            fermo_ = true;
            ripresa_.wait_for(guardia, occhiata);
        }
        fermo_ = false;
        Avanza(fino);
    }
    void AspettaEvento(CodaEventi& coda, double fino) override {
        if (std::isfinite(fino)) {
            Trattieni(coda, fino);
            if (coda.Vuota()) Avanza(fino);
            return;
        }
        inAttesa_ = true;
        coda.Aspetta(fino);
        inAttesa_ = false;
    }

    /// The logic waits for its user, or is held where it would take what he does. To be asked after
    /// whether an event waits, not before.
    bool InAttesa() const { return inAttesa_ || trattenuto_; }
    /// Time passes until then; only while the logic waits for its user.
    void Avanza(double fino) { adesso_ = std::max<double>(adesso_, fino); }
    /// From now on a wait that would reach beyond that instant doesn't end.
    void FermaA(double istante) {
        const std::lock_guard guardia(blocco_);
        fermata_ = istante;
        fermo_ = trattenuto_ = false;
    }
    /// The logic is in such a wait.
    bool Fermo() const { return fermo_; }
    void Riprendi() {
        FermaA(std::numeric_limits<double>::infinity());
        ripresa_.notify_one();
    }

private:
    /// As long as the user does nothing, and the stop isn't moved.
    void Trattieni(CodaEventi& coda, double fino) {
        constexpr std::chrono::milliseconds occhiata(1);
        std::unique_lock guardia(blocco_);
        while (fino > fermata_ && coda.Vuota() && !coda.FineChiesta()) {
            trattenuto_ = true;
            ripresa_.wait_for(guardia, occhiata);
        }
        trattenuto_ = false;
    }

    std::atomic<double> adesso_ = 0;
    std::atomic<bool> inAttesa_ = false;
    std::atomic<bool> fermo_ = false;
    std::atomic<bool> trattenuto_ = false;
    std::mutex blocco_;
    std::condition_variable ripresa_;
    double fermata_ = std::numeric_limits<double>::infinity();
};

}  // namespace corvana::prova
