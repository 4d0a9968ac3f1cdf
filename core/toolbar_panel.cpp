#include "core/toolbar_panel.h"

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

PannelloBarra::PannelloBarra(Form& finestra, HoverFinestra& hover, Comandi comandi)
    : finestra_(finestra), hover_(hover), comandi_(std::move(comandi)) {
    for (int numero = 1; numero <= static_cast<int>(comandi_.size()); ++numero) {
        Figura& bottone =
            ToolButton.emplace_back(finestra_, "ToolButton" + std::to_string(numero), &frToolBar);
        bottone.Click = [this, numero] { ToolButton_Click(numero); };
        hover_.Affonda(bottone);
    }
    ShToolbar.Click = [this] { ShToolbar_Click(); };
    hover_.Evidenzia(ShToolbar, "ShToolbar",
                     [this](bool sopra) { DipingiStriscia(ShToolbar, sopra); });
    hover_.LasciaSu({&frToolBar});
}

void PannelloBarra::ToolButton_Click(int numero) {
    const Comando& comando = comandi_.at(static_cast<std::size_t>(numero - 1));
    if (comando.guardia && !comando.guardia->Enabled()) return;
    if (comando.siRialza) hover_.Lascia();
    if (comando.azione) comando.azione();
}

void PannelloBarra::ShToolbar_Click() {
    frToolBar.Visible = !frToolBar.Visible;
}

void PannelloBarra::DisabilitaAssenti() {
    for (std::size_t i = 0; i < comandi_.size(); ++i)
        if (!comandi_.at(i).azione) ToolButton.at(i).Enabled = false;
}

void PannelloBarra::Dipingi() {
    DipingiStriscia(ShToolbar, false);
}

}  // namespace corvana
