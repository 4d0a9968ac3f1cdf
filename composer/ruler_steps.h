// Where the cursor of the ruler stands: which row a note has, and how it goes from one note to the
// next. Pure; any thread.
#pragma once

#include <cstdint>
#include <string_view>

namespace corvana {

constexpr std::int16_t rigaDoCentrale = 19;
constexpr std::int16_t notaDoCentrale = 60;

struct PostoCursore {
    std::int16_t riga = rigaDoCentrale;  ///< one for each white key, smaller is higher
    std::int16_t nota = notaDoCentrale;  ///< MIDI number, 36 to 95
    bool operator==(const PostoCursore&) const = default;
};

/// The note is a black key, which lies on the row of the white one below it.
bool NotaConDiesis(std::int16_t nota);

/// The row of the cursor once it has come to `nota` from the note below ("su") or above ("giu");
/// any other word leaves it where it is.
std::int16_t RigaDopo(std::int16_t riga, std::int16_t nota, std::string_view verso);

/// A semitone up or down; beyond either end of the keyboard it comes back at the other one.
PostoCursore CursoreSu(PostoCursore posto);
PostoCursore CursoreGiu(PostoCursore posto);

}  // namespace corvana
