// What the ear trainer keeps between runs, as the one text that is stored. Stateless; any thread.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace corvana {

/// What is restored. Of the two switches it holds the opposite: whoever restores them presses both
/// once more, which flips them and paints their controls.
struct StatoMemorizzato {
    std::int16_t IntoBasso = 24, IntoAlto = 36;  ///< places of keys
    std::int16_t NotaRif = 69;                   ///< MIDI number
    bool senzaRiferimento = false;               ///< true: `ConRiferimento` is to become 0
    bool tuttiITasti = false;                    ///< true: `SoloBianchi` is to become false
    std::int32_t StrumentoInto = 0;
    bool operator==(const StatoMemorizzato&) const = default;
};

/// Six fields parted by ";". Limits that are no range become 24 and 36. The reference becomes 69
/// when it doesn't lie between the limits as they were given, an instrument outside of 0 to 127
/// becomes 0.
std::string ComponiStatoInto(const StatoMemorizzato& stato);

/// The fields of a stored text, or nothing when it has at most one. Throws `Guasto` when there are
/// fewer than six, when one isn't of its kind or lies out of its bounds, and when the limits are no
/// range.
std::optional<StatoMemorizzato> LeggiStatoInto(const std::string& testo);

}  // namespace corvana
