// Reads the bytes of a melody file. A file has no magic and no version: its optional lines are told
// by their shape. Nothing is converted to a number here. Any thread.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/fault.h"

namespace corvana {

/// Notes, durations and attributes of a voice.
using TestiVoce = std::array<std::string, 3>;

struct BloccoMel {
    std::size_t voce = 0;  ///< 1 to 3
    std::string strumento;
    /// Notes, durations, attributes; fewer when the file ends among them.
    std::vector<std::string> testi;
};

/// What was read, in the order of the file; when something is wrong, all up to there.
struct LetturaMel {
    TestiVoce soprano;
    std::string tempo;
    /// The instrument alone or, with the metronome, instrument, pulses, their length, first pulse.
    std::vector<std::string> strumento;
    bool conMetronomo = false;    ///< the line's form says so, though fields may be missing
    bool conRiferimenti = false;  ///< a bookmark line was there
    std::vector<std::string> riferimenti;  ///< its rows
    std::vector<BloccoMel> blocchi;        ///< at most three, in the file's order
    std::optional<Guasto> guasto;          ///< what ended the reading before the end
};

/// Takes any bytes. Lines end in CR LF, LF or CR; texts come out in UTF-8, durations with
/// `separatore` for both the point and the comma.
LetturaMel LeggiMel(std::string_view byte, char separatore);

}  // namespace corvana
