#include "sound/outputs/audio_stream.h"

#define SDL_MAIN_HANDLED
#include <SDL2/SDL.h>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string_view>
#include <utility>

#include "forms/real_clock.h"
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
    explicit Stato(std::shared_ptr<MotoreSonoro> m) : motore(std::move(m)) {}

    std::shared_ptr<MotoreSonoro> motore;
    /// Of the device's thread while a device is open.
    struct Ascolto {
        OrologioFlusso orologio;
        bool puntuale = false;  ///< that thread has asked to be on time
    };
    std::mutex turno;
    Ascolto ascolto;

    std::mutex blocco;
    std::condition_variable arrivo;
    bool fine = false;
    bool perso = false;
    bool tentato = false;
    bool udibile = false;
    SDL_AudioDeviceID dispositivo = 0;
};

/// Lives on the supervising thread.
class FlussoAudio::Custode {
public:
    explicit Custode(std::shared_ptr<Stato> stato) : stato_(std::move(stato)) {}

    void Esegui() {
        PreparaLibrerie();
        do {
            if (Apri()) AspettaPerdita();
            Chiudi();
        } while (!FinitoEntroIlProssimo());
        SDL_TLSCleanup();
    }

private:
    static void Rendi(void* dato, Uint8* buffer, int byte);
    static int Osserva(void* dato, SDL_Event* evento);

    bool Apri();
    void Chiudi();
    void AspettaPerdita();
    bool FinitoEntroIlProssimo();
    void Annuncia(SDL_AudioDeviceID dispositivo);

    std::shared_ptr<Stato> stato_;
};

void FlussoAudio::Custode::Rendi(void* dato, Uint8* buffer, int byte) {
    auto& stato = *static_cast<Stato*>(dato);
    const std::lock_guard guardia(stato.turno);
    if (!std::exchange(stato.ascolto.puntuale, true)) PreferisciPuntualita();
    OrologioFlusso& orologio = stato.ascolto.orologio;
    const int frame = byte / static_cast<int>(2 * sizeof(float));
    const double istante = orologio.Prossimo(AdessoMonotono(), frame);
    stato.motore->mescolatore.Rendi(reinterpret_cast<float*>(buffer), frame,
                                    istante - orologio.Ritardo(), orologio.PerSecondo());
}

int FlussoAudio::Custode::Osserva(void* dato, SDL_Event* evento) {
    if (evento->type != SDL_AUDIODEVICEREMOVED || evento->adevice.iscapture) return 1;
    auto& stato = *static_cast<Stato*>(dato);
    const std::lock_guard guardia(stato.blocco);
    if (evento->adevice.which == stato.dispositivo) stato.perso = true;
    stato.arrivo.notify_all();
    return 1;
}

bool FlussoAudio::Custode::Apri() {
    SDL_AudioDeviceID dispositivo = 0;
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) == 0) {
        SDL_AddEventWatch(Osserva, stato_.get());
        SDL_AudioSpec voluto{};
        voluto.freq = frequenza;
        voluto.format = AUDIO_F32SYS;
        voluto.channels = 2;
        voluto.samples = frameDiBuffer;
        voluto.callback = Rendi;
        voluto.userdata = stato_.get();
        dispositivo = SDL_OpenAudioDevice(nullptr, 0, &voluto, nullptr, 0);
    }
    Annuncia(dispositivo);
    if (dispositivo == 0) return false;
    {
        const std::lock_guard guardia(stato_->turno);
        stato_->ascolto = {};
    }
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

void FlussoAudio::Custode::AspettaPerdita() {
    // Lost before it was announced, it sends no event that would be heard.
    if (SDL_GetAudioDeviceStatus(stato_->dispositivo) == SDL_AUDIO_STOPPED) return;
    std::unique_lock guardia(stato_->blocco);
    stato_->arrivo.wait(guardia, [this] { return stato_->fine || stato_->perso; });
}

void FlussoAudio::Custode::Chiudi() {
    SDL_AudioDeviceID dispositivo = 0;
    {
        const std::lock_guard guardia(stato_->blocco);
        dispositivo = std::exchange(stato_->dispositivo, 0);
        stato_->udibile = false;
    }
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

FlussoAudio::FlussoAudio(std::shared_ptr<MotoreSonoro> motore)
    : stato_(std::make_shared<Stato>(std::move(motore))),
      filo_([stato = stato_] { Custode(stato).Esegui(); }, pazienza) {}

FlussoAudio::~FlussoAudio() {
    const std::lock_guard guardia(stato_->blocco);
    stato_->fine = true;
    stato_->arrivo.notify_all();
}

bool FlussoAudio::Udibile() {
    std::unique_lock guardia(stato_->blocco);
    if (!std::exchange(atteso_, true))
        stato_->arrivo.wait_for(guardia, attesaDelPrimo, [this] { return stato_->tentato; });
    return stato_->udibile;
}

}  // namespace corvana
