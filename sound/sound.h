// All that sounds goes through here: the one open MIDI output, notes, programs, cues, and the waits
// of timed sound. Channels of notes count from 1 to 16, channel indices of programs from 0 to 15.
// Logic thread.
#pragma once

#include <cstdint>
#include <string>

#include "forms/boxes.h"
#include "forms/pump.h"
#include "sound/platform_midi.h"

namespace corvana {

/// What the next-question step of `SuonaNota` needs of the ear trainer.
class DomandaIntonazione {
public:
    DomandaIntonazione() = default;
    DomandaIntonazione(const DomandaIntonazione&) = delete;
    DomandaIntonazione& operator=(const DomandaIntonazione&) = delete;
    virtual ~DomandaIntonazione() = default;

    /// Chooses `IntoNota` (the last one again when a repeat was asked for) and returns it.
    virtual std::int16_t ScegliIntoNota() = 0;
    /// The learner wants to see the name of what sounds.
    virtual bool NomeInVista() const = 0;
    virtual void MostraNome(std::int16_t intoNota) = 0;
    /// Lights or clears the key of the MIDI number `nota`.
    virtual void sw(std::int16_t nota, bool acceso) = 0;
    virtual bool ConRiferimento() const = 0;
};

class Suono {
public:
    Suono(PiattaformaMidi& piattaforma, Pompa& pompa, Riquadri& riquadri)
        : piattaforma_(piattaforma), pompa_(pompa), riquadri_(riquadri) {}

    HandleDispositivo HandleMidi = 0;  ///< 0 when no device is open
    std::int16_t UltimaNota = 0;       ///< index or low code last started by `SuonaNota`
    bool IntoAttesa = false;  ///< `SuonaNota` has asked for a note since the program started
    std::int32_t UltimoMessaggio = 0;  ///< the last short message packed
    std::int16_t EsitoMidi = 0;        ///< result of the last short message

    /// Closes any open device and opens `dispositivo`; -1 is the default output. On failure shows
    /// the error box and returns false.
    bool ApriMidi(std::int32_t dispositivo);
    void ChiudiMidi();
    void NotaOn(std::int16_t canale, std::int16_t nota, std::int16_t velocita);
    void NotaOff(std::int16_t canale, std::int16_t nota);
    /// Packs and sends one message. Nothing is clipped: data above 255 carries into the next byte.
    /// A failure shows the error box; the caller isn't told.
    void MessaggioMidi(std::int16_t stato, std::int16_t dato1, std::int16_t dato2);
    /// Reports nothing, even on failure.
    void CambiaStrumento(std::int32_t programma, std::int32_t canaleIndice);
    /// Silences everything that sounds on the open device.
    void Reset() { piattaforma_.midiOutReset(HandleMidi); }
    void ErroreMidi(const std::string& operazione, std::int16_t codice);

    /// Lets `secondi` pass without delivering events. Not above 0, or 10 or more: no wait at all.
    void Attendi(double secondi);
    /// Keeps one note sounding on channel 1: -1 stops it, from 0 up replaces it, -2 and below asks
    /// the next question of the intonation drill.
    void SuonaNota(std::int16_t valore);
    /// Five notes, 1.75 seconds; delivers no events.
    void SuonaSigla(std::int16_t canale);
    /// Starts a wave file; one that still plays is cut.
    void SuonaOnda(const std::string& percorso, unsigned flags) {
        piattaforma_.sndPlaySoundA(percorso, flags);
    }

    bool Udibile() const { return piattaforma_.Udibile(); }
    PiattaformaMidi& Piattaforma() const { return piattaforma_; }
    /// The ear trainer, while its window is loaded; else null.
    void PonDomanda(DomandaIntonazione* domanda) { domanda_ = domanda; }

private:
    /// `comunque`: also when no note was ever started.
    void FermaUltima(bool comunque);
    void ProssimaDomanda();

    PiattaformaMidi& piattaforma_;
    Pompa& pompa_;
    Riquadri& riquadri_;
    DomandaIntonazione* domanda_ = nullptr;
};

}  // namespace corvana
