#include "sound/outputs/rtmidi_ports.h"

#include <RtMidi.h>
#include <alsa/asoundlib.h>

#include <optional>
#include <utility>

#include "sound/outputs/device_names.h"
#include "sound/outputs/port_check.h"
#include "sound/outputs/quiet_libraries.h"

namespace corvana {

namespace {

void Ignora(RtMidiError::Type, const std::string&, void*) {}

/// Asked before the library is, which would print that it isn't there.
bool AlsaPresente() {
    snd_seq_t* sequencer = nullptr;
    if (snd_seq_open(&sequencer, "default", SND_SEQ_OPEN_OUTPUT, SND_SEQ_NONBLOCK) < 0)
        return false;
    snd_seq_close(sequencer);
    return true;
}

/// Null when the machine doesn't offer the interface.
std::unique_ptr<RtMidiOut> Uscita(RtMidi::Api interfaccia) {
    TaciLibrerie();
    if (interfaccia == RtMidi::RTMIDI_DUMMY) return nullptr;
    if (interfaccia == RtMidi::LINUX_ALSA && !AlsaPresente()) return nullptr;
    try {
        auto uscita = std::make_unique<RtMidiOut>(interfaccia, nomeSintetizzatore);
        uscita->setErrorCallback(Ignora);
        return uscita;
    } catch (const RtMidiError&) {
        return nullptr;
    }
}

std::vector<std::string> Nomi(RtMidi::Api interfaccia) {
    const auto uscita = Uscita(interfaccia);
    const unsigned quante = uscita ? uscita->getPortCount() : 0;
    std::vector<std::string> nomi;
    for (unsigned i = 0; i < quante; ++i)
        nomi.push_back(uscita->getPortName(i));
    return nomi;
}

std::optional<unsigned> Cerca(RtMidiOut& uscita, const std::string& nome) {
    const unsigned porte = uscita.getPortCount();
    for (unsigned i = 0; i < porte; ++i)
        if (uscita.getPortName(i) == nome) return i;
    return std::nullopt;
}

class PortaRtMidi final : public PortaUscita {
public:
    PortaRtMidi(std::unique_ptr<RtMidiOut> uscita, std::string nome)
        : uscita_(std::move(uscita)), nome_(std::move(nome)) {}

    bool Invia(std::span<const std::uint8_t> byte) override {
        if (controllo_.Tempo() && !Cerca(*uscita_, nome_)) return false;
        uscita_->sendMessage(byte.data(), byte.size());
        return true;
    }

private:
    std::unique_ptr<RtMidiOut> uscita_;
    std::string nome_;
    ControlloPorta controllo_;
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

std::vector<PortaNota> ElencaPorte(AccessoJack& jack) {
    std::vector<RtMidi::Api> interfacce;
    RtMidi::getCompiledApi(interfacce);
    std::vector<PortaNota> porte;
    for (const RtMidi::Api interfaccia : interfacce)
        for (std::string& nome :
             interfaccia == RtMidi::UNIX_JACK ? jack.Elenca() : Nomi(interfaccia))
            porte.push_back({interfaccia, std::move(nome)});
    return porte;
}

AperturaPorta ComeAprire(const PortaNota& porta, const std::shared_ptr<AccessoJack>& jack) {
    if (porta.interfaccia == RtMidi::UNIX_JACK)
        return [nome = porta.nome, jack] { return jack->Apri(nome); };
    return [porta] { return Apri(porta); };
}

}  // namespace corvana
