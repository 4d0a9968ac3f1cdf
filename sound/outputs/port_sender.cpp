#include "sound/outputs/port_sender.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <utility>

#include "sound/outputs/short_message.h"

namespace corvana {

namespace {

constexpr double pazienzaConLaPorta = 0.5;

bool Spedisci(PortaUscita& porta, std::uint32_t parola) {
    const auto corto = Decodifica(parola);
    if (!corto) return true;
    const auto byte = corto->Byte();
    return porta.Invia(std::span(byte).first(static_cast<std::size_t>(corto->lunghezza)));
}

bool SpedisciAzzeramento(PortaUscita& porta) {
    for (int canale = 0; canale < canaliMidi; ++canale)
        for (const int controllo : {controlloZittisci, controlloAzzera})
            if (!Spedisci(porta, PaccoControllo(canale, controllo))) return false;
    return true;
}

}  // namespace

struct MittentePorta::Stato {
    enum class Fase { Apertura, Aperta, Persa };

    CodaPorta coda;
    std::mutex blocco;
    std::condition_variable arrivo;
    Fase fase = Fase::Apertura;
    bool detto = false;  ///< the loss has been told

    void Passa(Fase nuova) {
        const std::lock_guard guardia(blocco);
        fase = nuova;
        arrivo.notify_all();
    }
};

MittentePorta::MittentePorta(AperturaPorta apertura)
    : stato_(std::make_shared<Stato>()),
      filo_([stato = stato_, apertura = std::move(apertura)] { ApriESpedisci(*stato, apertura); },
            pazienzaConLaPorta) {}

MittentePorta::~MittentePorta() {
    Chiudi();
}

void MittentePorta::ApriESpedisci(Stato& stato, const AperturaPorta& apertura) {
    std::unique_ptr<PortaUscita> porta = apertura();
    stato.Passa(porta ? Stato::Fase::Aperta : Stato::Fase::Persa);
    while (const auto messaggio = stato.coda.Prendi()) {
        if (!porta) continue;
        const bool viva =
            messaggio->azzera ? SpedisciAzzeramento(*porta) : Spedisci(*porta, messaggio->parola);
        if (viva) continue;
        porta.reset();
        stato.Passa(Stato::Fase::Persa);
    }
    if (porta) SpedisciAzzeramento(*porta);
}

bool MittentePorta::Aperta(double secondi) {
    std::unique_lock guardia(stato_->blocco);
    stato_->arrivo.wait_for(guardia, std::chrono::duration<double>(secondi),
                            [this] { return stato_->fase != Stato::Fase::Apertura; });
    return stato_->fase == Stato::Fase::Aperta;
}

bool MittentePorta::Invia(std::uint32_t parola) {
    {
        const std::lock_guard guardia(stato_->blocco);
        if (stato_->fase == Stato::Fase::Persa) return std::exchange(stato_->detto, true);
    }
    stato_->coda.Metti({parola});
    return true;
}

void MittentePorta::Azzera() {
    stato_->coda.Metti({0, true});
}

void MittentePorta::Chiudi() {
    stato_->coda.Chiudi();
}

}  // namespace corvana
