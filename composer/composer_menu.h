// The menus of the melody window. Those of the bar come first; the context menu repeats some of
// their entries and does the same. Logic thread.
#pragma once

#include "forms/form.h"

namespace corvana {

class MenuComposer {
public:
    explicit MenuComposer(Form& finestra) : finestra_(finestra) {}

private:
    Form& finestra_;

public:
    VoceMenu file{finestra_, "file"};
    VoceMenu mnuApri{finestra_, "mnuApri", &file};
    VoceMenu mnuSalva{finestra_, "mnuSalva", &file};
    VoceMenu mnuSaveAs{finestra_, "mnuSaveAs", &file};
    VoceMenu mnuSalvaA{finestra_, "mnuSalvaA", &file};
    VoceMenu mnuCopyFromA{finestra_, "mnuCopyFromA", &file};
    VoceMenu mnuChiudi{finestra_, "mnuChiudi", &file};

    VoceMenu strumento{finestra_, "strumento"};
    VoceMenu mnuPiano{finestra_, "mnuPiano", &strumento};
    VoceMenu mnuOrgano{finestra_, "mnuOrgano", &strumento};
    VoceMenu mnuSs{finestra_, "mnuSs", &strumento};

    VoceMenu mnuOp{finestra_, "mnuOp"};
    VoceMenu mnuNotLat{finestra_, "mnuNotLat", &mnuOp};
    VoceMenu mnuNotAnglo{finestra_, "mnuNotAnglo", &mnuOp};
    VoceMenu mnuPlayRitardo{finestra_, "mnuPlayRitardo", &mnuOp};

    MenuContestuale mnuContestuale2{finestra_, "mnuContestuale2"};
    VoceMenu mnuApriCont{finestra_, "mnuApriCont", &mnuContestuale2};
    VoceMenu mnuSalvaCont{finestra_, "mnuSalvaCont", &mnuContestuale2};
    VoceMenu mnuSaveAsCont{finestra_, "mnuSaveAsCont", &mnuContestuale2};
    VoceMenu mnucSalvaA{finestra_, "mnucSalvaA", &mnuContestuale2};
    VoceMenu mnucCopyFromA{finestra_, "mnucCopyFromA", &mnuContestuale2};
    VoceMenu mnuPianoCont{finestra_, "mnuPianoCont", &mnuContestuale2};
    VoceMenu mnuOrganoCont{finestra_, "mnuOrganoCont", &mnuContestuale2};
    VoceMenu mnuSsCont{finestra_, "mnuSsCont", &mnuContestuale2};

    /// What opens and stores melodies, in both menus.
    void AbilitaFile(bool abilita);
    void SpuntaNomi(bool anglo);
};

}  // namespace corvana
