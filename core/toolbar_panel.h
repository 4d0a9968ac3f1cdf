// The panel of a window's tool buttons, and the strip that shows and hides them. Logic thread.
#pragma once

#include <deque>
#include <functional>
#include <vector>

#include "core/hover.h"
#include "forms/form.h"

namespace corvana {

class PannelloBarra {
public:
    /// What a button does.
    struct Comando {
        std::function<void()> azione;        ///< none: `DisabilitaAssenti` disables the button
        const Controllo* guardia = nullptr;  ///< a click is honoured only while this is enabled
        /// The picture comes up first: a modal window swallows the pointer, and it would stay sunk
        /// behind it.
        bool siRialza = true;
    };
    using Comandi = std::vector<Comando>;

    /// Makes the controls in `finestra`, "ToolButton1" for the first command and so on; it and the
    /// rest must live as long as the panel.
    PannelloBarra(Form& finestra, HoverFinestra& hover, Comandi comandi);

private:
    Form& finestra_;

public:
    Figura ShToolbar{finestra_, "ShToolbar"};
    Cornice frToolBar{finestra_, "frToolBar"};
    std::deque<Figura> ToolButton;

    /// Button 1 and up.
    void ToolButton_Click(int numero);
    void ShToolbar_Click();

    void DisabilitaAssenti();
    /// Paints the strip as it is at rest.
    void Dipingi();

private:
    HoverFinestra& hover_;
    Comandi comandi_;
};

}  // namespace corvana
