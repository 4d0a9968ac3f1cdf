// What the computer's keyboard does in the melody window: the keys that are polled, in a fixed
// order, the function keys, and the piano that is made of the others. Logic thread.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string_view>

#include "composer/composer_state.h"
#include "composer/key_panel.h"

namespace corvana {

/// What the keys press of the panels around them.
struct VicineComandi {
    std::function<void(int tasto)> premiTasto, lasciaTasto;  ///< of the keyboard on the screen
    std::function<void(int figura)> premiFigura;
    std::function<void(int attributo)> premiAttributo;
    std::function<void()> nascondiAccento, insPausa, fuocoInsNota;
    std::function<void()> play, playRitardo;
    std::function<void(std::string_view stato, int tasto)> muoviCursore;
};

class ComandiDaTastiera {
public:
    /// All must live as long as this.
    ComandiDaTastiera(const Ambiente& ambiente, StatoComposer& stato, PannelloTasti& tasti,
                      VicineComandi vicine);

    bool fineTastiera = false;  ///< the poll is to end

    /// One pass of the key poll.
    void Esamina();
    /// A key is held that does something at each pass.
    bool Insiste() const;

    /// A key of the window went down, or went down again by itself; and up.
    void Premi(int codice);
    void Lascia(int codice);

    void TastiFunzione(int codice);
    void RilascioTasti();

private:
    void PremiTasto(const PassoTasto& passo);
    void AlCambio(std::size_t freccia, bool premuto);

    Ambiente a_;
    StatoComposer& stato_;
    PannelloTasti& tasti_;
    VicineComandi vicine_;
    std::array<bool, 4> giu_{};  ///< the arrow keys, in the order of the poll
};

}  // namespace corvana
