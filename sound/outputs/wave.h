// A wave in memory, and the reader of wave files. Any thread.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace corvana {

struct Onda {
    std::vector<float> campioni;  ///< one channel, 48000 each second, -1 to 1
};

/// The wave of a file, brought to one channel at 48000 frames each second. Nothing when there is no
/// such file, or it isn't a wave, or it is longer than a cue may be (8 MB).
std::optional<Onda> CaricaOnda(const std::string& percorso);

}  // namespace corvana
