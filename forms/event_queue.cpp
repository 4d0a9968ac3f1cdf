#include "forms/event_queue.h"

#include <algorithm>
#include <chrono>
#include <limits>

namespace corvana {

namespace {

bool Sostituisce(const Evento& nuovo, const Evento& vecchio) {
    if (nuovo.fatto != vecchio.fatto || nuovo.finestra != vecchio.finestra) return false;
    if (nuovo.fatto == Fatto::MouseMove || nuovo.fatto == Fatto::Spostata) return true;
    return nuovo.fatto == Fatto::Scroll && nuovo.controllo == vecchio.controllo;
}

std::chrono::steady_clock::time_point Istante(double secondi) {
    using std::chrono::steady_clock;
    const std::chrono::duration<double> durata(secondi);
    return steady_clock::time_point(std::chrono::duration_cast<steady_clock::duration>(durata));
}

template <class Pronto>
void Dormi(std::condition_variable& segnale, std::unique_lock<std::mutex>& guardia, double fino,
           Pronto pronto) {
    if (fino == std::numeric_limits<double>::infinity())
        segnale.wait(guardia, pronto);
    else
        segnale.wait_until(guardia, Istante(std::max(fino, 0.0)), pronto);
}

}  // namespace

void CodaEventi::Aggiungi(Evento evento) {
    {
        const std::lock_guard guardia(blocco_);
        std::erase_if(eventi_, [&](const Evento& e) { return Sostituisce(evento, e); });
        eventi_.push_back(std::move(evento));
    }
    arrivo_.notify_one();
}

std::optional<Evento> CodaEventi::Prendi() {
    const std::lock_guard guardia(blocco_);
    if (eventi_.empty()) return std::nullopt;
    Evento primo = std::move(eventi_.front());
    eventi_.pop_front();
    return primo;
}

bool CodaEventi::Vuota() const {
    const std::lock_guard guardia(blocco_);
    return eventi_.empty();
}

bool CodaEventi::Aspetta(double fino) {
    std::unique_lock guardia(blocco_);
    Dormi(arrivo_, guardia, fino, [this] { return !eventi_.empty() || fineChiesta_; });
    return !eventi_.empty();
}

void CodaEventi::ChiediFine() {
    {
        const std::scoped_lock guardia(blocco_, bloccoFine_);
        fineChiesta_ = true;
    }
    arrivo_.notify_one();
    fine_.notify_one();
}

void CodaEventi::AspettaFine(double fino) {
    std::unique_lock guardia(bloccoFine_);
    Dormi(fine_, guardia, fino, [this] { return fineChiesta_.load(); });
}

}  // namespace corvana
