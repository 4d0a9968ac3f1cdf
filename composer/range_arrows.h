// The arrows that move the ends of a voice's range: what each of them does, and when it may. Pure;
// any thread.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

namespace corvana {

/// Four for each voice, in the order of the voices.
constexpr int numeroFrecce = 16;

struct Freccia {
    std::size_t voce = 0;
    bool ultima = false;  ///< it moves the last note of the range, else the first
    int passo = -1;       ///< by one note down or up
    bool operator==(const Freccia&) const = default;
};

/// None outside of 0 to 15.
std::optional<Freccia> FrecciaDi(int Index);

/// What a voice's boxes show, both ends counted from 1, and how many notes it has.
struct EstremiTratto {
    long prima = 0, ultima = 0, note = 0;
};

/// A range stays within its voice, and two notes or more remain in it.
bool PuoMuovere(const Freccia& freccia, const EstremiTratto& tratto);

}  // namespace corvana
