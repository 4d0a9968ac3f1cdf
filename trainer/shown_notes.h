// The notes that are to be seen on the staff of a window, whose controls are called "n" and the
// position. Logic thread.
#pragma once

#include <cstdint>

namespace corvana {

class Form;

void Nascondinote(const Form& finestra);

/// Shows one position; any other number does nothing. What was shown before stays.
void VisualizzaNota(const Form& finestra, std::uint8_t posizione);

}  // namespace corvana
