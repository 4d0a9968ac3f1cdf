// Commands on their way from the logic thread, which puts, to the GUI thread, which takes. The bell
// rings once for all that is put before the next taking.
#pragma once

#include <mutex>
#include <vector>

#include "desktop/command.h"
#include "desktop/wake.h"

namespace corvana {

class Cassetta {
public:
    void Metti(Comando comando);
    /// All that was put since the last call, oldest first.
    std::vector<Comando> Prendi();
    int Presa() const { return sveglia_.Presa(); }

private:
    std::mutex blocco_;
    std::vector<Comando> comandi_;
    bool suonata_ = false;
    Sveglia sveglia_;
};

}  // namespace corvana
