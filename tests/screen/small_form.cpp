#include "tests/screen/small_form.h"

#include <array>

namespace corvana::prova {

namespace {

constexpr std::array posti = {
    Posto{"tieni", 300, 300, 1500, 450, "Tieni", {}, "pulsante"},
    Posto{"bottone", 300, 900, 1500, 450, "Bottone"},
    Posto{"casella", 300, 1500, 1500, 375},
    Posto{"voce", 0, 0, 0, 0, "Voce"},
};

}  // namespace

FinestraPiccola::Sopra::Sopra(Finestre& f) : Form("FinestraSopra"), finestre(f) {
    Width = 3000;
    Height = 1500;
}

void FinestraPiccola::Sopra::Form_KeyDown(const Evento& tasto) {
    if (tasto.codice == vk::esc) finestre.Scarica(*this);
}

FinestraPiccola::FinestraPiccola(Finestre& finestre, Pompa& pompa, Riquadri& riquadri,
                                 Diario diario)
    : Form("FinestraPiccola"),
      finestre_(finestre),
      pompa_(pompa),
      riquadri_(riquadri),
      diario_(std::move(diario)),
      sopra_(finestre) {
    Width = 6000;
    Height = 3000;
    Disponi(*this, posti.data(), posti.size());
    tieni.MouseDown = [this](const Evento&) { Tieni(); };
    tieni.MouseUp = [this](const Evento&) {
        diario_("up");
        premuto_ = false;
    };
    bottone.MouseDown = [this](const Evento&) { diario_("button down"); };
    bottone.Click = [this] { diario_("button click"); };
    casella.Change = [this] { diario_("text " + casella.Text()); };
    casella.Invio = [this] { diario_("enter"); };
    casella.LostFocus = [this] { diario_("left"); };
    voce.Click = [this] { diario_("entry"); };
    MouseDown = [this](const Evento& e) {
        if (e.codice == bottoneDestro) PopupMenu(menu);
    };
}

void FinestraPiccola::Tieni() {
    diario_("down");
    for (premuto_ = true; premuto_;) {
        pompa_.PompaEventi();
        pompa_.Attendi(0.02);
    }
    diario_("released");
}

void FinestraPiccola::Form_KeyDown(const Evento& tasto) {
    constexpr int f2 = 113, f3 = 114, f4 = 115;
    if (tasto.codice == f2) {
        tieni.Enabled = false;
        diario_("disabled");
    }
    if (tasto.codice == f3) finestre_.MostraModale(sopra_);
    if (tasto.codice == f4) riquadri_.MsgBox("Fatto");
}

}  // namespace corvana::prova
