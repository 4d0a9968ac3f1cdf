#include "sound/outputs/midi_ports.h"

#include <utility>

namespace corvana {

namespace {
constexpr double attesaRicerca = 0.5;
constexpr double pazienzaConLElenco = 0.3;
}  // namespace

/// Of one search; read when its thread has ended.
struct PorteMidi::Esito {
    std::vector<PortaNota> porte;
};

PorteMidi::PorteMidi() : jack_(std::make_shared<AccessoJack>()) {}
PorteMidi::~PorteMidi() = default;

int PorteMidi::Cerca() {
    if (!ricerca_ || ricerca_->AspettaFine(0)) {
        esito_ = std::make_shared<Esito>();
        ricerca_ = std::make_unique<FiloAbbandonabile>(
            [esito = esito_, jack = jack_] { esito->porte = ElencaPorte(*jack); },
            pazienzaConLElenco);
    }
    if (ricerca_->AspettaFine(attesaRicerca)) note_ = esito_->porte;
    return static_cast<int>(note_.size());
}

const PortaNota* PorteMidi::Trova(int id) {
    if (!ricerca_) Cerca();
    if (id < 0 || static_cast<std::size_t>(id) >= note_.size()) return nullptr;
    return &note_[static_cast<std::size_t>(id)];
}

}  // namespace corvana
