// How somebody who reads a voice off a sheet would enter it with the mouse alone: figures,
// attributes, keys and buttons, no text typed.
#pragma once

#include <string>
#include <vector>

#include "melody/mel_reader.h"

namespace corvana::prova {

/// A click on a control, or a double click.
struct GestoMouse {
    std::string controllo;
    bool doppio = false;
};

/// What enters the voice into an empty one, with the window as it opens: the quarter lit, no
/// attribute, the multiplier 1. Dotted notes come by the dot and by a tie in turns, and by the
/// multiplier where another attribute is needed; notes come by the button and by double clicks in
/// turns. Throws std::invalid_argument for a note that can't be entered so.
std::vector<GestoMouse> GestiDi(const TestiVoce& voce);

}  // namespace corvana::prova
