// The panel of the automatic mode: how long a note stays, and which keys answer. Logic thread.
#pragma once

#include <functional>

#include "forms/form.h"
#include "trainer/exercise_state.h"

namespace corvana {

class PannelloAutomatico {
public:
    /// Makes the controls in `finestra`; it and the rest must live as long as the panel.
    /// `fuocoAStart` gives the focus back when the slider was let go.
    PannelloAutomatico(Form& finestra, const TestiLingua& testi, StatoEsercizio& stato,
                       std::function<void()> fuocoAStart);

private:
    Form& finestra_;

public:
    Cornice Shape5{finestra_, "Shape5"}, Shape6{finestra_, "Shape6"};
    Etichetta lblAuto1{finestra_, "lblAuto1"}, lblAuto2{finestra_, "lblAuto2"};
    Etichetta Velocità{finestra_, "Velocità"};
    Barra Slider1{finestra_, "Slider1"};

    void Slider1_Change();
    void Slider1_Scroll();

    void Mostra(bool mostra);
    void MostraVelocità();
    /// The nearest speed that the slider has, in notes a minute.
    void PonVelocità(int noteAlMinuto);

private:
    const TestiLingua& testi_;
    StatoEsercizio& stato_;
    std::function<void()> fuocoAStart_;
};

}  // namespace corvana
