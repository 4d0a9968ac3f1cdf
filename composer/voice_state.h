// How one voice, and the metronome beside it, step through the ticks of a play: the rules alone,
// without sound or window. Any thread.
#pragma once

#include <cstdint>
#include <string_view>

#include "melody/ticks.h"

namespace corvana {

/// The run-time record of a voice. Ticks count from the note's beginning.
struct StatoVoce {
    StatoVoce(std::int16_t& suaPosizione, std::int16_t& suaUltima)
        : posizione(suaPosizione), ultima(suaUltima) {}

    std::int16_t& posizione;        ///< index of the current note
    std::int16_t& ultima;           ///< last note that may start; -1 keeps the voice out
    std::int16_t notaCorrente = 0;  ///< MIDI number, 0 for a rest
    Tick tickNota = 0;              ///< length of the current note
    Tick tickGate = 0;              ///< tick at which its sound stops; -1 for a rest
    Tick tickCorrente = 0;          ///< ticks elapsed in it, 0 between notes
    std::int16_t velocita = 0;
    bool notaAvviata = false;  ///< the current note has been loaded
    bool deveSuonare = false;  ///< the note is to sound now
    bool staSuonando = false;  ///< a note on is out with no note off yet
    ContoTuplet tuplet;

    bool InGioco() const { return posizione <= ultima; }
};

/// What goes out for a voice or a pulse in a tick.
enum class Messaggio : std::uint8_t { Nessuno, Spegni, Accendi };

/// A volume bar at its silent end.
constexpr int volumeMuto = 98;

/// Sets `velocita` and `tickGate` of the note just loaded by its attribute. `vol` is the volume
/// bar's value, 0 (loud) to `volumeMuto`. An unknown attribute leaves both as they are.
void Articola(StatoVoce& voce, std::string_view attributo, int vol);

/// Lets a tick of the loaded note go by. True when it was the note's last: the voice then stands
/// before the next note.
bool PassoVoce(StatoVoce& voce);

/// What this tick asks for; the voice counts as sounding, or not, from here on.
Messaggio EventoVoce(StatoVoce& voce);

/// The metronome's.
struct StatoPulso {
    std::uint8_t pulsoCorrente = 0;
    Tick tickInPulso = 0;  ///< ticks elapsed in the pulse
    std::int16_t notaPulso = 0;
    bool pulsoDeveSuonare = false;
    bool pulsoSuona = false;
};

/// Takes the percussion key of a letter of the pattern: a, b, c; any other keeps the one before.
void PrendiPulso(StatoPulso& pulso, char lettera);

/// Lets a tick of a pulse of `tickPulso` ticks go by and tells what it asks for.
Messaggio PassoPulso(StatoPulso& pulso, std::uint8_t ultimoPulso, Tick tickPulso);

/// Where the pulses stand for a play that begins `tick` ticks after the pulse `pulsoIniziale` did:
/// that many ticks and one more are walked, and the one is taken off the elapsed ticks again, so
/// that at the very end of a pulse it is the next one, with -1 tick elapsed.
StatoPulso PulsoDopo(std::uint8_t pulsoIniziale, std::uint8_t ultimoPulso, Tick tickPulso,
                     Tick tick);

}  // namespace corvana
