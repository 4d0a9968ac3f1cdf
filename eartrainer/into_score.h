// The score that all pages of the ear trainer share. Its labels hold it, and nothing else does.
// Logic thread.
#pragma once

#include "core/globals.h"

namespace corvana {

class PunteggioInto {
public:
    /// Makes the controls in `finestra`; both must live as long as the score.
    PunteggioInto(Form& finestra, const Globali& globali)
        : finestra_(finestra), globali_(globali) {}

private:
    Form& finestra_;

public:
    Figura bgPunti{finestra_, "bgPunti"};  ///< on which they lie
    Etichetta Label2{finestra_, "Label2"}, txtResatte{finestra_, "txtResatte"};
    Etichetta Label1{finestra_, "Label1"}, txtRerrate{finestra_, "txtRerrate"};
    Etichetta lblPerc{finestra_, "lblPerc"};
    Etichetta lblOk{finestra_, "lblOk"}, lblKo{finestra_, "lblKo"};

    /// Counts an answer and shows whether it was right. Throws `Guasto` when the count leaves 16
    /// bits.
    void Punteggio(bool esatta);
    void Azzera();
    /// Neither marker: no answer was given yet.
    void NascondiEsito();

private:
    const Globali& globali_;
};

}  // namespace corvana
