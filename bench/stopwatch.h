// How long something takes, from its making on. Any thread.
#pragma once

#include <chrono>

namespace corvana::misura {

class Cronometro {
public:
    double Millisecondi() const {
        return std::chrono::duration<double, std::milli>(Ora::now() - inizio_).count();
    }

private:
    using Ora = std::chrono::steady_clock;
    Ora::time_point inizio_ = Ora::now();
};

}  // namespace corvana::misura
