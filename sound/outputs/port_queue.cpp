#include "sound/outputs/port_queue.h"

namespace corvana {

void CodaPorta::Metti(const MessaggioPorta& messaggio) {
    const std::lock_guard guardia(blocco_);
    if (messaggi_.size() >= messaggiPerPorta) {
        messaggi_.clear();
        messaggi_.push_back({0, true});
    }
    messaggi_.push_back(messaggio);
    arrivo_.notify_one();
}

void CodaPorta::Chiudi() {
    const std::lock_guard guardia(blocco_);
    chiusa_ = true;
    arrivo_.notify_one();
}

std::optional<MessaggioPorta> CodaPorta::Prendi() {
    std::unique_lock guardia(blocco_);
    arrivo_.wait(guardia, [this] { return chiusa_ || !messaggi_.empty(); });
    if (messaggi_.empty()) return std::nullopt;
    const MessaggioPorta messaggio = messaggi_.front();
    messaggi_.pop_front();
    return messaggio;
}

std::size_t CodaPorta::InAttesa() const {
    const std::lock_guard guardia(blocco_);
    return messaggi_.size();
}

}  // namespace corvana
