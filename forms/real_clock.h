// The machine's clock. Waits sleep; they burn no processor time.
#pragma once

#include "forms/clock.h"

namespace corvana {

class OrologioReale final : public Orologio {
public:
    double Adesso() const override;
    double Calcolato() const override;
    int OraDelGiorno() const override;
    void AspettaFino(double fino) override;
    void AspettaFine(CodaEventi& coda, double fino) override;
    void AspettaEvento(CodaEventi& coda, double fino) override;
};

}  // namespace corvana
