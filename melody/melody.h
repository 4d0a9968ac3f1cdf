// A melody: up to four voices, each three parallel texts of tokens, which are the truth, and the
// arrays and counters that are split from them. Plain state; logic thread.
//
// A token is closed by ';'. A note token is the MIDI number, "36" to "95", or "00" for a rest; a
// duration token a number of quarter notes with the system's decimal separator; an attribute token
// one letter: n (normale), s (staccato), t (appoggiato), a (accentato), p (pausa).
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace corvana {

constexpr std::size_t numeroVoci = 4;
constexpr std::size_t soprano = 0, contralto = 1, tenore = 2, basso = 3;
/// In the order in which voices are always walked.
constexpr std::array<std::string_view, numeroVoci> nomiVoci = {"soprano", "contralto", "tenore",
                                                               "basso"};

/// The voice of exactly that name.
std::optional<std::size_t> IndiceVoce(std::string_view nome);

struct VoceMelodia {
    std::string testoNote;
    std::string testoDurate;
    std::string testoAttributi;
    /// The texts split at ';': one element more than there are notes, the empty one behind the last
    /// ';'. No element for an empty text.
    std::vector<std::string> noteVoce;
    std::vector<std::string> durateVoce;
    std::vector<std::string> attributiVoce;
    std::int16_t numeroNote =
        0;  ///< highest index of `noteVoce`: the notes; -1 after an empty split
    std::int16_t primaNota = 0;  ///< the voice's range, 0-based
    std::int16_t ultimaNota = 0;
    std::int32_t strumento = 0;  ///< General MIDI program

    bool Vuota() const { return testoNote.empty(); }
};

struct Melodia {
    std::array<VoceMelodia, numeroVoci> voci;
    std::string voceAttiva{nomiVoci[soprano]};  ///< the voice that all editing works on
    std::string nomeMelodia;                    ///< without folder and ".mel"; empty for a new one
    std::uint8_t tempo = 60;                    ///< quarter notes a minute, 20 to 250
    std::int16_t semitoni = 0;                  ///< the transposition that waits
    /// From a load to the end of the play that it starts: no change of tempo or instrument marks
    /// the melody as modified.
    bool inCaricamento = false;

    // The editing state; no file keeps it.
    std::int16_t notaAttiva = 60;        ///< MIDI number that the next insertion uses
    std::uint8_t figuraAttiva = 2;       ///< the lit figure button, 0 to 6
    double valoreFigura = 1;             ///< its value in quarter notes
    std::uint8_t attributoAttivo = 6;    ///< the lit attribute button, 0 to 5; 6 for none
    std::string letteraAttributo = "n";  ///< attribute token of the note being inserted
    double valoreNota = 1;               ///< value worked out for that note
    double valorePrecedente = 0;         ///< value that a tie took off the last note
    std::uint8_t contaTerzina = 0;       ///< notes counted so far in a triplet
    bool soloAscolto = false;            ///< a key of the keyboard on the screen was pressed
    bool senzaSuono = false;             ///< the next insertion stays silent
    bool modoPasso = false;              ///< the step mode is open
    std::int16_t IndiceNotaPP = 0;       ///< note under the step, 0-based, in the active voice

    VoceMelodia& Attiva() { return voci[IndiceAttiva()]; }
    std::size_t IndiceAttiva() const { return IndiceVoce(voceAttiva).value_or(soprano); }
};

}  // namespace corvana
