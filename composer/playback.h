// One play of the melody, from its start to its end: rounds of ticks, each tick one `Sleep`,
// between which the window's events are let through. Made for one play. Logic thread.
#pragma once

#include "composer/play_panel.h"

namespace corvana {

/// What is to be played, read again while it plays.
struct DaSuonare {
    const std::int16_t& primaNota;
    const std::int16_t& ultimaNota;
    const bool& soloNota;  ///< the first note alone
};

class Esecuzione {
public:
    /// All arguments must outlive the play.
    Esecuzione(const Ambiente& ambiente, StatoComposer& stato, PannelloPlay& comandi,
               const VicinePlay& vicine, const DaSuonare& tratto);

    /// Returns when the play has ended; when an exception ends it, everything is put back all the
    /// same.
    void Suona();

private:
    void Comincia();
    void PreparaVoci();
    void ScegliTratto();
    bool Intera() const;
    void PreparaParziale();
    bool Giro();
    void PreparaGiro();
    void PreparaPasso();
    bool Percorri();
    bool PassoVoci();
    void CaricaNota(std::size_t voce);
    void PassoMetronomo();
    void MandaNote();
    void SpegniPulso();
    void SpegniResti();
    void Pausa();
    void Termina();
    void LasciaIComandi();
    void SpegniFuoriTastiera();

    static std::int16_t Canale(std::size_t voce) { return static_cast<std::int16_t>(voce + 1); }
    long Note(std::size_t voce) const;

    Ambiente a_;
    StatoComposer& s_;
    Melodia& melodia_;
    StatoRiproduzione& stato_;
    PannelloPlay& comandi_;
    const VicinePlay& vicine_;
    const DaSuonare tratto_;

    bool aPassi_ = false;  ///< it was in the step mode all the time
    int msPerTick_ = 0;
    Tick limiteTick_ = 0;
    Tick tickPulso_ = 0;
    Tick tick_ = 0;
    std::array<PuntoVoce, numeroVoci> inizi_;  ///< where each voice begins in every round
    StatoPulso inizioPulso_;
};

}  // namespace corvana
