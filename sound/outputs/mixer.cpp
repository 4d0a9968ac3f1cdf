#include "sound/outputs/mixer.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "sound/outputs/limiter.h"

namespace corvana {

namespace {

/// Below it, 100 dB under full scale, a block is as good as silent.
constexpr float sogliaQuiete = 1e-5F;
/// A message that seems to be due later than this was stamped by a clock that has jumped.
constexpr double attesaMassima = 1;

/// Messages that only matter while they sound.
bool DelMomento(int tipo) {
    return tipo == tipoNotaOn || tipo == tipoNotaOff || tipo == tipoPressioneNota ||
           tipo == tipoPressioneCanale;
}

bool Quiete(const Blocco& blocco) {
    return std::all_of(blocco.begin(), blocco.end(),
                       [](float campione) { return std::fabs(campione) < sogliaQuiete; });
}

}  // namespace

int Mescolatore::Riferimento::Frame(double quando) const {
    const double attesa = quando - istante;
    if (!(attesa > 0) || attesa > attesaMassima) return 0;
    return static_cast<int>(std::lround(attesa * perSecondo));
}

void Mescolatore::PonSintetizzatore(std::unique_ptr<Sintetizzatore> sintetizzatore) {
    const std::lock_guard guardia(blocco_);
    synth_ = std::move(sintetizzatore);
}

void Mescolatore::Accoda(const MessaggioDatato& messaggio) {
    if (attivo_.load(std::memory_order_acquire) && coda_.Metti(messaggio)) return;
    const std::lock_guard guardia(blocco_);
    SvuotaMuto();
    EseguiMuto(messaggio);
}

void Mescolatore::PonAttivo(bool attivo) {
    if (attivo && attivo_.load(std::memory_order_acquire)) return;
    const std::lock_guard guardia(blocco_);
    SvuotaMuto();
    richiesto_.store(nullptr, std::memory_order_relaxed);
    segnale_ = {};
    sfumati_ = frameDiSfumatura;
    attivo_.store(attivo, std::memory_order_release);
}

bool Mescolatore::Rendi(float* stereo, int frame, double istante, double perSecondo) {
    const std::lock_guard guardia(blocco_);
    std::fill_n(stereo, 2 * frame, 0.0F);
    if (const Onda* onda = richiesto_.exchange(nullptr, std::memory_order_acquire))
        segnale_.Avvia(onda);
    Sintetizza(stereo, frame, {istante, perSecondo});
    segnale_.Aggiungi(stereo, frame);
    std::transform(stereo, stereo + 2 * frame, stereo, Limita);
    return !Quieto() || sfumati_ < frameDiSfumatura || segnale_.Suona() || coda_.Primo();
}

void Mescolatore::Sintetizza(float* stereo, int frame, const Riferimento& riferimento) {
    for (int posizione = 0; posizione < frame;) {
        ApplicaDovuti(posizione, riferimento);
        if (!Quieto() && resto_ == 0) RendiBlocco();
        const int tratto = Tratto(posizione, frame, riferimento);
        float* inizio = stereo + 2 * posizione;
        if (!Quieto()) SuonaBlocco(inizio, tratto);
        AggiungiSfumatura(inizio, tratto);
        posizione += tratto;
    }
}

void Mescolatore::ApplicaDovuti(int posizione, const Riferimento& riferimento) {
    if (Quieto()) resto_ = 0;
    while (const MessaggioDatato* messaggio = coda_.Primo()) {
        if (riferimento.Frame(messaggio->istante) > posizione) return;
        if (resto_ > 0 && !messaggio->azzera) return;
        Applica(*messaggio);
        coda_.Togli();
    }
}

int Mescolatore::Tratto(int posizione, int frame, const Riferimento& riferimento) const {
    const bool quieto = Quieto();
    int tratto = frame - posizione;
    if (!quieto) tratto = std::min(tratto, resto_);
    const MessaggioDatato* prossimo = coda_.Primo();
    if (prossimo && (quieto || prossimo->azzera))
        tratto = std::min(tratto, riferimento.Frame(prossimo->istante) - posizione);
    return std::max(tratto, 1);
}

bool Mescolatore::Quieto() const {
    return bloccoQuieto_ && (!synth_ || synth_->Voci() == 0);
}

void Mescolatore::Applica(const MessaggioDatato& messaggio) {
    if (!synth_) return;
    if (messaggio.azzera) {
        if (!Quieto()) Sfuma();
        synth_->Azzera();
    } else if (const auto corto = Decodifica(messaggio.parola)) {
        synth_->Invia(*corto);
    }
}

void Mescolatore::RendiBlocco() {
    synth_->Rendi(blocchetto_);
    bloccoQuieto_ = Quiete(blocchetto_);
    resto_ = frameDiBlocco;
}

void Mescolatore::SuonaBlocco(float* stereo, int frame) {
    const float* inizio = blocchetto_.data() + 2 * (frameDiBlocco - resto_);
    for (int i = 0; i < 2 * frame; ++i)
        stereo[i] += inizio[i];
    resto_ -= frame;
}

void Mescolatore::Sfuma() {
    std::array<float, 2 * frameDiSfumatura> nuova{};
    AggiungiSfumatura(nuova.data(), frameDiSfumatura);
    for (int i = 0; i < frameDiSfumatura;) {
        if (resto_ == 0) RendiBlocco();
        const int tratto = std::min(resto_, frameDiSfumatura - i);
        SuonaBlocco(nuova.data() + 2 * i, tratto);
        i += tratto;
    }
    for (std::size_t i = 0; i < nuova.size(); ++i) {
        const std::size_t passati = i / 2 + 1;
        nuova[i] *= 1 - static_cast<float>(passati) / frameDiSfumatura;
    }
    sfumatura_ = nuova;
    sfumati_ = 0;
    Taglia();
}

void Mescolatore::AggiungiSfumatura(float* stereo, int frame) {
    const int tratto = std::min(frame, frameDiSfumatura - sfumati_);
    const float* inizio = sfumatura_.data() + 2 * sfumati_;
    for (int i = 0; i < 2 * tratto; ++i)
        stereo[i] += inizio[i];
    sfumati_ += tratto;
}

void Mescolatore::Taglia() {
    if (Quieto()) return;
    synth_->Zittisci();
    // The voices end when the next block is rendered; it is nobody's to hear.
    RendiBlocco();
    resto_ = 0;
    bloccoQuieto_ = true;
}

void Mescolatore::SvuotaMuto() {
    Taglia();
    while (const MessaggioDatato* messaggio = coda_.Primo()) {
        EseguiMuto(*messaggio);
        coda_.Togli();
    }
}

void Mescolatore::EseguiMuto(const MessaggioDatato& messaggio) {
    if (!synth_) return;
    if (messaggio.azzera) return synth_->Azzera();
    const auto corto = Decodifica(messaggio.parola);
    if (corto && !DelMomento(corto->Tipo())) synth_->Invia(*corto);
}

}  // namespace corvana
