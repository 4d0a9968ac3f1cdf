#include "trainer/staff_panel.h"

#include <array>

#include "trainer/positions.h"
#include "trainer/staff_places.h"

namespace corvana {

PannelloPentagramma::PannelloPentagramma(Form& finestra, HoverFinestra& hover)
    : finestra_(finestra) {
    for (const Posizione& p : Posizioni())
        n.emplace_back(finestra_, "n" + std::to_string(p.numero), &img);
    DisponiNote();
    lblnn.Visible = false;
    lblMn.Click = [this] { lblMn_Click(); };
    hover.Evidenzia(lblMn, "lblmn", [this](bool sopra) { lblMn.BorderStyle = sopra ? 1 : 0; });
    hover.LasciaSu({&img, &Regolo});
}

void PannelloPentagramma::DisponiNote() {
    constexpr std::array stili = {"maschera", "testa", "acuta"};
    auto nota = n.begin();
    for (const Posizione& p : Posizioni()) {
        nota->Left = p.left;
        nota->Top = p.top;
        nota->Width = p.width;
        nota->Height = p.height;
        nota->stile = stili.at(static_cast<std::size_t>(p.specie));
        ++nota;
    }
}

void PannelloPentagramma::PonParole(const TestiLingua& testi) {
    img.NomeLetto = testi.TxtPentagramma;
    auto nota = n.begin();
    for (const Posizione& p : Posizioni())
        (nota++)->NomeLetto = LuogoSulRigo(p, testi);
}

void PannelloPentagramma::lblMn_Click() {
    const bool mostra = lblMn.Caption() == "?";
    lblMn.Caption = mostra ? "" : "?";
    lblnn.Visible = mostra;
}

}  // namespace corvana
