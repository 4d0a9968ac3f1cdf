// What each row of the language files is for, written down a second time, by hand: the program's
// own tables are tested against these. One file for each window. Any thread.
#pragma once

#include <functional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/globals.h"

namespace corvana::prova {

/// `dove` lists the targets, a blank between two: "cmdEsci" is a caption or text, "conta.tip" a
/// tool tip, "difficolt[3]" a row of a list, "VoceAttiva(1)" an element of an array of controls.
/// The words are some that the row's text must hold, so that it can't change places with another.
struct RigaAttesa {
    int id;
    std::string_view dove;
    std::string_view italiano;
    std::string_view inglese;
    std::string TestiLingua::*stringa = nullptr;
};

using RigheAttese = std::span<const RigaAttesa>;

struct FinestraAttesa {
    std::string nome;
    RigheAttese righe;
};

/// All windows that have rows.
std::vector<FinestraAttesa> FinestreAttese();
RigheAttese RigheDi(std::string_view finestra);

RigheAttese RigheMain();
RigheAttese RigheConfMetro();
RigheAttese RigheMidiTest();
RigheAttese RigheAbout();
RigheAttese RigheOptions();
RigheAttese RigheInto();
RigheAttese RigheComposer();
RigheAttese RigheCopyFromA();

/// The words of a row in the one language or the other; throws when there is no such row.
std::string_view ParoleDi(int id, std::string_view RigaAttesa::*parole);

using Luoghi = std::set<std::string>;

/// The targets of a row, one by one, an element of an array under its own name: "VoceAttiva1".
Luoghi LuoghiDi(const RigaAttesa& riga);

}  // namespace corvana::prova
