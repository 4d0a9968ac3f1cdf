// The ear trainer's share of the globals: what outlives its window, and what the sound layer and
// the instrument picker use of it. Plain data.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace corvana {

/// The pages, in the order of their flags, in which the flagged ones are entered: the last one
/// stays in front.
enum class PaginaInto : std::uint8_t { Intonazione, Intervalli, Accordi, Tasti, Tonalita };

constexpr std::array pagineInto = {PaginaInto::Intonazione, PaginaInto::Intervalli,
                                   PaginaInto::Accordi, PaginaInto::Tasti, PaginaInto::Tonalita};

/// Which pages the ear trainer is to open on.
using BandiereInto = std::array<bool, pagineInto.size()>;

/// A range that wasn't chosen.
constexpr std::int16_t limiteAssente = -1;

struct StatoInto {
    std::int32_t StrumentoInto = 0;  ///< General MIDI program while its window is open

    // Intonation; the limits are indices of keys, 0 to 59, included.
    std::int16_t IntoBasso = limiteAssente, IntoAlto = limiteAssente;
    std::int16_t IntoNota = 0;        ///< the key asked for
    bool RipetiNota = false;          ///< the next question keeps the last note, or the last key
    bool SoloBianchi = false;         ///< only white keys are asked for
    std::uint8_t ConRiferimento = 1;  ///< 1: the reference sounds before each question

    // Chords; the limits are those of the roots, as above.
    std::int16_t AccBasso = limiteAssente, AccAlto = limiteAssente;
    std::int16_t AccTipo = 0;               ///< the type asked for, 0 to 3
    std::array<std::int16_t, 3> AccNota{};  ///< its MIDI numbers, lowest first; 0 before the first
};

}  // namespace corvana
