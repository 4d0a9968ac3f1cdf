// A clock that jumps from instant to instant of a script: an hour of drill passes in milliseconds,
// and every run is the same. Each instance has its own time. Logic thread.
#pragma once

#include <functional>
#include <map>

#include "forms/clock.h"

namespace corvana {

/// Thrown by a wait for an event when the script holds nothing more: unwinds the logic's stack.
struct FineCopione {};

class OrologioVirtuale final : public Orologio {
public:
    using Passo = std::function<void()>;

    /// `passo` runs when time reaches `istante`; of equal instants the older one runs first. A step
    /// may add further steps.
    void Quando(double istante, Passo passo);
    /// By how many seconds each wait for an instant ends late from now on, as on a busy machine.
    void PonRitardo(std::function<double()> ritardo) { ritardo_ = std::move(ritardo); }
    void PonOraDelGiorno(int secondi) { mezzanotte_ = secondi - adesso_; }

    double Adesso() const override { return adesso_; }
    double Calcolato() const override { return 0; }
    int OraDelGiorno() const override;
    void AspettaFino(double fino) override;
    void AspettaFine(CodaEventi& coda, double fino) override;
    void AspettaEvento(CodaEventi& coda, double fino) override;

private:
    /// When a wait for the instant ends on this machine.
    double Risveglio(double fino) const;
    /// Runs the next step when it is due by `fino`.
    bool EseguiPasso(double fino);

    double adesso_ = 0;
    double mezzanotte_ = 12 * 3600;
    std::function<double()> ritardo_;
    std::multimap<double, Passo> passi_;
};

}  // namespace corvana
