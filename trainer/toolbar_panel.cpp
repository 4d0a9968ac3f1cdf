#include "trainer/toolbar_panel.h"

#include <utility>

#include "core/effects.h"

namespace corvana {

namespace {

void DipingiStriscia(Controllo& striscia, bool evidenziata) {
    if (evidenziata)
        Gradiente(striscia, 0, 197, 218, 213, 255, 255, "ds", "d2");
    else
        Gradiente(striscia, 154, 0, 223, 255, 213, 255, "ds", "d2");
}

}  // namespace

PannelloBarra::PannelloBarra(Form& finestra, HoverFinestra& hover, Guardie guardie, Azioni azioni)
    : finestra_(finestra), hover_(hover), guardie_(guardie), azioni_(std::move(azioni)) {
    int numero = 0;
    for (Figura& bottone : ToolButton) {
        bottone.Click = [this, b = ++numero] { ToolButton_Click(b); };
        hover_.Affonda(bottone);
    }
    ShToolbar.Click = [this] { ShToolbar_Click(); };
    hover_.Evidenzia(ShToolbar, "ShToolbar",
                     [this](bool sopra) { DipingiStriscia(ShToolbar, sopra); });
    hover_.LasciaSu({&frToolBar});
}

void PannelloBarra::ToolButton_Click(int numero) {
    const bool ammesso = numero == 1 ? guardie_.primo.Enabled() : guardie_.altri.Enabled();
    if (!ammesso) return;
    // A modal window swallows the pointer: the picture would stay sunk behind it.
    const bool apreModale = numero != 3 && numero != 6;
    if (apreModale) hover_.Lascia();
    if (const auto& azione = azioni_.at(static_cast<std::size_t>(numero - 1))) azione();
}

void PannelloBarra::ShToolbar_Click() {
    frToolBar.Visible = !frToolBar.Visible;
}

void PannelloBarra::DisabilitaAssenti() {
    for (std::size_t i = 0; i < azioni_.size(); ++i)
        if (!azioni_.at(i)) ToolButton.at(i).Enabled = false;
}

void PannelloBarra::Dipingi() {
    DipingiStriscia(ShToolbar, false);
}

}  // namespace corvana
