#include "composer/range_arrows.h"

namespace corvana {

std::optional<Freccia> FrecciaDi(int Index) {
    constexpr int perVoce = 4;
    if (Index < 0 || Index >= numeroFrecce) return std::nullopt;
    const int quale = Index % perVoce;
    return Freccia{static_cast<std::size_t>(Index / perVoce), quale >= 2, quale % 2 ? 1 : -1};
}

bool PuoMuovere(const Freccia& freccia, const EstremiTratto& tratto) {
    const bool siAllarga = freccia.ultima == (freccia.passo > 0);
    if (!siAllarga) return tratto.ultima - tratto.prima > 1;
    return freccia.ultima ? tratto.ultima < tratto.note : tratto.prima > 1;
}

}  // namespace corvana
