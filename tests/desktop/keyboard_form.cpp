#include "tests/desktop/keyboard_form.h"

namespace corvana::prova {

FormTastiera::FormTastiera(Diario diario) : Form("FormTastiera") {
    Caption = "Tastiera";
    Width = 8070;
    Height = 1650;
    accanto.Left = 150;
    accanto.Top = 1125;
    accanto.Width = 1500;
    accanto.Height = 375;
    accanto.Caption = "Accanto";
    if (!diario) return;
    for (Etichetta& tasto : tastiera.lb)
        Ascolta(tasto, diario);
    tastiera.Lbdoc.DblClick = [diario] { diario("Lbdoc doppio"); };
}

void FormTastiera::Ascolta(Etichetta& tasto, const Diario& diario) {
    tasto.MouseDown = [&tasto, diario](const Evento&) {
        Accendi(tasto, true);
        diario(tasto.Name + " giu");
    };
    tasto.MouseUp = [&tasto, diario](const Evento&) {
        Accendi(tasto, false);
        diario(tasto.Name + " su");
    };
    tasto.Click = [&tasto, diario] { diario(tasto.Name + " click"); };
}

}  // namespace corvana::prova
