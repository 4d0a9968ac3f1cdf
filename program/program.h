// All windows of the program, and which opens which. Logic thread.
#pragma once

#include <functional>

#include "metronome/panel.h"
#include "trainer/corvana_main.h"

namespace corvana {

class Programma {
public:
    /// `aiuto` opens the help; empty where there is none.
    explicit Programma(const Ambiente& ambiente, std::function<void()> aiuto = {});

    CorvanaMainF principale;
    PannelloMetronomo metronomo;

    /// The process from its start to the closing of the last window. `altraIstanza`: another copy
    /// of the program runs.
    void Esegui(bool altraIstanza);

private:
    template <class F>
    void MostraModale() {
        F finestra(a_);
        a_.finestre.MostraModale(finestra);
    }
    Secondarie Apri(std::function<void()> aiuto);

    Ambiente a_;
};

}  // namespace corvana
