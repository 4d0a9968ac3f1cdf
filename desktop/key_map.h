// Which virtual-key code a key of the keyboard has. Pure.
#pragma once

#include <Qt>
#include <cstdint>

namespace corvana {

/// The code of the key at that place of the keyboard. `scansione` is the native scan code as X11
/// and Wayland give it, the kernel's number plus 8; at 0, where the platform doesn't tell, the code
/// comes from the character that the key gives and from whether it lies on the keypad. 0 when there
/// is none.
int CodiceTasto(std::uint32_t scansione, int tastoQt, bool tastierino);

/// One of the two keys that push what has the focus, as the space bar does.
bool EInvio(int tastoQt);

/// The bits of `Evento::shift`.
int BitMaiuscole(Qt::KeyboardModifiers modificatori);

}  // namespace corvana
