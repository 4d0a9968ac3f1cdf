// Entering notes behind the last one: what the new token holds and what becomes of the buttons and
// counters by it, without the controls that show them. Logic thread.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "melody/melody.h"

namespace corvana {

constexpr std::size_t numeroFigure = 7;

/// The attribute buttons by their places.
constexpr std::uint8_t attributoPunto = 0, attributoStaccato = 1, attributoLegatura = 2,
                       attributoTerzina = 3, attributoAppoggiato = 4, attributoAccento = 5,
                       senzaAttributo = 6;

/// No file keeps it.
struct StatoInserimento {
    std::int16_t notaAttiva = 60;        ///< MIDI number that the next insertion uses
    std::uint8_t figuraAttiva = 2;       ///< the lit figure button, 0 to 6
    double valoreFigura = 1;             ///< its value in quarter notes
    std::uint8_t attributoAttivo = 6;    ///< the lit attribute button, 0 to 5; 6 for none
    std::string letteraAttributo = "n";  ///< attribute token of the note being inserted
    double valoreNota = 1;               ///< value worked out for that note
    double valorePrecedente = 0;         ///< value that a tie took off the last note
    std::uint8_t contaTerzina = 0;       ///< notes counted so far in a triplet; stops at 255
    bool soloAscolto = false;            ///< a key of the keyboard on the screen was pressed
    bool senzaSuono = false;             ///< the next insertion stays silent
    bool accentoVisibile = false;        ///< the triplet's accent is offered
    bool accentoAcceso = false;          ///< and chosen
};

/// Value in quarter notes of a figure button, 0 to 6.
double ValoreFigura(std::uint8_t figura);

void ScegliFigura(StatoInserimento& stato, std::uint8_t figura);

/// A click on an attribute button: lights it, or puts it out when it was lit. Any place outside of
/// 0 to 5 does nothing.
void PremiAttributo(StatoInserimento& stato, int Index);
void AzzeraAttributi(StatoInserimento& stato);

/// The whole number in the multiplier's box, a fraction rounded, halves to the even one. Throws
/// `Guasto` 13 or 6 when 16 bits can't hold it as one.
std::int16_t Moltiplicatore(std::string_view testo);
/// What the box shows once it is left: its text, or "1" for anything but a number from 0 to 100.
std::string MoltiplicatoreValido(const std::string& testo);

struct OpzioniInserimento {
    std::int16_t per = 1;   ///< the multiplier
    bool conserva = false;  ///< the attribute stays lit
    char separatore = '.';  ///< the decimal one
};

/// Appends `notaAttiva` to the voice's texts, by the figure and the attribute; a tie replaces the
/// last note. False, with nothing changed, when the note lies outside of the five octaves.
/// Throws `Guasto` 6 for a voice that is full, 5 or 13 when a tie can't read the last note.
bool InserisciNota(StatoInserimento& stato, VoceMelodia& voce, const OpzioniInserimento& opzioni);

/// The same for a rest, at any `notaAttiva`.
void InserisciPausa(StatoInserimento& stato, VoceMelodia& voce, const OpzioniInserimento& opzioni);

/// How a single note is sounded for the ear.
struct Anteprima {
    std::int64_t millisecondi = 0;
    std::int16_t velocita = 0;
};

/// Works value and letter out afresh, without the texts: a tie counts as plain and no triplet has
/// an accent. `tempo` in quarter notes a minute.
Anteprima PreparaAnteprima(StatoInserimento& stato, std::int16_t per, int tempo);

}  // namespace corvana
