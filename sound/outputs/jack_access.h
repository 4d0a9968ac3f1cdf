// The MIDI ports of a JACK server. This is done without the MIDI library, whose JACK part waits for
// ever when the server dies, and opens clients when it likes: of a dead server's clients those that
// are left are deleted under their users' hands as soon as the process opens another. So there is
// one client here, shared, and after a server's death it is closed by all before a new one is
// opened. Any thread; a call may take long when the server doesn't answer.
#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "sound/outputs/message_ring.h"
#include "sound/outputs/port.h"
#include "sound/outputs/turn.h"

// The library's own names.
struct _jack_client;  // NOLINT(bugprone-reserved-identifier)
struct _jack_port;    // NOLINT(bugprone-reserved-identifier)

namespace corvana {

class AccessoJack : public std::enable_shared_from_this<AccessoJack> {
public:
    /// The ports that take MIDI; those known before when the server doesn't answer in time. None
    /// without a server: none is started. One caller at a time.
    std::vector<std::string> Elenca();
    /// Null when that fails. One port can be open at a time; another that is being closed is waited
    /// for a little.
    std::unique_ptr<PortaUscita> Apri(const std::string& nome);

private:
    class Porta;
    struct Messaggio {
        std::array<std::uint8_t, 3> byte;
        std::size_t lunghezza;
    };

    bool Entra();
    bool ApriCliente();
    /// The last one out closes the client, of a dead server too.
    void Esci();
    bool Collega(const std::string& nome);
    void Scollega();
    static int Elabora(std::uint32_t frame, void* accesso);
    void Riversa(void* buffer);

    Turno uso_;  ///< of the client and of who is in
    int presenti_ = 0;
    _jack_client* cliente_ = nullptr;
    std::atomic<bool> morto_{false};
    std::vector<std::string> noti_;

    Turno posto_;        ///< of the one open port
    std::mutex uscita_;  ///< keeps the port while the server's thread writes to it
    _jack_port* porta_ = nullptr;
    bool ascoltata_ = false;  ///< the port's connection has counted in a cycle; under `uscita_`
    Anello<Messaggio, 1024> anello_;
    std::atomic<unsigned> cicli_{0};  ///< of the server's that have begun
};

}  // namespace corvana
