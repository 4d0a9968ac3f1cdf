// What the user did, as it travels from the face to the logic. Plain data, for any thread.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace corvana {

enum class Fatto : std::uint8_t {
    Click,  ///< a button, label, menu entry or list row; `valore` is the row
    DblClick,
    MouseDown,
    MouseUp,  ///< wherever, for the control on which the button `codice` went down
    MouseMove,
    KeyDown,  ///< of the window: `codice`, `shift`, `ripetuto`
    KeyUp,
    Change,      ///< a slider let go (`valore`), a text edited (`testo`)
    Invio,       ///< Enter in a text box
    LostFocus,   ///< of a text box: the keyboard has gone to another control of the window
    Scroll,      ///< a slider's thumb on its way (`valore`)
    Chiudi,      ///< a request to close the window
    FuocoPerso,  ///< the program lost the keyboard: no key and no button is held any more
    Spostata,    ///< the window stands at `x`, `y` on the screen, in twips, its frame included
};

/// Bits of `shift`.
constexpr int shiftMaiuscole = 1;
constexpr int shiftControl = 2;
constexpr int shiftAlt = 4;

constexpr int bottoneSinistro = 1;
constexpr int bottoneDestro = 2;

struct Evento {
    std::uint32_t finestra = 0;  ///< identity of one showing of a window, see `Form::Identita`
    int controllo = 0;           ///< number of the control in its window; 0 is the window itself
    Fatto fatto = Fatto::Click;
    int codice = 0;  ///< virtual-key code, or the mouse button
    int shift = 0;
    bool ripetuto = false;  ///< a press made by the keyboard's auto-repeat
    int x = 0;              ///< twips from the control's left
    int y = 0;              ///< twips from the control's top
    int valore = 0;
    std::string testo = {};
    std::vector<int> scelte = {};  ///< rows that are selected, of a list in which several can be
};

}  // namespace corvana
