#include "composer/composer_state.h"

namespace corvana {

StatoComposer::StatoComposer(Form& finestra)
    : lblNome(finestra, "lblNome"),
      lblModificato(finestra, "lblModificato"),
      lblNe(finestra, "lblNe"),
      lblNt(finestra, "lblNt"),
      lblPnn(finestra, "lblPnn"),
      lblActNote(finestra, "lblActNote") {
    lblModificato.Visible = false;
    lblNe.BackColor = Rgb(224, 240, 224);
}

}  // namespace corvana
