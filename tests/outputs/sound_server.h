// A private PulseAudio that plays into nothing, and a recording of what it plays: so that a test
// hears the program as a user's loudspeaker would.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "tests/outputs/process.h"

namespace corvana::prova {

class ServerSonoro {
public:
    /// Names a place for a server; `Avvia` starts it.
    ServerSonoro() = default;

    /// True when it answers.
    bool Avvia();
    /// As if it had crashed.
    void Uccidi();
    /// After `Uccidi`: waits until a program looks for the server again, which sends it away.
    bool AspettaChiLoCerca() const;
    /// Its process neither runs nor ends, until `Riprendi`.
    void Sospendi();
    void Riprendi();

    /// As clients want it in PULSE_SERVER.
    std::string Indirizzo() const;
    /// Points the audio library of this process to it, from the next opening on. No other thread
    /// may be reading the environment.
    void UsaInQuestoProcesso() const;

private:
    std::filesystem::path Presa() const { return cartella_.Percorso() / "native"; }

    CartellaPropria cartella_;
    std::unique_ptr<Processo> processo_;
};

class Registrazione {
public:
    /// Begins to record all that the server plays, and returns when the recording runs.
    explicit Registrazione(const ServerSonoro& server);
    bool InCorso() const { return inCorso_; }
    /// Waits until `condizione` holds, which is looked at whenever a piece of sound has come, for
    /// a minute at most.
    bool Finche(const std::function<bool()>& condizione) const;
    /// Waits until that much more sound has come; false when a minute doesn't bring it.
    bool Ancora(double secondi) const;
    /// What has come so far: one channel, 48000 samples each second, -1 to 1.
    std::vector<float> Finora() const;
    /// Ends it.
    std::vector<float> Ferma();

private:
    CartellaPropria cartella_;
    std::filesystem::path file_;
    Processo processo_;
    bool inCorso_ = false;
};

}  // namespace corvana::prova
