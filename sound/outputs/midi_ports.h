// The machine's MIDI ports, as they are counted for the user. A search runs on a thread of its own,
// since a server that doesn't answer would hold it for ever. Logic thread.
#pragma once

#include <memory>
#include <vector>

#include "sound/outputs/abandonable_thread.h"
#include "sound/outputs/rtmidi_ports.h"

namespace corvana {

class PorteMidi {
public:
    PorteMidi();
    ~PorteMidi();

    /// Looks which ports there are, for half a second at most; a search that takes longer leaves
    /// the ports that were known before. Returns their number.
    int Cerca();
    /// Port `id` of the last search; null when there is none. Searches when nothing was yet.
    const PortaNota* Trova(int id);
    AperturaPorta ComeAprirla(const PortaNota& porta) const { return ComeAprire(porta, jack_); }

private:
    struct Esito;

    std::shared_ptr<AccessoJack> jack_;
    std::vector<PortaNota> note_;
    std::shared_ptr<Esito> esito_;
    std::unique_ptr<FiloAbbandonabile> ricerca_;
};

}  // namespace corvana
