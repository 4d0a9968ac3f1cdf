#include "sound/outputs/midi_ports.h"

#include <RtMidi.h>
#include <alsa/asoundlib.h>
#include <jack/jack.h>

#include <chrono>
#include <mutex>
#include <optional>
#include <utility>

#include "sound/outputs/quiet_libraries.h"

namespace corvana {

namespace {

using Cronometro = std::chrono::steady_clock;

constexpr double attesaRicerca = 0.5;
constexpr double pazienza = 0.3;
/// How often, at most, a port that is sent to is looked after.
constexpr std::chrono::milliseconds fraIControlli{200};
/// And after how many messages at the latest, lest the library's own buffer fill up: it would wait
/// for room for ever.
constexpr int messaggiFraIControlli = 256;

constexpr const char* nomeCliente = "Corvana";

void Ignora(RtMidiError::Type, const std::string&, void*) {}

bool AlsaPresente() {
    snd_seq_t* sequencer = nullptr;
    if (snd_seq_open(&sequencer, "default", SND_SEQ_OPEN_OUTPUT, SND_SEQ_NONBLOCK) < 0)
        return false;
    snd_seq_close(sequencer);
    return true;
}

bool JackPresente() {
    jack_client_t* cliente = jack_client_open(nomeCliente, JackNoStartServer, nullptr);
    if (!cliente) return false;
    jack_client_close(cliente);
    return true;
}

/// Asked before the library is, which would print that it isn't there.
bool Presente(RtMidi::Api interfaccia) {
    switch (interfaccia) {
        case RtMidi::LINUX_ALSA: return AlsaPresente();
        case RtMidi::UNIX_JACK: return JackPresente();
        case RtMidi::RTMIDI_DUMMY: return false;
        default: return true;
    }
}

std::unique_ptr<RtMidiOut> Uscita(RtMidi::Api interfaccia) {
    TaciLibrerie();
    if (!Presente(interfaccia)) return nullptr;
    try {
        auto uscita = std::make_unique<RtMidiOut>(interfaccia, nomeCliente);
        uscita->setErrorCallback(Ignora);
        return uscita;
    } catch (const RtMidiError&) {
        return nullptr;
    }
}

std::optional<unsigned> Cerca(RtMidiOut& uscita, const std::string& nome) {
    const unsigned porte = uscita.getPortCount();
    for (unsigned i = 0; i < porte; ++i)
        if (uscita.getPortName(i) == nome) return i;
    return std::nullopt;
}

std::vector<PortaNota> Elenca() {
    std::vector<RtMidi::Api> interfacce;
    RtMidi::getCompiledApi(interfacce);
    std::vector<PortaNota> porte;
    for (const RtMidi::Api interfaccia : interfacce) {
        const auto uscita = Uscita(interfaccia);
        const unsigned quante = uscita ? uscita->getPortCount() : 0;
        for (unsigned i = 0; i < quante; ++i)
            porte.push_back({interfaccia, uscita->getPortName(i)});
    }
    return porte;
}

class PortaRtMidi final : public PortaUscita {
public:
    PortaRtMidi(std::unique_ptr<RtMidiOut> uscita, std::string nome)
        : uscita_(std::move(uscita)), nome_(std::move(nome)) {}

    bool Invia(std::span<const std::uint8_t> byte) override {
        if (!Viva()) return false;
        uscita_->sendMessage(byte.data(), byte.size());
        return true;
    }

private:
    bool Viva() {
        const auto adesso = Cronometro::now();
        if (++nonControllati_ < messaggiFraIControlli && adesso < prossimo_) return true;
        nonControllati_ = 0;
        prossimo_ = adesso + fraIControlli;
        return Cerca(*uscita_, nome_).has_value();
    }

    std::unique_ptr<RtMidiOut> uscita_;
    std::string nome_;
    Cronometro::time_point prossimo_{};
    int nonControllati_ = 0;
};

std::unique_ptr<PortaUscita> Apri(const PortaNota& porta) {
    auto uscita = Uscita(static_cast<RtMidi::Api>(porta.interfaccia));
    if (!uscita) return nullptr;
    const auto indice = Cerca(*uscita, porta.nome);
    if (!indice) return nullptr;
    uscita->openPort(*indice, "out");
    if (!uscita->isPortOpen()) return nullptr;
    return std::make_unique<PortaRtMidi>(std::move(uscita), porta.nome);
}

}  // namespace

struct PorteMidi::Esito {
    std::mutex blocco;
    std::vector<PortaNota> porte;
};

PorteMidi::PorteMidi() = default;
PorteMidi::~PorteMidi() = default;

int PorteMidi::Cerca() {
    if (!ricerca_ || ricerca_->AspettaFine(0)) {
        esito_ = std::make_shared<Esito>();
        ricerca_ = std::make_unique<FiloAbbandonabile>(
            [esito = esito_] {
                auto porte = Elenca();
                const std::lock_guard guardia(esito->blocco);
                esito->porte = std::move(porte);
            },
            pazienza);
    }
    if (ricerca_->AspettaFine(attesaRicerca)) {
        const std::lock_guard guardia(esito_->blocco);
        note_ = esito_->porte;
    }
    return static_cast<int>(note_.size());
}

const PortaNota* PorteMidi::Trova(int id) {
    if (!ricerca_) Cerca();
    if (id < 0 || static_cast<std::size_t>(id) >= note_.size()) return nullptr;
    return &note_[static_cast<std::size_t>(id)];
}

AperturaPorta ComeAprire(const PortaNota& porta) {
    return [porta] { return Apri(porta); };
}

}  // namespace corvana
