// The whole program, with all its windows, on the virtual clock.
#pragma once

#include "program/program.h"
#include "tests/support/rig.h"

namespace corvana::prova {

struct BancoProgramma : Banco {
    BancoProgramma() : programma(Tutto()) {}
    /// With another source of chance.
    explicit BancoProgramma(Casuale& altra) : programma(Con(altra)) {}

    Programma programma;
    CorvanaMainF& finestra = programma.principale;
    PannelloPunteggio& punteggio = finestra.esercizio.punteggio;
    PannelloMetronomo& metronomo = programma.metronomo;
    StatoMetronomo& stato = globali.metronomo;

    /// Instant at which the opening signal is over and the window takes events.
    static constexpr double pronta = 2.25;

    /// Runs the program to the script's end, at `fine`. True when it was unwound there, false when
    /// its window was closed before.
    bool Vai(double fine) {
        Fine(fine);
        return SvolgiCopione([this] { programma.DaMainAllaFine(false); });
    }
    void Slitta(double t, const std::string& barra, int valore) {
        Fa(t, Fatto::Change, barra, valore);
    }
    void Chiudi(double t) { Fa(t, Fatto::Chiudi, ""); }
    /// Instants and notes of the percussion that was struck.
    std::vector<std::pair<double, int>> Pulsi() const {
        std::vector<std::pair<double, int>> pulsi;
        for (const auto& [istante, messaggio] : uscita.messaggi)
            if ((messaggio & 0xFF) == 0x99 && messaggio >> 16)
                pulsi.emplace_back(istante, (messaggio >> 8) & 0x7F);
        return pulsi;
    }
};

}  // namespace corvana::prova
