#include "forms/virtual_clock.h"

#include <algorithm>
#include <cmath>

namespace corvana {

namespace {
constexpr int giorno = 24 * 3600;
}

void OrologioVirtuale::Quando(double istante, Passo passo) {
    passi_.emplace(istante, std::move(passo));
}

int OrologioVirtuale::OraDelGiorno() const {
    const auto secondi = static_cast<long long>(std::floor(mezzanotte_ + adesso_));
    return static_cast<int>((secondi % giorno + giorno) % giorno);
}

bool OrologioVirtuale::EseguiPasso(double fino) {
    if (passi_.empty() || passi_.begin()->first > fino) return false;
    auto nodo = passi_.extract(passi_.begin());
    adesso_ = std::max(adesso_, nodo.key());
    nodo.mapped()();
    return true;
}

double OrologioVirtuale::Risveglio(double fino) const {
    return fino > adesso_ && ritardo_ ? fino + ritardo_() : fino;
}

void OrologioVirtuale::AspettaFino(double fino) {
    fino = Risveglio(fino);
    while (EseguiPasso(fino)) {}
    adesso_ = std::max(adesso_, fino);
}

void OrologioVirtuale::AspettaFine(CodaEventi& coda, double fino) {
    fino = Risveglio(fino);
    while (!coda.FineChiesta() && EseguiPasso(fino)) {}
    if (!coda.FineChiesta()) adesso_ = std::max(adesso_, fino);
}

void OrologioVirtuale::AspettaEvento(CodaEventi& coda, double fino) {
    while (coda.Vuota() && !coda.FineChiesta()) {
        if (EseguiPasso(fino)) continue;
        if (passi_.empty()) throw FineCopione{};
        return AspettaFino(fino);
    }
}

}  // namespace corvana
