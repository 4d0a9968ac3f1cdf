// The platform's MIDI and wave calls, under their own names: the one thing that differs between the
// real outputs and the recorder of the tests.
// Logic thread. No call waits for a device; whatever can stall has a thread of its own behind this.
#pragma once

#include <cstdint>
#include <string>

namespace corvana {

using HandleDispositivo = std::int32_t;  ///< 0 is none

/// Results of the calls; 0 is success.
constexpr int midiSenzaErrore = 0;
constexpr int midiDispositivoErrato = 2;  ///< no device bears that id
constexpr int midiHandleErrato = 5;       ///< the handle names no open device
constexpr int midiSenzaDriver = 6;        ///< the device is there and can't be used
constexpr int midiMemoria = 7;            ///< what the device needs couldn't be loaded
constexpr int midiTestoAssente = 1;       ///< no text for that code

constexpr std::int32_t dispositivoPredefinito = -1;

/// Flags of `sndPlaySoundA`: file name, at once; and the same with silence for a missing file.
constexpr unsigned sndAsincrono = 0x20001;
constexpr unsigned sndSenzaPredefinito = 0x20003;

class PiattaformaMidi {
public:
    PiattaformaMidi() = default;
    PiattaformaMidi(const PiattaformaMidi&) = delete;
    PiattaformaMidi& operator=(const PiattaformaMidi&) = delete;
    virtual ~PiattaformaMidi() = default;

    /// Opens device `id` (-1 is the system's default output) and sets `handle` on success.
    virtual int midiOutOpen(HandleDispositivo& handle, std::int32_t id) = 0;
    virtual int midiOutClose(HandleDispositivo handle) = 0;
    /// Silences everything on all 16 channels.
    virtual int midiOutReset(HandleDispositivo handle) = 0;
    /// Sends status, data 1 and data 2, from the lowest byte up, at once and in order.
    virtual int midiOutShortMsg(HandleDispositivo handle, std::uint32_t messaggio) = 0;
    /// The text for a result code, at most 127 bytes.
    virtual std::string midiOutGetErrorTextA(int codice) = 0;
    virtual int midiOutGetNumDevs() = 0;
    /// Sets `nome`, at most 31 bytes, on success.
    virtual int midiOutGetDevCapsA(std::int32_t id, std::string& nome) = 0;
    /// Starts a wave file and returns; the wave that plays is cut. A missing file stays silent.
    virtual void sndPlaySoundA(const std::string& percorso, unsigned flags) = 0;

    /// The user has done something: what rests in silence gets ready to sound. Cheap.
    virtual void Sveglia() {}
    /// False when what is sent reaches nobody's ear, since the machine has no sound device.
    virtual bool Udibile() { return true; }
};

}  // namespace corvana
