// What a property of a control can hold, and the name under which a change of it is told.
// Plain data, for any thread.
#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace corvana {

/// A colour as 0x00BBGGRR; `coloreDiSistema` leaves the choice to the face.
using Colore = int;
constexpr Colore coloreDiSistema = -1;

/// The colour of three channels, each 0 to 255.
constexpr Colore Rgb(int rosso, int verde, int blu) {
    return rosso | (verde << 8) | (blu << 16);
}

constexpr int Rosso(Colore c) {
    return c & 0xFF;
}
constexpr int Verde(Colore c) {
    return (c >> 8) & 0xFF;
}
constexpr int Blu(Colore c) {
    return (c >> 16) & 0xFF;
}

/// Values of `BackStyle`.
constexpr int fondoTrasparente = 0;
constexpr int fondoOpaco = 1;

/// Values of `MousePointer`.
constexpr int puntatoreNormale = 0;
constexpr int puntatoreAttesa = 11;

/// Bits of `Ascolti`.
constexpr int ascoltaClick = 1;
constexpr int ascoltaPressione = 2;
constexpr int ascoltaMossa = 4;

/// A band of colour painted on a control: see `Gradiente`.
struct Sfumatura {
    Colore inizio = coloreDiSistema;
    Colore fine = coloreDiSistema;
    bool orizzontale = false;  ///< the colour changes from left to right, else from top to bottom
    bool doppia = false;       ///< runs to the end colour and back again

    bool operator==(const Sfumatura&) const = default;
    bool Presente() const { return inizio != coloreDiSistema; }
};

enum class Nome : std::uint8_t {
    Caption,
    Text,
    Visible,
    Enabled,
    BackColor,
    ForeColor,
    ToolTipText,
    Value,
    Min,
    Max,
    List,
    ListIndex,
    Checked,
    Locked,
    Top,
    Left,
    Width,
    Height,
    BorderStyle,
    Sfondo,
    HelpContextID,
    BackStyle,
    MousePointer,
    Ascolti,
};

using Righe = std::vector<std::string>;
using Valore = std::variant<bool, int, std::string, Righe, Sfumatura>;

}  // namespace corvana
