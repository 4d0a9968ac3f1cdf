// The cue waves that were ever asked for, each read once. A wave stays where it is for the life of
// the store, so that a mixer may play it without asking. The store must outlive that mixer's use.
// Any thread.
#pragma once

#include <map>
#include <mutex>
#include <string>

#include "sound/outputs/wave.h"

namespace corvana {

class MagazzinoOnde {
public:
    /// Null when there is no such wave, or the store holds as many as it can.
    const Onda* Trova(const std::string& percorso);

private:
    std::mutex blocco_;
    std::map<std::string, Onda> onde_;
};

}  // namespace corvana
