// Where a note stands, in words: clef, line or space, never the note's name. For those who don't
// see the staff. Pure; any thread.
#pragma once

#include <string>

#include "core/globals.h"
#include "trainer/positions.h"

namespace corvana {

/// Empty as long as no language has given the words.
std::string LuogoSulRigo(const Posizione& posizione, const TestiLingua& testi);

}  // namespace corvana
