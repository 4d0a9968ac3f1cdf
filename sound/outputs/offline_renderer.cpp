#include "sound/outputs/offline_renderer.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "sound/outputs/device_names.h"
#include "sound/outputs/error_texts.h"
#include "sound/outputs/font_loading.h"

namespace corvana {

namespace {
constexpr std::int64_t frameDiOgniPasso = 256;
constexpr HandleDispositivo handleSynth = 1;
}  // namespace

ResaOffline::ResaOffline(std::function<double()> istante, const ImpostazioniUscite& impostazioni)
    : istante_(std::move(istante)), pronto_(CaricaMotore(motore_, impostazioni)) {
    motore_.mescolatore.PonAttivo(true);
}

int ResaOffline::midiOutOpen(HandleDispositivo& handle, std::int32_t id) {
    if (id != dispositivoPredefinito) return midiDispositivoErrato;
    if (!pronto_) return midiMemoria;
    handle = aperto_ = handleSynth;
    return midiSenzaErrore;
}

int ResaOffline::midiOutClose(HandleDispositivo handle) {
    const int esito = midiOutReset(handle);
    if (esito == midiSenzaErrore) aperto_ = 0;
    return esito;
}

int ResaOffline::midiOutReset(HandleDispositivo handle) {
    return Accoda(handle, {istante_(), 0, true});
}

int ResaOffline::midiOutShortMsg(HandleDispositivo handle, std::uint32_t messaggio) {
    return Accoda(handle, {istante_(), messaggio});
}

int ResaOffline::Accoda(HandleDispositivo handle, const MessaggioDatato& messaggio) {
    if (handle == 0 || handle != aperto_) return midiHandleErrato;
    messaggi_.push_back(messaggio);
    return midiSenzaErrore;
}

std::string ResaOffline::midiOutGetErrorTextA(int codice) {
    return TestoErroreMidi(codice);
}

int ResaOffline::midiOutGetDevCapsA(std::int32_t id, std::string& nome) {
    if (id != dispositivoPredefinito) return midiDispositivoErrato;
    nome = nomeSintetizzatore;
    return midiSenzaErrore;
}

void ResaOffline::sndPlaySoundA(const std::string& percorso, unsigned) {
    if (const Onda* onda = motore_.onde.Trova(percorso)) segnali_.push_back({istante_(), onda});
}

void ResaOffline::Passa(double fine) {
    for (; !messaggi_.empty() && messaggi_.front().istante < fine; messaggi_.pop_front())
        motore_.mescolatore.Accoda(messaggi_.front());
    for (; !segnali_.empty() && segnali_.front().istante < fine; segnali_.pop_front())
        motore_.mescolatore.AvviaSegnale(segnali_.front().onda);
}

std::vector<float> ResaOffline::Rendi(double secondi) {
    const std::int64_t richiesti = std::llround(secondi * frequenza);
    std::vector<float> stereo(static_cast<std::size_t>(2 * richiesti));
    for (std::int64_t fatti = 0; fatti < richiesti;) {
        const std::int64_t ora = std::min(frameDiOgniPasso, richiesti - fatti);
        Passa(static_cast<double>(frame_ + ora) / frequenza);
        motore_.mescolatore.Rendi(stereo.data() + 2 * fatti, static_cast<int>(ora),
                                  static_cast<double>(frame_) / frequenza);
        fatti += ora;
        frame_ += ora;
    }
    return stereo;
}

}  // namespace corvana
