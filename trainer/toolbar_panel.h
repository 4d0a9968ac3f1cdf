// The panel of the tool buttons, and the strip that shows and hides them. Logic thread.
#pragma once

#include <array>
#include <functional>

#include "core/hover.h"
#include "forms/form.h"

namespace corvana {

class PannelloBarra {
public:
    /// A click is honoured only while this is enabled.
    struct Guardie {
        const Controllo& primo;  ///< of the first button
        const Controllo& altri;
    };
    /// What each button does; an empty function disables it.
    using Azioni = std::array<std::function<void()>, 7>;

    /// Makes the controls in `finestra`; it and the rest must live as long as the panel.
    PannelloBarra(Form& finestra, HoverFinestra& hover, Guardie guardie, Azioni azioni);

private:
    Form& finestra_;

public:
    Figura ShToolbar{finestra_, "ShToolbar"};
    Cornice frToolBar{finestra_, "frToolBar"};
    std::array<Figura, 7> ToolButton{{{finestra_, "ToolButton1", &frToolBar},
                                      {finestra_, "ToolButton2", &frToolBar},
                                      {finestra_, "ToolButton3", &frToolBar},
                                      {finestra_, "ToolButton4", &frToolBar},
                                      {finestra_, "ToolButton5", &frToolBar},
                                      {finestra_, "ToolButton6", &frToolBar},
                                      {finestra_, "ToolButton7", &frToolBar}}};

    /// Button 1 to 7.
    void ToolButton_Click(int numero);
    void ShToolbar_Click();

    void DisabilitaAssenti();
    /// Paints the strip as it is at rest.
    void Dipingi();

private:
    HoverFinestra& hover_;
    Guardie guardie_;
    Azioni azioni_;
};

}  // namespace corvana
