// The one source of chance. It starts the same at each start of the program and is never seeded
// otherwise: all draws of the program come from this one sequence. Logic thread.
#pragma once

#include <cstdint>
#include <random>

namespace corvana {

class Casuale {
public:
    Casuale() = default;
    Casuale(const Casuale&) = delete;
    Casuale& operator=(const Casuale&) = delete;
    virtual ~Casuale() = default;

    /// A uniform number from 0, included, to 1, excluded.
    virtual double Estrai() = 0;
};

class CasualeFisso final : public Casuale {
public:
    /// 24 bits of the generator, so that the number is exact in single precision too.
    double Estrai() override { return static_cast<double>(generatore_() >> 8U) / (1U << 24U); }

private:
    std::mt19937 generatore_;  // the same sequence at each start is what is wanted
};

}  // namespace corvana
