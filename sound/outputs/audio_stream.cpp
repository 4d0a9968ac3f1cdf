#include "sound/outputs/audio_stream.h"

#define SDL_MAIN_HANDLED
#include <SDL2/SDL.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string_view>
#include <utility>

#include "sound/outputs/quiet_libraries.h"
#include "sound/outputs/stream_clock.h"

namespace corvana {

namespace {

/// Of 256, a sound server under load drops one now and then.
constexpr int frameDiBuffer = 512;
constexpr std::chrono::seconds fraITentativi{1};
constexpr std::chrono::milliseconds attesaDelPrimo{1500};
constexpr double pazienza = 1;

double AdessoMonotono() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

void PreparaLibrerie() {
    SDL_SetMainReady();
    // Interrupting the program stays the system's affair.
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    SDL_SetHint(SDL_HINT_APP_NAME, "Corvana");
    SDL_SetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, "Corvana");
    SDL_SetHint(SDL_HINT_AUDIO_DEVICE_STREAM_NAME, "Corvana");
    TaciLibrerie();
}

/// Drivers that take the sound and play it to nobody.
bool DriverMuto() {
    const char* driver = SDL_GetCurrentAudioDriver();
    if (!driver) return true;
    return std::string_view(driver) == "dummy" || std::string_view(driver) == "disk";
}

}  // namespace

struct FlussoAudio::Stato {
    Stato(std::shared_ptr<MotoreSonoro> m, ImpostazioniUscite i)
        : motore(std::move(m)), impostazioni(std::move(i)) {}

    /// Nothing has sounded and nobody has woken the stream for long enough.
    bool Stanco(double adesso) const {
        return adesso - std::max(ultimoSuono.load(), ultimaSveglia.load()) > impostazioni.quiete;
    }

    void Stanca() {
        const std::lock_guard guardia(blocco);
        stanco = true;
        arrivo.notify_all();
    }
    void Chiama() {
        const std::lock_guard guardia(blocco);
        chiamato = true;
        arrivo.notify_all();
    }

    std::shared_ptr<MotoreSonoro> motore;
    const ImpostazioniUscite impostazioni;
    std::atomic<double> ultimoSuono{0};  ///< of the device's thread
    std::atomic<double> ultimaSveglia{0};
    std::atomic<bool> riposa{false};  ///< the device is let go; whoever wakes has to say so
    /// Of the device's thread while a device is open.
    struct Ascolto {
        OrologioFlusso orologio;
        bool iniziato = false;
    };
    std::mutex turno;
    Ascolto ascolto;

    std::mutex blocco;
    std::condition_variable arrivo;
    bool fine = false;
    bool perso = false;
    bool stanco = false;
    bool chiamato = false;  ///< somebody wakes the stream that rests
    bool tentato = false;
    bool udibile = false;
    SDL_AudioDeviceID dispositivo = 0;
};

/// Lives on the supervising thread.
class FlussoAudio::Custode {
public:
    explicit Custode(std::shared_ptr<Stato> stato) : stato_(std::move(stato)) {}

    void Sorveglia() {
        PreparaLibrerie();
        do {
            Comincia();
            while (Apri() && AspettaSilenzio() && Riposa()) {}
            Chiudi();
        } while (!FinitoEntroIlProssimo());
        SDL_TLSCleanup();
    }

private:
    static void Rendi(void* dato, Uint8* buffer, int byte);
    static int Osserva(void* dato, SDL_Event* evento);

    void Comincia();
    bool Apri();
    void Chiudi();
    /// True when a long silence has ended the wait, false when the device is lost or all ends.
    bool AspettaSilenzio();
    /// Lets the device go until somebody wakes the stream; false when all ends.
    bool Riposa();
    /// The device, which nobody shall know of any more; 0 for none.
    SDL_AudioDeviceID Congeda();
    bool FinitoEntroIlProssimo();
    void Annuncia(SDL_AudioDeviceID dispositivo);

    std::shared_ptr<Stato> stato_;
};

void FlussoAudio::Custode::Rendi(void* dato, Uint8* buffer, int byte) {
    auto& stato = *static_cast<Stato*>(dato);
    const std::lock_guard guardia(stato.turno);
    if (!std::exchange(stato.ascolto.iniziato, true) && stato.impostazioni.puntuale)
        stato.impostazioni.puntuale();
    OrologioFlusso& orologio = stato.ascolto.orologio;
    const int frame = byte / static_cast<int>(2 * sizeof(float));
    const double adesso = AdessoMonotono();
    const double istante = orologio.Prossimo(adesso, frame);
    const bool suona =
        stato.motore->mescolatore.Rendi(reinterpret_cast<float*>(buffer), frame,
                                        istante - orologio.Ritardo(), orologio.PerSecondo());
    if (suona)
        stato.ultimoSuono = adesso;
    else if (stato.Stanco(adesso))
        stato.Stanca();
}

