// Plays one cue wave at a time. A new one cuts the old, which fades within a few milliseconds so
// that the cut isn't heard as a click. Render thread; pure.
#pragma once

#include <cstddef>

#include "sound/outputs/wave.h"

namespace corvana {

constexpr int frameDiTaglio = 128;  ///< how long a wave that is cut fades

class VoceSegnale {
public:
    /// The wave must live as long as it plays.
    void Avvia(const Onda* onda);
    bool Suona() const { return attuale_.onda || tagliata_.onda; }
    /// Adds the next frames to both channels of `stereo`.
    void Aggiungi(float* stereo, int frame);

private:
    struct Lettura {
        const Onda* onda = nullptr;
        std::size_t posizione = 0;
        float Prossimo();
    };

    Lettura attuale_;
    Lettura tagliata_;
    int restoDelTaglio_ = 0;
};

}  // namespace corvana
