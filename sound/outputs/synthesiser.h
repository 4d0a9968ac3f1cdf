// The embedded synthesiser: a sound font played by FluidSynth, rendered in blocks and heard by
// nobody until somebody asks for a block. No thread of its own and no lock: one caller at a time.
#pragma once

#include <array>
#include <memory>
#include <string>

#include "sound/outputs/short_message.h"

namespace corvana {

constexpr int frequenza = 48000;   ///< frames each second
constexpr int frameDiBlocco = 64;  ///< what the synthesiser renders at once

/// A stereo block, left and right in turn.
using Blocco = std::array<float, 2 * frameDiBlocco>;

class Sintetizzatore {
public:
    /// Null when the font can't be read. Takes about a tenth of a second.
    static std::unique_ptr<Sintetizzatore> Carica(const std::string& font);
    Sintetizzatore(const Sintetizzatore&) = delete;
    Sintetizzatore& operator=(const Sintetizzatore&) = delete;
    ~Sintetizzatore();

    /// Takes effect with the next block.
    void Invia(const MessaggioCorto& messaggio);
    /// Ends all voices at once, with the next block.
    void Zittisci();
    /// The same, and all controllers off; programs stay.
    void Azzera();
    /// Voices that sound, the fading ones too.
    int Voci() const;
    void Rendi(Blocco& blocco);

private:
    struct Motore;
    explicit Sintetizzatore(std::unique_ptr<Motore> motore);

    std::unique_ptr<Motore> motore_;
};

}  // namespace corvana
