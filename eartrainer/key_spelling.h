// The names under which a key is asked for, with their enharmonic spellings, and which keys they
// mean. Pure; any thread.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace corvana {

struct TastoChiesto {
    std::string_view nome;
    std::int16_t midi;  ///< the note that sounds
};

constexpr std::int16_t grafieTasti = 21;   ///< of all keys
constexpr std::int16_t grafieBianche = 7;  ///< of the white keys alone

/// Spelling `numero`, from 1 to `grafieTasti`, or to `grafieBianche` of the white keys alone.
TastoChiesto GrafiaTasto(std::int16_t numero, bool soloBianchi, bool anglo);

/// The spelling with sharps, for a name in that notation that isn't one already; any other text is
/// its own.
std::string GrafiaSemplice(const std::string& nome, bool anglo);

}  // namespace corvana
