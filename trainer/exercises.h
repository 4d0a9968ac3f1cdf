// The ranges that a drill can have: those of the list, and the one between two marks on the ruler.
// Stateless; any thread.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace corvana {

struct RigaEsercizio {
    std::string_view testo;
    std::uint8_t limiteBasso;  ///< 0 for a separator
    std::uint8_t limiteAlto;
};

constexpr std::array<RigaEsercizio, 11> righeEsercizio = {{
    {"Chiave di Sol: SI - MI", 43, 53},
    {"Chiave di Sol: Sol - Sol", 41, 55},
    {"Chiave di Sol: Fa - Do", 40, 58},
    {"Chiave di Sol: Fa - Sol", 40, 62},
    {"---------------------------", 0, 0},
    {"Chiave di Fa: Sol - La", 18, 26},
    {"Chiave di Fa: Mi - Do", 16, 28},
    {"Chiave di Fa: Do - Mi", 14, 30},
    {"Chiave di Fa: Sol - Fa", 11, 31},
    {"----------------------------", 0, 0},
    {"5 Ottave Do - Si", 14, 64},
}};

/// The row of those limits.
std::optional<int> RigaDaLimiti(int limiteBasso, int limiteAlto);

/// The row that shows the limits at the start: theirs, or the first when they are no range; none
/// for a range that was marked on the ruler.
std::optional<int> RigaDiPartenza(int limiteBasso, int limiteAlto);

/// The positions that are marked on the ruler, 0 when not set.
struct SegniRegolo {
    std::int16_t PrimoClick = 0;
    std::int16_t SecondoClick = 0;

    bool Nessuno() const { return PrimoClick == 0 && SecondoClick == 0; }
    bool Completi() const { return PrimoClick != 0 && SecondoClick != 0; }
    bool operator==(const SegniRegolo&) const = default;
};

/// With one mark more. Two that are complete stay as they are.
SegniRegolo ConSegno(SegniRegolo segni, int posizione);

/// A position drawn from a range by `r`, uniform from 0 to 1: single precision may round the sum up
/// to the next number, which is never above `limiteAlto` all the same.
std::uint8_t PosizioneEstratta(double r, std::uint8_t limiteBasso, std::uint8_t limiteAlto);

}  // namespace corvana
