// The computer's keyboard as a piano of two manuals, for the windows that have a keyboard on the
// screen: the lower one from the key Z on, the upper one, an octave higher, from Q on. Most keys
// are polled, those at the manuals' upper ends come as events. Logic thread.
#pragma once

#include <array>
#include <cstdint>
#include <functional>

#include "forms/keys.h"
#include "sound/sound.h"

namespace corvana {

/// The keys whose state is polled, in the order of the poll: the place of a key is its distance in
/// semitones from the note of Z.
constexpr std::array<int, 29> tastiPiano = {'Z', 'S', 'X', 'D', 'C', 'V', 'G', 'B', 'H', 'N',
                                            'J', 'M', 'Q', '2', 'W', '3', 'E', 'R', '5', 'T',
                                            '6', 'Y', '7', 'U', 'I', '9', 'O', '0', 'P'};

/// Velocity of the polled key at that distance: that of P, the last one, stands out.
constexpr std::int16_t VelocitaPiano(std::size_t distanza) {
    return distanza + 1 == tastiPiano.size() ? 100 : 90;
}

/// A key whose presses come as events, the keyboard's own repetitions too.
struct TastoAdEventi {
    int codice;
    std::int16_t distanza;  ///< in semitones from the note of Z
};

constexpr std::array<TastoAdEventi, 9> tastiAdEventi = {{{vk::virgola, 12},
                                                         {'L', 13},
                                                         {vk::punto, 14},
                                                         {192, 15},
                                                         {189, 16},
                                                         {186, 29},
                                                         {221, 30},
                                                         {187, 31},
                                                         {vk::back, 32}}};

class PianoDaTastiera {
public:
    /// Lights or clears the key of a MIDI number.
    using Mostra = std::function<void(std::int16_t nota, bool acceso)>;

    /// Strikes the notes of the keys that went down since the last pass, on channel 1, and releases
    /// those of the keys that went up, also of such as should have told it by an event. `base` is
    /// the MIDI number of Z, 36 to 60.
    void Esamina(const TastiPremuti& tasti, std::int16_t base, Suono& suono, const Mostra& mostra);

    /// One of `tastiAdEventi` went down: its note is struck, once for each press. The backspace
    /// key strikes again at each repetition, and not at all while the comma is down. Any other code
    /// does nothing.
    void Premi(int codice, std::int16_t base, Suono& suono, const Mostra& mostra);
    /// It came up: its note is released, also one that was never struck.
    void Lascia(int codice, std::int16_t base, Suono& suono, const Mostra& mostra);

private:
    std::array<bool, tastiPiano.size()> giu_{};
    std::array<bool, tastiAdEventi.size()> giuAdEventi_{};
};

}  // namespace corvana
