// What sinks or lights up under the pointer in the main window.
#include "core/effects.h"
#include "trainer/corvana_main.h"

namespace corvana {

namespace {

constexpr Colore rosso = 255;
constexpr Colore blu = 0xFF0000;

void DipingiStriscia(Controllo& striscia, bool evidenziata) {
    if (evidenziata)
        Gradiente(striscia, 0, 197, 218, 213, 255, 255, "ds", "d2");
    else
        Gradiente(striscia, 154, 0, 223, 255, 213, 255, "ds", "d2");
}

}  // namespace

void CorvanaMainF::CollegaHover() {
    for (Figura& bottone : ToolButton)
        hover_.Affonda(bottone);
    hover_.Affonda(cmdEscibg, cmdEsci, rosso, blu);
    hover_.Evidenzia(lblMn, "lblmn", [this](bool sopra) { lblMn.BorderStyle = sopra ? 1 : 0; });
    hover_.Evidenzia(ShToolbar, "ShToolbar",
                     [this](bool sopra) { DipingiStriscia(ShToolbar, sopra); });
    hover_.LasciaSu({this, &img, &Regolo, &frToolBar});
}

void CorvanaMainF::DipingiSfondi() {
    Gradiente(PercMet, 0, 197, 218, 213, 255, 255, "ds", "d2");
    Gradiente(PercBg, 175, 255, 26, 255, 95, 85, "ab", "i");
    Gradiente(bgConta, 239, 135, 31, 255, 228, 255, "ab", "d2");
    Gradiente(bgRis[0], 140, 245, 5, 255, 255, 0, "ab", "d2");
    Gradiente(bgRis[1], 255, 95, 255, 255, 255, 255, "ab", "d2");
    Gradiente(bgRis[2], 255, 165, 69, 255, 245, 255, "ab", "d2");
    Gradiente(bgRis[3], 117, 239, 255, 197, 255, 255, "ab", "d2");
    Gradiente(bgRis[4], 207, 213, 207, 245, 255, 186, "ab", "d2");
    DipingiStriscia(ShToolbar, false);
}

}  // namespace corvana
