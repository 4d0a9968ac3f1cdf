// The rounds of a play.
#include "composer/playback.h"

#include "core/notation.h"
#include "core/octaves.h"
#include "melody/numbers.h"
#include "melody/tokens.h"

namespace corvana {

namespace {

constexpr int pausaTraGiri = 500;  // milliseconds
constexpr std::int16_t canalePulsi = 10;

}  // namespace

Esecuzione::Esecuzione(const Ambiente& ambiente, StatoComposer& stato, PannelloPlay& comandi,
                       const VicinePlay& vicine, const DaSuonare& tratto)
    : a_(ambiente),
      s_(stato),
      melodia_(stato.melodia),
      stato_(stato.riproduzione),
      comandi_(comandi),
      vicine_(vicine),
      tratto_(tratto) {}

void Esecuzione::Suona() {
    SpegniResti();
    try {
        Comincia();
        PreparaVoci();
        ScegliTratto();
        while (Giro()) {}
    } catch (...) {
        Termina();
        throw;
    }
    Termina();
}

/// One pass over the melody. True when another is to follow.
bool Esecuzione::Giro() {
    PreparaGiro();
    if (!Percorri()) return false;
    if (!comandi_.chekLoop.Value() || !s_.inEsecuzione) return false;
    if (stato_.parziale) vicine_.spegniNoteVoci();
    SpegniFuoriTastiera();
    SpegniPulso();
    Pausa();
    return true;
}

void Esecuzione::PreparaGiro() {
    if (stato_.parziale) inizi_[soprano] = {tratto_.primaNota, 0};
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        StatoVoce& v = stato_.voci[voce];
        v.posizione = inizi_[voce].posizione;
        v.tickCorrente = inizi_[voce].trascorsi;
        v.notaAvviata = v.deveSuonare = v.staSuonando = false;
        v.tuplet = {};
    }
    if (!stato_.parziale) inizioPulso_.pulsoCorrente = vicine_.battuta.pulsoIniziale;
    const std::int16_t notaPulso = stato_.pulso.notaPulso;
    stato_.pulso = inizioPulso_;
    stato_.pulso.notaPulso = notaPulso;
    tick_ = 0;
    if (s_.passo.modoPasso) PreparaPasso();
}

/// Of all voices only the active one plays, and of it only the notes asked for.
void Esecuzione::PreparaPasso() {
    for (StatoVoce& voce : stato_.voci)
        voce.ultima = -1;
    StatoVoce& attiva = stato_.voci[melodia_.IndiceAttiva()];
    attiva.posizione = tratto_.primaNota;
    attiva.ultima = tratto_.ultimaNota;
}

/// The ticks of one round. False when the one note that was asked for is over.
bool Esecuzione::Percorri() {
    while (tick_ < limiteTick_ && s_.inEsecuzione) {
        aPassi_ = aPassi_ && s_.passo.modoPasso;
        comandi_.Cursore.Left = static_cast<int>(ArrotondaAlPari(
            static_cast<double>(tick_) / static_cast<double>(limiteTick_) * corsaCursore +
            sinistraRigaCur));
        if (!PassoVoci()) return false;
        if (!tratto_.soloNota && vicine_.battuta.metroAttivo &&
            stato_.pulso.pulsoCorrente <= vicine_.battuta.ultimoPulso)
            PassoMetronomo();
        MandaNote();
        a_.pompa.Sleep(msPerTick_);
        ++tick_;
        a_.pompa.PompaEventi();
    }
    return true;
}

bool Esecuzione::PassoVoci() {
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        StatoVoce& v = stato_.voci[voce];
        if (!v.InGioco()) continue;
        if (!v.notaAvviata) CaricaNota(voce);
        if (PassoVoce(v) && tratto_.soloNota) return false;
    }
    return true;
}

void Esecuzione::CaricaNota(std::size_t voce) {
    const VoceMelodia& testi = melodia_.voci[voce];
    StatoVoce& v = stato_.voci[voce];
    // A note that runs on into the next loses its name here, and the end goes over the keys alone.
    if (v.staSuonando && !SullaTastiera(v.notaCorrente))
        a_.suono.NotaOff(Canale(voce), v.notaCorrente);
    v.notaCorrente = NumeroNota(Elemento(testi.noteVoce, v.posizione));
    v.tickNota = TickToken(testi.durateVoce, v.posizione, v.tuplet);
    Articola(v, Elemento(testi.attributiVoce, v.posizione), vicine_.volume(voce));
    v.notaAvviata = true;
    if (voce != melodia_.IndiceAttiva()) return;
    s_.lblNe.Caption = std::to_string(v.posizione + 1);
    s_.lblPnn.Caption = NomeNota(v.notaCorrente, a_.globali.NomiAnglo);
}

void Esecuzione::PassoMetronomo() {
    StatoPulso& pulso = stato_.pulso;
    // A pulse that sounds keeps its key: the pattern may have been changed since it was struck.
    if (!pulso.pulsoSuona && pulso.pulsoCorrente < vicine_.battuta.pattern.size())
        PrendiPulso(pulso, vicine_.battuta.pattern[pulso.pulsoCorrente]);
    switch (PassoPulso(pulso, vicine_.battuta.ultimoPulso, tickPulso_)) {
        case Messaggio::Spegni: a_.suono.NotaOff(canalePulsi, pulso.notaPulso); break;
        case Messaggio::Accendi:
            a_.suono.NotaOn(canalePulsi, pulso.notaPulso, vicine_.forzaPulso());
            vicine_.contaPulso();
            break;
        case Messaggio::Nessuno: break;
    }
}

void Esecuzione::MandaNote() {
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        StatoVoce& v = stato_.voci[voce];
        const int tasto = v.notaCorrente - notaPiuBassa;
        switch (EventoVoce(v)) {
            case Messaggio::Spegni:
                a_.suono.NotaOff(Canale(voce), v.notaCorrente);
                vicine_.mostraTasto(tasto, false);
                break;
            case Messaggio::Accendi:
                vicine_.mostraTasto(tasto, true);
                a_.suono.NotaOn(Canale(voce), v.notaCorrente, v.velocita);
                break;
            case Messaggio::Nessuno: break;
        }
    }
}

void Esecuzione::SpegniPulso() {
    StatoPulso& pulso = stato_.pulso;
    if (pulso.pulsoSuona) a_.suono.NotaOff(canalePulsi, pulso.notaPulso);
    pulso.pulsoSuona = false;
}

/// Between two rounds; a Stop ends it at once.
void Esecuzione::Pausa() {
    a_.pompa.PompaEventi();
    const double fine = a_.pompa.Adesso() + (pausaTraGiri + granularitaSleep) / 1000.0;
    while (s_.inEsecuzione && a_.pompa.Adesso() < fine)
        a_.pompa.AttendiEvento(fine);
}

}  // namespace corvana
