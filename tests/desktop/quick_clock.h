// The machine's clock, in a hurry: for a program in real windows whose time must pass, but needn't
// take long. Logic thread.
#pragma once

#include "forms/real_clock.h"

namespace corvana::prova {

class OrologioSvelto final : public Orologio {
public:
    explicit OrologioSvelto(double volte) : volte_(volte), inizio_(vero_.Adesso()) {}

    double Adesso() const override { return (vero_.Adesso() - inizio_) * volte_; }
    double Calcolato() const override { return vero_.Calcolato(); }
    int OraDelGiorno() const override { return vero_.OraDelGiorno(); }
    void AspettaFino(double fino) override { vero_.AspettaFino(Vero(fino)); }
    void AspettaFine(CodaEventi& coda, double fino) override {
        vero_.AspettaFine(coda, Vero(fino));
    }
    void AspettaEvento(CodaEventi& coda, double fino) override {
        vero_.AspettaEvento(coda, Vero(fino));
    }

private:
    double Vero(double istante) const { return inizio_ + istante / volte_; }

    OrologioReale vero_;
    double volte_;
    double inizio_;
};

}  // namespace corvana::prova
