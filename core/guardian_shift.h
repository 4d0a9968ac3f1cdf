// When a guardian sets to work: some time after the first change that it hasn't worked on, however
// many follow. Plain state, instants in seconds.
#pragma once

#include <algorithm>
#include <limits>

namespace corvana {

class TurnoCustode {
public:
    /// What failed is tried again after so many times the delay.
    static constexpr double pazienzaDiRiprova = 10;

    explicit TurnoCustode(double ritardo) : ritardo_(ritardo) {}

    void Cambia(double adesso) { scadenza_ = std::min(scadenza_, adesso + ritardo_); }
    void Affretta() { scadenza_ = -mai; }
    void Fallito(double adesso) {
        scadenza_ = std::min(scadenza_, adesso + pazienzaDiRiprova * ritardo_);
    }
    /// It has set to work.
    void Prendi() { scadenza_ = mai; }

    /// Something waits to be done.
    bool Atteso() const { return scadenza_ < mai; }
    bool Scaduto(double adesso) const { return scadenza_ <= adesso; }
    double Scadenza() const { return scadenza_; }

private:
    static constexpr double mai = std::numeric_limits<double>::infinity();
    double ritardo_;
    double scadenza_ = mai;
};

}  // namespace corvana
