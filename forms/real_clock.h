// The machine's clock. Waits sleep; they burn no processor time.
#pragma once

#include "forms/clock.h"

namespace corvana {

class OrologioReale final : public Orologio {
public:
    double Adesso() const override;
    int OraDelGiorno() const override;
    void AspettaFino(double fino) override;
    void AspettaEvento(CodaEventi& coda, double fino) override;
};

/// Asks the system to end the waits of the calling thread as exactly as it can, and ahead of busy
/// programs where the user may do so. Failing is harmless.
void PreferisciPuntualita();

}  // namespace corvana
