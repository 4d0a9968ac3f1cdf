#include "composer/paste_panel.h"

#include "melody/edits.h"
#include "melody/step_mode.h"

namespace corvana {

PannelloIncolla::PannelloIncolla(Form& finestra, StatoComposer& stato, VicineIncolla vicine)
    : finestra_(finestra), stato_(stato), vicine_(std::move(vicine)) {
    lblIncolla.Visible = false;
    cmdPaste.Enabled = false;
    lblIncolla.Click = [this] { lblIncolla_Click(); };
    cmdPaste.Click = [this] { cmdPaste_Click(); };
}

void PannelloIncolla::lblIncolla_Click() {
    lblIncolla.Visible = false;
}

void PannelloIncolla::cmdPaste_Click() {
    if (stato_.melodia.Attiva().Vuota())
        vicine_.aggiornaVoce();
    else if (!lblIncolla.Visible())
        lblIncolla.Visible = true;
    else
        Conferma();
}

/// The boxes tell the range, which may be more than the voice's fields hold.
void PannelloIncolla::Conferma() {
    lblIncolla.Visible = false;
    stato_.lblModificato.Visible = true;
    const TrattoPasso tratto =
        TrattoDaCaselle(vicine_.primaNota().Text(), vicine_.ultimaNota().Text());
    Incolla(stato_.melodia.Attiva(), tratto.da, tratto.a);
    vicine_.aggiornaVoce();
}

}  // namespace corvana
