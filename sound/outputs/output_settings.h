// What the outputs need to know of the machine. Plain data, for any thread.
#pragma once

#include <functional>
#include <string>

namespace corvana {

struct ImpostazioniUscite {
    /// The sound font of the embedded synthesiser.
    std::string font = "/usr/share/sounds/sf2/TimGM6mb.sf2";
    /// Folder whose waves `rok.wav` and `rko.wav` are read ahead; empty for none.
    std::string cartellaSegnali = {};
    /// Called on the device's thread before it renders, to have it run on time; may be empty.
    std::function<void()> puntuale = {};
    /// Seconds without a sound, a message or an event after which the device is let go.
    double quiete = 30;
};

}  // namespace corvana
