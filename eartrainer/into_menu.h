// The menus of the ear trainer. Logic thread.
#pragma once

#include "forms/form.h"

namespace corvana {

class MenuInto {
public:
    explicit MenuInto(Form& finestra) : finestra_(finestra) {}

private:
    Form& finestra_;

public:
    VoceMenu Esercizio{finestra_, "Esercizio"};
    VoceMenu mnuNotA{finestra_, "mnuNotA", &Esercizio};
    VoceMenu mnuRint{finestra_, "mnuRint", &Esercizio};
    VoceMenu mnuRicTa{finestra_, "mnuRicTa", &Esercizio};
    VoceMenu mnuRicTasto{finestra_, "mnuRicTasto", &Esercizio};
    VoceMenu mnuRicTo{finestra_, "mnuRicTo", &Esercizio};

    VoceMenu strumento{finestra_, "strumento"};
    VoceMenu mnuPiano{finestra_, "mnuPiano", &strumento};
    VoceMenu mnuOrgano{finestra_, "mnuOrgano", &strumento};
    VoceMenu mnuSs{finestra_, "mnuSs", &strumento};

    VoceMenu Opzioni{finestra_, "Opzioni"};
    VoceMenu mnuNotLat{finestra_, "mnuNotLat", &Opzioni};
    VoceMenu mnuNotAnglo{finestra_, "mnuNotAnglo", &Opzioni};

    void SpuntaNomi(bool anglo) {
        mnuNotAnglo.Checked = anglo;
        mnuNotLat.Checked = !anglo;
    }
};

}  // namespace corvana
