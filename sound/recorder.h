// An output that writes down what it is told instead of sounding it, and fails on demand.
// Logic thread.
#pragma once

#include <functional>
#include <vector>

#include "sound/platform_midi.h"

namespace corvana {

class Registratore final : public PiattaformaMidi {
public:
    struct Voce {
        double istante = 0;  ///< the logic's, in seconds
        std::uint32_t messaggio = 0;
        bool operator==(const Voce&) const = default;
    };
    struct Onda {
        double istante = 0;
        std::string percorso;
        unsigned flags = 0;
    };

    /// `istante` tells the logic's time; may be empty.
    explicit Registratore(std::function<double()> istante = {}) : istante_(std::move(istante)) {}

    int midiOutOpen(HandleDispositivo& handle, std::int32_t id) override;
    int midiOutClose(HandleDispositivo handle) override;
    int midiOutReset(HandleDispositivo handle) override;
    int midiOutShortMsg(HandleDispositivo handle, std::uint32_t messaggio) override;
    std::string midiOutGetErrorTextA(int codice) override;
    int midiOutGetNumDevs() override { return static_cast<int>(nomi.size()); }
    int midiOutGetDevCapsA(std::int32_t id, std::string& nome) override;
    void sndPlaySoundA(const std::string& percorso, unsigned flags) override;
    bool Udibile() override { return udibile; }

    /// What the next calls return; 0 lets them succeed.
    int esitoOpen = 0;
    int esitoClose = 0;
    int esitoShortMsg = 0;
    bool udibile = true;
    bool senzaPredefinito = false;  ///< the machine has no default output
    std::vector<std::string> nomi;  ///< of the ports 0 and up

    std::vector<Voce> messaggi;  ///< all that were accepted
    std::vector<Onda> onde;
    std::vector<std::int32_t> aperture;  ///< ids, in order
    std::vector<double> reset;
    int chiusure = 0;
    HandleDispositivo aperto = 0;

    /// Of the accepted messages, those with this status byte, as data 1 and data 2.
    std::vector<std::pair<int, int>> ConStato(int stato) const;
    /// Notes (channel 1 to 16, number) struck and not released yet, by the messages as a device
    /// hears them; a reset releases all.
    std::vector<std::pair<int, int>> NoteAccese() const;

private:
    double Istante() const { return istante_ ? istante_() : 0; }

    std::function<double()> istante_;
    std::size_t dopoReset_ = 0;
};

}  // namespace corvana
