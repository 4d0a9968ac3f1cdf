// What a row of the language files sets. Each window has a table of these beside its layout. An
// element of an array of controls goes by the array's name and its index, "Label4" and 7 being
// "Label47". Any thread.
#pragma once

#include <span>
#include <string_view>

#include "core/globals.h"

namespace corvana {

enum class Cosa : std::uint8_t {
    Testo,      ///< caption of a control, or text of a box
    Seguito,    ///< the same, behind the text of a string variable and an empty line
    Consiglio,  ///< tool tip
    Riga,       ///< row `elemento` of a list
    Stringa,    ///< a string variable
};

struct Bersaglio {
    int id;
    Cosa cosa;
    std::string_view controllo = {};
    int elemento = 0;
    std::string TestiLingua::*stringa = nullptr;
};

constexpr Bersaglio Testo(int id, std::string_view controllo) {
    return {id, Cosa::Testo, controllo};
}

constexpr Bersaglio Seguito(int id, std::string_view controllo, std::string TestiLingua::*primo) {
    return {id, Cosa::Seguito, controllo, 0, primo};
}

constexpr Bersaglio Consiglio(int id, std::string_view controllo) {
    return {id, Cosa::Consiglio, controllo};
}

constexpr Bersaglio Riga(int id, std::string_view lista, int riga) {
    return {id, Cosa::Riga, lista, riga};
}

constexpr Bersaglio Stringa(int id, std::string TestiLingua::*variabile) {
    return {id, Cosa::Stringa, {}, 0, variabile};
}

/// The rows of a window, in ascending order of id.
using Bersagli = std::span<const Bersaglio>;

}  // namespace corvana
