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

    VoceMelodia& Attiva() { return voci[IndiceAttiva()]; }
    const VoceMelodia& Attiva() const { return voci[IndiceAttiva()]; }
    std::size_t IndiceAttiva() const { return IndiceVoce(voceAttiva).value_or(soprano); }
};

}  // namespace corvana
