#include "sound/outputs/jack_access.h"

#include <jack/jack.h>
#include <jack/midiport.h>

#include <algorithm>
#include <chrono>
#include <thread>

#include "sound/outputs/device_names.h"
#include "sound/outputs/port_check.h"
#include "sound/outputs/quiet_libraries.h"

namespace corvana {

namespace {

using std::chrono::milliseconds;

constexpr double attesaElenco = 0.3;
constexpr double attesaPosto = 0.8;
/// A server that takes nothing for so long isn't there any more.
constexpr milliseconds attesaSpazio{1000};
constexpr milliseconds attesaSvuotamento{200};

/// Waits for the server's thread to do something, in steps shorter than a buffer of its.
template <typename Condizione>
bool Attendi(Condizione condizione, milliseconds massimo) {
    const auto fine = std::chrono::steady_clock::now() + massimo;
    while (!condizione()) {
        if (std::chrono::steady_clock::now() > fine) return false;
        std::this_thread::sleep_for(milliseconds(1));
    }
    return true;
}

}  // namespace

class AccessoJack::Porta final : public PortaUscita {
public:
    Porta(std::shared_ptr<AccessoJack> accesso, Turno::Preso posto, std::string nome)
        : accesso_(std::move(accesso)), posto_(std::move(posto)), nome_(std::move(nome)) {}
    ~Porta() override {
        Attendi([this] { return accesso_->morto_ || !accesso_->anello_.Primo(); },
                attesaSvuotamento);
        // What the server has taken is the other port's only when its cycle is over.
        const unsigned ultimo = accesso_->cicli_;
        Attendi([this, ultimo] { return accesso_->morto_ || accesso_->cicli_ != ultimo; },
                attesaSvuotamento);
        const Turno::Preso turno(accesso_->uso_);
        accesso_->Scollega();
        accesso_->Esci();
    }

    bool Invia(std::span<const std::uint8_t> byte) override {
        if (accesso_->morto_) return false;
        if (controllo_.Tempo() && !jack_port_by_name(accesso_->cliente_, nome_.c_str()))
            return false;
        Messaggio messaggio{{}, byte.size()};
        std::copy(byte.begin(), byte.end(), messaggio.byte.begin());
        return Attendi([&] { return accesso_->anello_.Metti(messaggio); }, attesaSpazio);
    }

private:
    std::shared_ptr<AccessoJack> accesso_;
    Turno::Preso posto_;
    std::string nome_;
    ControlloPorta controllo_;
};

bool AccessoJack::Entra() {
    if (presenti_ == 0 && !ApriCliente()) return false;
    ++presenti_;
    if (!morto_) return true;
    Esci();
    return false;
}

bool AccessoJack::ApriCliente() {
    TaciLibrerie();
    cliente_ = jack_client_open(nomeSintetizzatore, JackNoStartServer, nullptr);
    if (!cliente_) return false;
    morto_ = false;
    jack_on_shutdown(
        cliente_, [](void* morto) { *static_cast<std::atomic<bool>*>(morto) = true; }, &morto_);
    jack_set_process_callback(cliente_, Elabora, this);
    return true;
}

void AccessoJack::Esci() {
    if (--presenti_ == 0) jack_client_close(cliente_);
}

std::vector<std::string> AccessoJack::Elenca() {
    const Turno::Preso turno(uso_, attesaElenco);
    if (!turno) return noti_;
    noti_.clear();
    if (!Entra()) return noti_;
    const char** porte = jack_get_ports(cliente_, nullptr, JACK_DEFAULT_MIDI_TYPE, JackPortIsInput);
    for (const char** porta = porte; porta && *porta; ++porta)
        noti_.emplace_back(*porta);
    jack_free(porte);
    Esci();
    return noti_;
}

std::unique_ptr<PortaUscita> AccessoJack::Apri(const std::string& nome) {
    Turno::Preso posto(posto_, attesaPosto);
    if (!posto) return nullptr;
    const Turno::Preso turno(uso_, attesaPosto);
    if (!turno || !Entra()) return nullptr;
    if (!Collega(nome)) {
        Scollega();
        Esci();
        return nullptr;
    }
    return std::make_unique<Porta>(shared_from_this(), std::move(posto), nome);
}

bool AccessoJack::Collega(const std::string& nome) {
    jack_port_t* porta =
        jack_port_register(cliente_, "out", JACK_DEFAULT_MIDI_TYPE, JackPortIsOutput, 0);
    if (!porta) return false;
    {
        const std::lock_guard guardia(uscita_);
        while (anello_.Primo())
            anello_.Togli();
        porta_ = porta;
        ascoltata_ = false;
    }
    return jack_activate(cliente_) == 0 &&
           jack_connect(cliente_, jack_port_name(porta), nome.c_str()) == 0;
}

void AccessoJack::Scollega() {
    jack_port_t* porta = nullptr;
    {
        const std::lock_guard guardia(uscita_);
        std::swap(porta, porta_);
    }
    if (!porta) return;
    jack_deactivate(cliente_);
    jack_port_unregister(cliente_, porta);
}

int AccessoJack::Elabora(std::uint32_t frame, void* accesso) {
    auto& questo = *static_cast<AccessoJack*>(accesso);
    ++questo.cicli_;
    const std::unique_lock guardia(questo.uscita_, std::try_to_lock);
    if (!guardia || !questo.porta_) return 0;
    void* buffer = jack_port_get_buffer(questo.porta_, frame);
    if (!buffer) return 0;
    jack_midi_clear_buffer(buffer);
    // A new connection counts from a cycle on: what is written before that, nobody reads.
    if (!questo.ascoltata_ && jack_port_connected(questo.porta_) == 0) return 0;
    questo.ascoltata_ = true;
    questo.Riversa(buffer);
    return 0;
}

void AccessoJack::Riversa(void* buffer) {
    while (const Messaggio* messaggio = anello_.Primo()) {
        // What the buffer has no room for goes with the next.
        if (jack_midi_event_write(buffer, 0, messaggio->byte.data(), messaggio->lunghezza) != 0)
            return;
        anello_.Togli();
    }
}

}  // namespace corvana
