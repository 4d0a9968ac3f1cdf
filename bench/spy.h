// Passes everything on to the machine's outputs and tells of each message before. Logic thread.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "realtime/punctuality.h"
#include "sound/outputs/real_outputs.h"

namespace corvana::misura {

class Spia final : public PiattaformaMidi {
public:
    using Racconta = std::function<void(std::uint32_t messaggio, double istante)>;

    /// `istante` tells the instant at which the logic stands, and so that of a message.
    Spia(std::function<double()> istante, Racconta racconta)
        : istante_(istante),
          racconta_(std::move(racconta)),
          uscite_(std::move(istante), {.puntuale = PreferisciPuntualita}) {}
    int midiOutOpen(HandleDispositivo& h, std::int32_t id) override {
        return uscite_.midiOutOpen(h, id);
    }
    int midiOutClose(HandleDispositivo h) override { return uscite_.midiOutClose(h); }
    int midiOutReset(HandleDispositivo h) override { return uscite_.midiOutReset(h); }
    int midiOutShortMsg(HandleDispositivo h, std::uint32_t messaggio) override {
        racconta_(messaggio, istante_());
        return uscite_.midiOutShortMsg(h, messaggio);
    }
    std::string midiOutGetErrorTextA(int codice) override {
        return uscite_.midiOutGetErrorTextA(codice);
    }
    int midiOutGetNumDevs() override { return 0; }
    int midiOutGetDevCapsA(std::int32_t id, std::string& nome) override {
        return uscite_.midiOutGetDevCapsA(id, nome);
    }
    void sndPlaySoundA(const std::string&, unsigned) override {}
    void Sveglia() override { uscite_.Sveglia(); }
    bool Udibile() override { return uscite_.Udibile(); }

private:
    std::function<double()> istante_;
    Racconta racconta_;
    UsciteReali uscite_;
};

}  // namespace corvana::misura
