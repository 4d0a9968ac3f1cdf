// One play of the melody, from its start to its end: rounds of ticks, each tick one `Sleep`,
// between which the window's events are let through. Made for one play. Logic thread.
#pragma once

#include "composer/composer.h"

namespace corvana {

class Esecuzione {
public:
    /// All arguments must outlive the play; the last three are read while it plays.
    Esecuzione(frmComposer& finestra, const Ambiente& ambiente, const std::int16_t& primaNota,
               const std::int16_t& ultimaNota, const bool& soloNota);

    /// Returns when the play has ended; when an exception ends it, everything is put back all the
    /// same.
    void Suona();

private:
    void Comincia();
    void BloccaComandi(bool bloccati);
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
    void ContaPulso();
    void MandaNote();
    void SpegniPulso();
    void SpegniResti();
    void Pausa();
    void Termina();
    void SpegniFuoriTastiera();

    static std::int16_t Canale(std::size_t voce) { return static_cast<std::int16_t>(voce + 1); }
    long Note(std::size_t voce) const;

    frmComposer& f_;
    Ambiente a_;
    StatoRiproduzione& stato_;
    const std::int16_t& primaNota_;
    const std::int16_t& ultimaNota_;
    const bool& soloNota_;

    int msPerTick_ = 0;
    Tick limiteTick_ = 0;
    Tick tickPulso_ = 0;
    Tick tick_ = 0;
    std::array<PuntoVoce, numeroVoci> inizi_;  ///< where each voice begins in every round
    StatoPulso inizioPulso_;
};

}  // namespace corvana
