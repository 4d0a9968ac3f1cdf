#include "sound/outputs/wave_store.h"

#include <utility>

namespace corvana {

namespace {
constexpr std::size_t ondeAlPiu = 32;
}

const Onda* MagazzinoOnde::Trova(const std::string& percorso) {
    const std::lock_guard guardia(blocco_);
    const auto nota = onde_.find(percorso);
    if (nota != onde_.end()) return &nota->second;
    if (onde_.size() >= ondeAlPiu) return nullptr;
    auto onda = CaricaOnda(percorso);
    if (!onda) return nullptr;
    return &onde_.emplace(percorso, std::move(*onda)).first->second;
}

}  // namespace corvana
