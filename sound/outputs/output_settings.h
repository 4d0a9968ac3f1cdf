// What the outputs need to know of the machine. Plain data, for any thread.
#pragma once

#include <string>

namespace corvana {

struct ImpostazioniUscite {
    /// The sound font of the embedded synthesiser.
    std::string font = "/usr/share/sounds/sf2/TimGM6mb.sf2";
    /// Folder whose waves `rok.wav` and `rko.wav` are read ahead; empty for none.
    std::string cartellaSegnali = {};
};

}  // namespace corvana
