#include "sound/outputs/real_outputs.h"

#include <algorithm>
#include <utility>

#include "sound/outputs/audio_stream.h"
#include "sound/outputs/device_names.h"
#include "sound/outputs/error_texts.h"
#include "sound/outputs/font_loading.h"
#include "sound/outputs/midi_ports.h"
#include "sound/outputs/port_sender.h"

namespace corvana {

namespace {
constexpr double attesaApertura = 1;
}

UsciteReali::UsciteReali(std::function<double()> istante, const ImpostazioniUscite& impostazioni)
    : istante_(std::move(istante)),
      motore_(std::make_shared<MotoreSonoro>()),
      font_(std::make_unique<CaricamentoFont>(motore_, impostazioni)),
      flusso_(std::make_unique<FlussoAudio>(motore_, impostazioni)),
      porte_(std::make_unique<PorteMidi>()) {}

UsciteReali::~UsciteReali() {
    // All begin to end before any is waited for.
    for (auto& [handle, porta] : aperti_)
        if (porta) porta->Chiudi();
}

int UsciteReali::midiOutOpen(HandleDispositivo& handle, std::int32_t id) {
    std::shared_ptr<MittentePorta> porta;
    const int esito = id == dispositivoPredefinito ? ApriSintetizzatore() : ApriPorta(porta, id);
    if (esito != midiSenzaErrore) return esito;
    handle = ++ultimo_;
    aperti_[handle] = std::move(porta);
    return midiSenzaErrore;
}

int UsciteReali::ApriSintetizzatore() {
    return font_->Pronto() ? midiSenzaErrore : midiMemoria;
}

int UsciteReali::ApriPorta(std::shared_ptr<MittentePorta>& porta, std::int32_t id) {
    const PortaNota* nota = porte_->Trova(id);
    if (!nota) return midiDispositivoErrato;
    auto mittente = std::make_shared<MittentePorta>(porte_->ComeAprirla(*nota));
    const bool aperta = mittente->Aperta(attesaApertura);
    if (!aperta) {
        Congeda(std::move(mittente));
        return midiSenzaDriver;
    }
    porta = std::move(mittente);
    return midiSenzaErrore;
}

int UsciteReali::midiOutClose(HandleDispositivo handle) {
    if (const int esito = midiOutReset(handle); esito != midiSenzaErrore) return esito;
    Congeda(std::move(aperti_[handle]));
    aperti_.erase(handle);
    return midiSenzaErrore;
}

void UsciteReali::Congeda(std::shared_ptr<MittentePorta> porta) {
    std::erase_if(congedati_, [](const auto& congedato) { return congedato->Finita(); });
    if (!porta) return;
    porta->Chiudi();
    congedati_.push_back(std::move(porta));
}

int UsciteReali::midiOutReset(HandleDispositivo handle) {
    const auto aperto = aperti_.find(handle);
    if (aperto == aperti_.end()) return midiHandleErrato;
    if (aperto->second)
        aperto->second->Azzera();
    else
        Accoda({istante_(), 0, true});
    return midiSenzaErrore;
}

int UsciteReali::midiOutShortMsg(HandleDispositivo handle, std::uint32_t messaggio) {
    const auto aperto = aperti_.find(handle);
    if (aperto == aperti_.end()) return midiHandleErrato;
    if (aperto->second) return aperto->second->Invia(messaggio) ? midiSenzaErrore : midiSenzaDriver;
    Accoda({istante_(), messaggio});
    return midiSenzaErrore;
}

void UsciteReali::Accoda(const MessaggioDatato& messaggio) {
    motore_->mescolatore.Accoda(messaggio);
    flusso_->Sveglia();
}

std::string UsciteReali::midiOutGetErrorTextA(int codice) {
    return TestoErroreMidi(codice);
}

int UsciteReali::midiOutGetNumDevs() {
    return porte_->Cerca();
}

int UsciteReali::midiOutGetDevCapsA(std::int32_t id, std::string& nome) {
    if (id == dispositivoPredefinito) {
        nome = nomeSintetizzatore;
        return midiSenzaErrore;
    }
    const PortaNota* nota = porte_->Trova(id);
    if (!nota) return midiDispositivoErrato;
    nome = NomeBreve(nota->nome);
    return midiSenzaErrore;
}

void UsciteReali::sndPlaySoundA(const std::string& percorso, unsigned) {
    if (const Onda* onda = motore_->onde.Trova(percorso)) motore_->mescolatore.AvviaSegnale(onda);
    flusso_->Sveglia();
}

bool UsciteReali::Udibile() {
    return flusso_->Udibile();
}

void UsciteReali::Sveglia() {
    flusso_->Sveglia();
}

}  // namespace corvana
