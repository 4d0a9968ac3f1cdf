// The properties of all controls, in one table: what they are called, what they hold, and what at
// first. A control has those that it declares (`Proprieta`). Plain data, for any thread.
#pragma once

#include <string>
#include <type_traits>
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
constexpr int ascoltaDoppio = 8;

/// A band of colour painted on a control: see `Gradiente`.
struct Sfumatura {
    Colore inizio = coloreDiSistema;
    Colore fine = coloreDiSistema;
    bool orizzontale = false;  ///< the colour changes from left to right, else from top to bottom
    bool doppia = false;       ///< runs to the end colour and back again

    bool operator==(const Sfumatura&) const = default;
    bool Presente() const { return inizio != coloreDiSistema; }
};

using Righe = std::vector<std::string>;
/// Numbers of rows, ascending.
using NumeriRiga = std::vector<int>;

/// Every property that a control of some kind has, with what it holds at first.
struct Valori {
    std::string Caption, Text, ToolTipText;
    std::string NomeLetto;  ///< what a screen reader says for what bears no words
    Righe List;
    int ListIndex = -1;
    bool MultiSelect = false;  ///< several rows can be selected
    NumeriRiga Selected;       ///< those that are
    bool Visible = true, Enabled = true, Checked = false, Locked = false;
    int Left = 0, Top = 0, Width = 0, Height = 0;  ///< twips
    int Value = 0, Min = 0, Max = 100;
    Colore BackColor = coloreDiSistema, ForeColor = coloreDiSistema;
    int BackStyle = fondoOpaco;
    int BorderStyle = 0;  ///< 1 draws a thin frame around it
    Sfumatura Sfondo;
    int HelpContextID = 0;  ///< page of the help that F1 opens
    int MousePointer = puntatoreNormale;
    int Ascolti = 0;  ///< which of these somebody listens to: the bits `ascolta...`
};

/// What one of them holds.
using Valore = std::variant<bool, int, std::string, Righe, NumeriRiga, Sfumatura>;

/// Which of them it is: the name under which a change is told, as `&Valori::Caption`.
class Nome {
public:
    template <class T>
    constexpr Nome(T Valori::*campo) : campo_(campo) {}
    bool operator==(const Nome&) const = default;

    /// The value must be of the property's kind.
    void Poni(Valori& valori, const Valore& valore) const {
        const auto poni = [&](auto campo) {
            auto& suo = valori.*campo;
            suo = std::get<std::remove_reference_t<decltype(suo)>>(valore);
        };
        std::visit(poni, campo_);
    }

private:
    std::variant<bool Valori::*, int Valori::*, std::string Valori::*, Righe Valori::*,
                 NumeriRiga Valori::*, Sfumatura Valori::*>
        campo_;
};

}  // namespace corvana
