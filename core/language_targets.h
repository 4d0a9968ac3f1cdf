// What each id of the language files sets: one table for each window. Any thread.
#pragma once

#include <span>
#include <string_view>

#include "core/globals.h"

namespace corvana {

enum class Cosa : std::uint8_t {
    Testo,      ///< caption of a control, or text of a box
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

/// The targets of a window, by its name in lower case; empty for an unknown one.
std::span<const Bersaglio> Bersagli(std::string_view nomeForm);

/// The main window's.
std::span<const Bersaglio> BersagliPrincipali();

}  // namespace corvana
