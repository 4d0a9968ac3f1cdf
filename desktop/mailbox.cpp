#include "desktop/mailbox.h"

namespace corvana {

void Cassetta::Metti(Comando comando) {
    {
        const std::lock_guard guardia(blocco_);
        comandi_.push_back(std::move(comando));
        if (std::exchange(suonata_, true)) return;
    }
    sveglia_.Suona();
}

std::vector<Comando> Cassetta::Prendi() {
    // Emptied first: what rings from here on is for the next taking.
    sveglia_.Svuota();
    const std::lock_guard guardia(blocco_);
    suonata_ = false;
    return std::exchange(comandi_, {});
}

}  // namespace corvana
