// What the user reads in the window in front: what stands on each control, and what comes up when
// the pointer rests on it. GUI thread.
#pragma once

#include <map>
#include <set>
#include <string>

#include "tests/desktop/screen.h"

namespace corvana::prova {

/// By the name of the control, which is the window's for its title; behind that of a tool tip
/// stands ".tip", behind that of a list the row in brackets.
using Letture = std::map<std::string, std::string>;

/// Only what can be seen, and all menus.
Letture LeggiFinestra(Scrivania& scrivania);

/// What comes up over the middle of the control.
std::string ConsiglioMostrato(const Cosa& cosa);

}  // namespace corvana::prova
