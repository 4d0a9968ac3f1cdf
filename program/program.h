// All windows of the program, and which opens which. Logic thread.
#pragma once

#include "metronome/metronome_panel.h"
#include "trainer/corvana_main.h"

namespace corvana {

class frmComposer;
class frmStrum;

class Programma {
public:
    explicit Programma(const Ambiente& ambiente);

    CorvanaMainF principale;
    PannelloMetronomo metronomo;

    /// The process from its start to the closing of the last window. `altraIstanza`: another copy
    /// of the program runs.
    void DaMainAllaFine(bool altraIstanza);

private:
    /// `aiuto` is the window's page of the help, 0 for its first one.
    template <class F>
    void MostraModale(int aiuto = 0) {
        F finestra(a_);
        finestra.HelpContextID = aiuto;
        a_.finestre.MostraModale(finestra);
    }
    Secondarie Apri();
    void MostraInto();
    void MostraComposer();
    void MostraStrumenti(frmComposer& composer);

    Ambiente a_;
    frmStrum* strumenti_ = nullptr;  ///< the picker that is open over the melody window
};

}  // namespace corvana
