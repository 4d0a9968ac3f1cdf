#include "sound/outputs/error_texts.h"

#include "sound/platform_midi.h"

namespace corvana {

std::string TestoErroreMidi(int codice) {
    switch (codice) {
        case midiSenzaErrore: return "There was no error.";
        case midiDispositivoErrato: return "This MIDI device is no longer there.";
        case midiHandleErrato: return "No MIDI device is open.";
        case midiSenzaDriver: return "The MIDI device doesn't answer.";
        case midiMemoria: return "The sound font of the synthesizer couldn't be loaded.";
        default: return "Unknown MIDI error " + std::to_string(codice) + ".";
    }
}

}  // namespace corvana
