// The machine's MIDI ports: which there are, and how to open one. A search runs on a thread of its
// own, since a server that doesn't answer would hold it for ever. Logic thread.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "sound/outputs/abandonable_thread.h"
#include "sound/outputs/port.h"

namespace corvana {

struct PortaNota {
    int interfaccia = 0;  ///< of the MIDI library, which of its interfaces offers the port
    std::string nome;
};

class PorteMidi {
public:
    PorteMidi();
    ~PorteMidi();

    /// Looks which ports there are, for half a second at most; a search that takes longer leaves
    /// the ports that were known before. Returns their number.
    int Cerca();
    /// Port `id` of the last search; null when there is none. Searches when nothing was yet.
    const PortaNota* Trova(int id);

private:
    struct Esito;

    std::vector<PortaNota> note_;
    std::shared_ptr<Esito> esito_;
    std::unique_ptr<FiloAbbandonabile> ricerca_;
};

/// How to open a port that was found.
AperturaPorta ComeAprire(const PortaNota& porta);

}  // namespace corvana
