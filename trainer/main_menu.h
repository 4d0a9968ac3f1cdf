// The panel of the main window's menus. What an entry does that concerns no other panel is done
// here; the window sees to the rest. Logic thread.
#pragma once

#include "forms/form.h"
#include "trainer/exercise_state.h"
#include "trainer/secondary_windows.h"

namespace corvana {

class MenuPrincipale {
public:
    /// Makes the entries in `finestra`; it and the rest must live as long as the panel.
    MenuPrincipale(Form& finestra, const Ambiente& ambiente, const Secondarie& secondarie,
                   StatoEsercizio& stato);

private:
    Form& finestra_;

public:
    VoceMenu f1{finestra_, "f1"}, Esci{finestra_, "Esci", &f1};
    VoceMenu es{finestra_, "es"}, mnuCorvana{finestra_, "mnuCorvana", &es},
        Sep3{finestra_, "Sep3", &es}, Intonazione{finestra_, "Intonazione", &es},
        step4{finestra_, "step4", &es}, mnuRint{finestra_, "mnuRint", &es},
        SeparatoreN{finestra_, "SeparatoreN", &es}, mnuRac{finestra_, "mnuRac", &es},
        step5{finestra_, "step5", &es}, mnuRicTo{finestra_, "mnuRicTo", &es},
        sep4{finestra_, "sep4", &es}, mnuRicTasto{finestra_, "mnuRicTasto", &es};
    VoceMenu Risorse{finestra_, "Risorse"}, mnuComposer{finestra_, "mnuComposer", &Risorse},
        step5b{finestra_, "step5b", &Risorse}, mnuMetro{finestra_, "mnuMetro", &Risorse},
        Step6{finestra_, "Step6", &Risorse}, mnuPromemoria{finestra_, "mnuPromemoria", &Risorse},
        separatore3{finestra_, "separatore3", &Risorse},
        mnuMidiTest{finestra_, "mnuMidiTest", &Risorse};
    VoceMenu Opzioni{finestra_, "Opzioni"}, Nominote1{finestra_, "Nominote1", &Opzioni},
        Nominote2{finestra_, "Nominote2", &Opzioni},
        separatore1{finestra_, "separatore1", &Opzioni}, Suono1{finestra_, "Suono1", &Opzioni},
        Suono2{finestra_, "Suono2", &Opzioni}, mnuOrgano{finestra_, "mnuOrgano", &Suono2},
        mnuPiano{finestra_, "mnuPiano", &Suono2}, mnuSs{finestra_, "mnuSs", &Suono2},
        separatore2{finestra_, "separatore2", &Opzioni},
        mnuNormale{finestra_, "mnuNormale", &Opzioni},
        mnuAutomatico{finestra_, "mnuAutomatico", &Opzioni}, sep10{finestra_, "sep10", &Opzioni},
        mnuLingua{finestra_, "mnuLingua", &Opzioni}, mnuIt{finestra_, "mnuIt", &mnuLingua},
        mnuEn{finestra_, "mnuEn", &mnuLingua};
    VoceMenu Help{finestra_, "Help"}, mnuAiuto{finestra_, "mnuAiuto", &Help},
        mnuVersione{finestra_, "mnuVersione", &Help};

    void Suono1_Click();
    void Suono2_Click();
    void mnuOrgano_Click();
    void mnuPiano_Click();

    /// What a run forbids.
    void Abilita(bool abilita);
    void DisabilitaAssenti();
    void SpuntaModo(bool automatico);
    void SpuntaNomi(bool anglo);

private:
    void PonStrumento(std::int32_t programma);

    Ambiente a_;
    const Secondarie& secondarie_;
    StatoEsercizio& stato_;
};

}  // namespace corvana
