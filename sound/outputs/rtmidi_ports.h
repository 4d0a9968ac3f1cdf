// The machine's MIDI ports, one interface after the other. Any thread; every call may take long or
// never return.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "sound/outputs/jack_access.h"
#include "sound/outputs/port.h"

namespace corvana {

struct PortaNota {
    int interfaccia = 0;  ///< by the MIDI library's numbers
    std::string nome;
};

/// One caller at a time.
std::vector<PortaNota> ElencaPorte(AccessoJack& jack);
/// How to open a port that was listed.
AperturaPorta ComeAprire(const PortaNota& porta, const std::shared_ptr<AccessoJack>& jack);

}  // namespace corvana
