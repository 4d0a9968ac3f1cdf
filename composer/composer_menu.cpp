#include "composer/composer_menu.h"

namespace corvana {

void MenuComposer::AbilitaFile(bool abilita) {
    file.Enabled = abilita;
    for (VoceMenu* voce :
         {&mnuApriCont, &mnuSalvaCont, &mnuSaveAsCont, &mnucSalvaA, &mnucCopyFromA})
        voce->Enabled = abilita;
}

void MenuComposer::SpuntaNomi(bool anglo) {
    mnuNotLat.Checked = !anglo;
    mnuNotAnglo.Checked = anglo;
}

}  // namespace corvana
