// Makes the stream that is heard: the synthesiser's blocks, with every message at its place in
// time, the cues, the limiter. Knows no device. Messages and cues come from one thread, the
// logic's; the stream is rendered by another. The lock between them is held by the renderer for one
// buffer, and taken by the logic only where no renderer runs.
#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>

#include "sound/outputs/cue_voice.h"
#include "sound/outputs/message_ring.h"
#include "sound/outputs/synthesiser.h"

namespace corvana {

struct MessaggioDatato {
    double istante = 0;        ///< seconds of the clock that `Mescolatore::Rendi` is told
    std::uint32_t parola = 0;  ///< the packed message
    bool azzera = false;       ///< instead: silence all and put the controllers back
};

/// Messages that may wait for the renderer.
constexpr std::size_t messaggiInAttesa = 1024;
/// How long the rest of a sound that is silenced fades.
constexpr int frameDiSfumatura = 256;

class Mescolatore {
public:
    /// Until then messages are dropped, and the stream is silent but for cues. Any thread.
    void PonSintetizzatore(std::unique_ptr<Sintetizzatore> sintetizzatore);

    /// Puts a message in the queue. While nobody renders, or when so many wait that nobody can be
    /// rendering, what waits takes effect at once and makes no sound: programs and controllers are
    /// as they should be when the stream goes on.
    void Accoda(const MessaggioDatato& messaggio);
    /// The wave starts with the next buffer.
    void AvviaSegnale(const Onda* onda) { richiesto_.store(onda, std::memory_order_release); }

    /// A renderer begins or ends to call `Rendi`. What sounded before doesn't sound on. A renderer
    /// that takes another's place without an end between them plays what has been put meanwhile.
    void PonAttivo(bool attivo);

    /// Renders `frame` stereo frames, of which the first belongs to `istante` and each further one
    /// is `1 / perSecondo` later. A message starts on its own frame where nothing sounds, else with
    /// the synthesiser's next block; one whose instant has passed starts as soon as it can.
    /// False when nothing sounded at its end and nothing waits.
    bool Rendi(float* stereo, int frame, double istante, double perSecondo = frequenza);

private:
    /// Where in the buffer that is being rendered an instant lies.
    struct Riferimento {
        double istante;
        double perSecondo;
        int Frame(double quando) const;
    };

    void Sintetizza(float* stereo, int frame, const Riferimento& riferimento);
    /// Executes what is due at `posizione`; a message within a sounding block waits for its end.
    void ApplicaDovuti(int posizione, const Riferimento& riferimento);
    /// How many frames may be rendered from `posizione` before the next message has its say.
    int Tratto(int posizione, int frame, const Riferimento& riferimento) const;
    bool Quieto() const;
    void Applica(const MessaggioDatato& messaggio);
    void RendiBlocco();
    /// Adds frames of the rendered block, as many as it has left at most.
    void SuonaBlocco(float* stereo, int frame);
    /// Makes a short fade of what sounds and ends it.
    void Sfuma();
    void AggiungiSfumatura(float* stereo, int frame);
    /// Ends all voices at once.
    void Taglia();
    /// Executes all that waits, but lets nothing sound.
    void SvuotaMuto();
    void EseguiMuto(const MessaggioDatato& messaggio);

    std::mutex blocco_;
    std::unique_ptr<Sintetizzatore> synth_;
    Anello<MessaggioDatato, messaggiInAttesa> coda_;
    std::atomic<bool> attivo_{false};
    std::atomic<const Onda*> richiesto_{nullptr};

    Blocco blocchetto_{};
    int resto_ = 0;  ///< frames of the block that haven't been played
    bool bloccoQuieto_ = true;
    VoceSegnale segnale_;
    std::array<float, 2 * frameDiSfumatura> sfumatura_{};  ///< the rest of what was silenced
    int sfumati_ = frameDiSfumatura;                       ///< frames of it that have been played
};

}  // namespace corvana