int FlussoAudio::Custode::Osserva(void* dato, SDL_Event* evento) {
    if (evento->type != SDL_AUDIODEVICEREMOVED || evento->adevice.iscapture) return 1;
    auto& stato = *static_cast<Stato*>(dato);
    const std::lock_guard guardia(stato.blocco);
    if (evento->adevice.which == stato.dispositivo) stato.perso = true;
    stato.arrivo.notify_all();
    return 1;
}

void FlussoAudio::Custode::Comincia() {
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) == 0) SDL_AddEventWatch(Osserva, stato_.get());
}

bool FlussoAudio::Custode::Apri() {
    SDL_AudioSpec voluto{};
    voluto.freq = frequenza;
    voluto.format = AUDIO_F32SYS;
    voluto.channels = 2;
    voluto.samples = frameDiBuffer;
    voluto.callback = Rendi;
    voluto.userdata = stato_.get();
    const bool pronto = SDL_WasInit(SDL_INIT_AUDIO) != 0;
    const auto dispositivo = pronto ? SDL_OpenAudioDevice(nullptr, 0, &voluto, nullptr, 0) : 0;
    Annuncia(dispositivo);
    if (dispositivo == 0) return false;
    {
        const std::lock_guard guardia(stato_->turno);
        stato_->ascolto = {};
    }
    stato_->ultimoSuono = AdessoMonotono();
    stato_->motore->mescolatore.PonAttivo(true);
    SDL_PauseAudioDevice(dispositivo, 0);
    return true;
}

void FlussoAudio::Custode::Annuncia(SDL_AudioDeviceID dispositivo) {
    const bool udibile = dispositivo != 0 && !DriverMuto();
    const std::lock_guard guardia(stato_->blocco);
    stato_->dispositivo = dispositivo;
    stato_->perso = false;
    stato_->tentato = true;
    stato_->udibile = udibile;
    stato_->arrivo.notify_all();
}

bool FlussoAudio::Custode::AspettaSilenzio() {
    // Lost before it was announced, it sends no event that would be heard.
    if (SDL_GetAudioDeviceStatus(stato_->dispositivo) == SDL_AUDIO_STOPPED) return false;
    std::unique_lock guardia(stato_->blocco);
    do {
        stato_->stanco = stato_->chiamato = stato_->riposa = false;
        stato_->arrivo.wait(guardia,
                            [&] { return stato_->fine || stato_->perso || stato_->stanco; });
        stato_->riposa = true;
        // Who has just woken the stream may not have seen yet that he has to say so.
    } while (stato_->stanco && !stato_->Stanco(AdessoMonotono()));
    return !stato_->fine && !stato_->perso;
}

bool FlussoAudio::Custode::Riposa() {
    SDL_CloseAudioDevice(Congeda());
    std::unique_lock guardia(stato_->blocco);
    stato_->arrivo.wait(guardia, [&] { return stato_->fine || stato_->chiamato; });
    return !stato_->fine;
}

SDL_AudioDeviceID FlussoAudio::Custode::Congeda() {
    const std::lock_guard guardia(stato_->blocco);
    return std::exchange(stato_->dispositivo, 0);
}

void FlussoAudio::Custode::Chiudi() {
    const SDL_AudioDeviceID dispositivo = Congeda();
    Annuncia(0);
    stato_->motore->mescolatore.PonAttivo(false);
    if (!SDL_WasInit(SDL_INIT_AUDIO)) return;
    if (dispositivo != 0) SDL_CloseAudioDevice(dispositivo);
    SDL_DelEventWatch(Osserva, stato_.get());
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
}

bool FlussoAudio::Custode::FinitoEntroIlProssimo() {
    std::unique_lock guardia(stato_->blocco);
    return stato_->arrivo.wait_for(guardia, fraITentativi, [this] { return stato_->fine; });
}

FlussoAudio::FlussoAudio(std::shared_ptr<MotoreSonoro> motore,
                         const ImpostazioniUscite& impostazioni)
    : stato_(std::make_shared<Stato>(std::move(motore), impostazioni)),
      filo_([stato = stato_] { Custode(stato).Sorveglia(); }, pazienza) {}

FlussoAudio::~FlussoAudio() {
    const std::lock_guard guardia(stato_->blocco);
    stato_->fine = true;
    stato_->arrivo.notify_all();
}

void FlussoAudio::Sveglia() {
    // Both in one order for all threads: either this sees that the stream rests, or the stream sees
    // that it was woken.
    stato_->ultimaSveglia = AdessoMonotono();
    if (stato_->riposa) stato_->Chiama();
}

bool FlussoAudio::Udibile() {
    std::unique_lock guardia(stato_->blocco);
    if (!std::exchange(atteso_, true))
        stato_->arrivo.wait_for(guardia, attesaDelPrimo, [this] { return stato_->tentato; });
    return stato_->udibile;
}

}  // namespace corvana
