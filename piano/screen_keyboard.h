// Five octaves of piano keys on the screen: a picture, and on it a label for each key, which is
// transparent until the key is lit. Knows no sound and decides nothing: what a press means is its
// window's. Logic thread; must not outlive the form.
#pragma once

#include <cstdint>
#include <deque>

#include "forms/form.h"
#include "piano/keyboard_geometry.h"

namespace corvana {

class TastieraSchermo {
public:
    enum class Corredo : std::uint8_t {
        Tasti,
        TastiEBarre,  ///< with a mark "lbr" for each key
    };

    /// Makes the labels "lb0" to "lb59" and "Lbdoc" on a picture of that name in the form, or in
    /// one of its frames.
    TastieraSchermo(Form& form, std::string nome, Controllo* padre = nullptr,
                    Corredo corredo = Corredo::Tasti, const Rettangolo& posto = postoTastiera);

    FiguraLetta figura;
    std::deque<Etichetta> lb;   ///< the keys; their handlers are the window's
    std::deque<Etichetta> lbr;  ///< their marks; none with the keys alone
    Etichetta Lbdoc;            ///< the mark of middle C

    /// Lays the picture there, and all that is on it in proportion to its width.
    void PonPosto(const Rettangolo& posto);

    /// Lights the key of the MIDI number, 36 to 95, when `acceso` is 1, and clears it otherwise.
    void sw(std::int16_t nota, std::uint8_t acceso);
    void SpegniTasti();
    void SpegniBarre();

    /// The notes' names, which are what a screen reader says for the keys.
    void PonNomi(bool anglo);

private:
    void FaiTasto(int tasto);
    void FaiBarra(int tasto);
};

/// Lights or clears a key or a mark.
void Accendi(Etichetta& etichetta, bool acceso);

}  // namespace corvana
