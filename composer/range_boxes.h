// The boxes of a voice's range: which numbers each of them takes, and what it shows instead of
// another. The rules are not alike. Pure; any thread.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>

namespace corvana {

/// One of the eight boxes.
struct CasellaTratto {
    std::size_t voce = 0;
    bool ultima = false;  ///< of the range's last note, else of its first
};

/// What the voice is when one of its boxes is left, all counted from 1.
struct TrattoVoce {
    long prima = 0, ultima = 0;  ///< its range, whatever its boxes show
    long note = 0;
    std::function<long()> altraCasella;  ///< the number in its other box; may throw
};

/// The numbers from `minimo` to `massimo` are taken; any other is replaced.
struct RegolaCasella {
    std::int64_t minimo = 0, massimo = 0;
    long rifiutato = 0;  ///< what the box shows then
    bool Accetta(std::int64_t numero) const { return numero >= minimo && numero <= massimo; }
    bool operator==(const RegolaCasella&) const = default;
};

/// Throws what `altraCasella` throws; the soprano's boxes don't ask for it.
RegolaCasella RegolaDi(const CasellaTratto& casella, const TrattoVoce& tratto);

}  // namespace corvana
