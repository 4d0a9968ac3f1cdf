// A private JACK server without any hardware, and a port on it that writes down what arrives: so
// that a test sends through a real MIDI port.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "tests/outputs/process.h"

namespace corvana::prova {

class ServerMidi {
public:
    /// Names the server that this process's clients find; no other thread may be reading the
    /// environment.
    ServerMidi();
    ServerMidi(const ServerMidi&) = delete;
    ServerMidi& operator=(const ServerMidi&) = delete;
    /// One that was killed leaves nothing behind either.
    ~ServerMidi();
    /// True when it answers.
    bool Avvia();
    /// One exchange with the server, after which it has had time for all that it was told before.
    bool Risponde() const;
    /// As if it had crashed.
    void Uccidi();
    /// Its process neither runs nor ends, until `Riprendi`, or until it is killed.
    void Sospendi();
    void Riprendi();

private:
    std::string nome_;
    bool ucciso_ = false;
    std::unique_ptr<Processo> processo_;
};

/// A program of its own with one input port.
class PortaRicevente {
public:
    /// Returns when the port can be found.
    explicit PortaRicevente(const std::string& nome);
    PortaRicevente(const PortaRicevente&) = delete;
    PortaRicevente& operator=(const PortaRicevente&) = delete;
    ~PortaRicevente();

    /// The messages that have arrived so far.
    std::vector<std::vector<std::uint8_t>> Arrivati() const;
    /// Waits for that many; false when some seconds don't bring them.
    bool Arrivano(std::size_t quanti) const;

private:
    std::vector<std::string> Righe() const;

    CartellaPropria cartella_;
    std::filesystem::path file_;
    Processo processo_;
};

}  // namespace corvana::prova
