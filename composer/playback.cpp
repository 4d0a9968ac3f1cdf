// The rounds of a play.
#include "composer/playback.h"

#include "composer/ranges.h"
#include "melody/numbers.h"
#include "melody/tokens.h"

namespace corvana {

namespace {

constexpr int pausaTraGiri = 500;  // milliseconds

}  // namespace

Esecuzione::Esecuzione(frmComposer& finestra, const Ambiente& ambiente,
                       const std::int16_t& primaNota, const std::int16_t& ultimaNota,
                       const bool& soloNota)
    : f_(finestra),
      a_(ambiente),
      stato_(finestra.riproduzione),
      primaNota_(primaNota),
      ultimaNota_(ultimaNota),
      soloNota_(soloNota) {}

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
    if (!f_.chekLoop.Value() || !f_.inEsecuzione) return false;
    if (stato_.parziale) f_.SpegniNoteVoci();
    SpegniFuoriTastiera();
    SpegniPulso();
    Pausa();
    return true;
}

void Esecuzione::PreparaGiro() {
    if (stato_.parziale) inizi_[soprano] = {primaNota_, 0};
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        StatoVoce& v = stato_.voci[voce];
        v.posizione = inizi_[voce].posizione;
        v.tickCorrente = inizi_[voce].trascorsi;
        v.notaAvviata = v.deveSuonare = v.staSuonando = false;
        v.tuplet = {};
    }
    if (!stato_.parziale) inizioPulso_.pulsoCorrente = f_.pulsoIniziale;
    const std::int16_t notaPulso = stato_.pulso.notaPulso;
    stato_.pulso = inizioPulso_;
    stato_.pulso.notaPulso = notaPulso;
    tick_ = 0;
    if (f_.melodia.modoPasso) PreparaPasso();
}

/// Of all voices only the active one plays, and of it only the notes asked for.
void Esecuzione::PreparaPasso() {
    for (StatoVoce& voce : stato_.voci)
        voce.ultima = -1;
    StatoVoce& attiva = stato_.voci[f_.melodia.IndiceAttiva()];
    attiva.posizione = primaNota_;
    attiva.ultima = ultimaNota_;
}

/// The ticks of one round. False when the one note that was asked for is over.
bool Esecuzione::Percorri() {
    while (tick_ < limiteTick_ && f_.inEsecuzione) {
        f_.Cursore.Left = static_cast<int>(ArrotondaAlPari(
            static_cast<double>(tick_) / static_cast<double>(limiteTick_) * corsaCursore +
            sinistraRigaCur));
        if (!PassoVoci()) return false;
        if (!soloNota_ && f_.metroAttivo && stato_.pulso.pulsoCorrente <= f_.ultimoPulso)
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
        if (PassoVoce(v) && soloNota_) return false;
    }
    return true;
}

void Esecuzione::CaricaNota(std::size_t voce) {
    const VoceMelodia& testi = f_.melodia.voci[voce];
    StatoVoce& v = stato_.voci[voce];
    // A note that runs on into the next loses its name here, and the end goes over the keys alone.
    if (v.staSuonando && !SullaTastiera(v.notaCorrente))
        a_.suono.NotaOff(Canale(voce), v.notaCorrente);
    v.notaCorrente = NumeroNota(Elemento(testi.noteVoce, v.posizione));
    v.tickNota = TickToken(testi.durateVoce, v.posizione, v.tuplet);
    Articola(v, Elemento(testi.attributiVoce, v.posizione), f_.perVoce[voce].volume.Value());
    v.notaAvviata = true;
    if (voce != f_.melodia.IndiceAttiva()) return;
    f_.lblNe.Caption = std::to_string(v.posizione + 1);
    f_.lblPnn.Caption = f_.NomeDi(v.notaCorrente);
}

void Esecuzione::PassoMetronomo() {
    StatoPulso& pulso = stato_.pulso;
    // A pulse that sounds keeps its key: the pattern may have been changed since it was struck.
    if (!pulso.pulsoSuona && pulso.pulsoCorrente < f_.pattern.size())
        PrendiPulso(pulso, f_.pattern[pulso.pulsoCorrente]);
    switch (PassoPulso(pulso, f_.ultimoPulso, tickPulso_)) {
        case Messaggio::Spegni: a_.suono.NotaOff(canalePulsi, pulso.notaPulso); break;
        case Messaggio::Accendi:
            a_.suono.NotaOn(canalePulsi, pulso.notaPulso,
                            static_cast<std::int16_t>(forzaPulsi - f_.VolumeMetro.Value()));
            ContaPulso();
            break;
        case Messaggio::Nessuno: break;
    }
}

void Esecuzione::ContaPulso() {
    if (!f_.lblDebug.Visible()) return;
    f_.lblDebug.Caption = std::to_string(++stato_.pulsiContati);
}

void Esecuzione::MandaNote() {
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        StatoVoce& v = stato_.voci[voce];
        const int tasto = v.notaCorrente - scartoIndiceNota;
        switch (EventoVoce(v)) {
            case Messaggio::Spegni:
                a_.suono.NotaOff(Canale(voce), v.notaCorrente);
                f_.MostraTasto(tasto, false);
                break;
            case Messaggio::Accendi:
                f_.MostraTasto(tasto, true);
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
    while (f_.inEsecuzione && a_.pompa.Adesso() < fine)
        a_.pompa.AttendiEvento(fine);
}

}  // namespace corvana
