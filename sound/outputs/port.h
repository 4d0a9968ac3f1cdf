// A MIDI port that is open. Used by one thread, its sender's; any call may take long or never
// return.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>

namespace corvana {

class PortaUscita {
public:
    PortaUscita() = default;
    PortaUscita(const PortaUscita&) = delete;
    PortaUscita& operator=(const PortaUscita&) = delete;
    virtual ~PortaUscita() = default;

    /// Sends one message of two or three bytes; false when the port is lost.
    virtual bool Invia(std::span<const std::uint8_t> byte) = 0;
};

/// Opens a port; null when that fails. Runs on the sender's thread.
using AperturaPorta = std::function<std::unique_ptr<PortaUscita>()>;

}  // namespace corvana
