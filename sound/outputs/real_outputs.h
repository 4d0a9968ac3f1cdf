// The machine's outputs: the embedded synthesiser as device -1, the MIDI ports as devices 0 and up,
// and the cue waves. All calls come on the logic thread; loading the font, the audio device and the
// ports have threads of their own, so that a dead server or a vanished port never holds the logic.
// The constructor starts to load the font and to open the audio device and returns at once.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "sound/outputs/output_settings.h"
#include "sound/platform_midi.h"

namespace corvana {

class CaricamentoFont;
class FlussoAudio;
class MittentePorta;
class PorteMidi;
struct MessaggioDatato;
struct MotoreSonoro;

class UsciteReali final : public PiattaformaMidi {
public:
    /// `istante` tells the instant, in seconds of the system's monotonic clock, at which the logic
    /// stands: what is sent sounds at that instant plus a fixed delay.
    explicit UsciteReali(std::function<double()> istante,
                         const ImpostazioniUscite& impostazioni = {});
    /// Ends within a few seconds, whatever the devices do.
    ~UsciteReali() override;

    /// Device -1 waits for the font, at most ten seconds; a port for its connection, at most one.
    /// `midiMemoria` when the font can't be read.
    int midiOutOpen(HandleDispositivo& handle, std::int32_t id) override;
    /// Silences the device first.
    int midiOutClose(HandleDispositivo handle) override;
    int midiOutReset(HandleDispositivo handle) override;
    /// Of a port that has vanished the first message tells so by `midiSenzaDriver`.
    int midiOutShortMsg(HandleDispositivo handle, std::uint32_t messaggio) override;
    std::string midiOutGetErrorTextA(int codice) override;
    /// Looks for ports; takes half a second at most.
    int midiOutGetNumDevs() override;
    int midiOutGetDevCapsA(std::int32_t id, std::string& nome) override;
    void sndPlaySoundA(const std::string& percorso, unsigned flags) override;
    /// The first time it waits until the audio device has opened or failed, at most 1.5 seconds.
    bool Udibile() override;
    void Sveglia() override;

private:
    int ApriSintetizzatore();
    void Accoda(const MessaggioDatato& messaggio);
    int ApriPorta(std::shared_ptr<MittentePorta>& porta, std::int32_t id);
    /// Lets the port close in its own time.
    void Congeda(std::shared_ptr<MittentePorta> porta);

    std::function<double()> istante_;
    std::shared_ptr<MotoreSonoro> motore_;
    std::unique_ptr<CaricamentoFont> font_;
    std::unique_ptr<FlussoAudio> flusso_;
    std::unique_ptr<PorteMidi> porte_;
    /// The open devices; the synthesiser has no sender.
    std::map<HandleDispositivo, std::shared_ptr<MittentePorta>> aperti_;
    std::vector<std::shared_ptr<MittentePorta>> congedati_;
    HandleDispositivo ultimo_ = 0;
};

}  // namespace corvana
