// What the panels of the main window share. Logic thread.
#pragma once

#include <cstdint>
#include <string>

#include "core/globals.h"
#include "forms/value.h"

namespace corvana {

/// Names and answers, in the order of `pdo` to `psi`.
constexpr int numeroRisposte = 7;

constexpr Colore coloreFermo = Rgb(255, 236, 200);     ///< of `Start` and the exit
constexpr Colore coloreRisposta = Rgb(198, 239, 206);  ///< of the answers, and `Start` in a run

struct StatoEsercizio {
    std::uint8_t LimiteAlto = 0;    ///< highest position of the exercise
    std::uint8_t LimiteBasso = 0;   ///< lowest position of the exercise
    std::uint8_t NotaCorrente = 0;  ///< position on the screen now
    std::string Modo = "normale";   ///< or "automatico"
    double SecondiNota = 2;         ///< seconds that a note stays in automatic mode
    bool SuonoNota = true;          ///< each new note sounds at its pitch, else a cue marks it
};

/// Plays a cue, by its file's name.
inline void SuonaOnda(const Ambiente& ambiente, const char* nome, unsigned flags) {
    ambiente.suono.SuonaOnda(ambiente.globali.PercorsoNote + nome, flags);
}

}  // namespace corvana
