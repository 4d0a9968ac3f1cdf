#include "trainer/automatic_panel.h"

#include <algorithm>
#include <utility>

namespace corvana {

PannelloAutomatico::PannelloAutomatico(Form& finestra, const TestiLingua& testi,
                                       StatoEsercizio& stato, std::function<void()> fuocoAStart)
    : finestra_(finestra), testi_(testi), stato_(stato), fuocoAStart_(std::move(fuocoAStart)) {
    Slider1.Min = 20;
    Slider1.Max = 140;
    Slider1.Value = 30;
    Slider1.Change = [this] { Slider1_Change(); };
    Slider1.Scroll = [this] { Slider1_Scroll(); };
}

void PannelloAutomatico::Mostra(bool mostra) {
    for (Controllo* c : std::initializer_list<Controllo*>{&lblAuto1, &lblAuto2, &Slider1, &Velocità,
                                                          &Shape5, &Shape6})
        c->Visible = mostra;
}

void PannelloAutomatico::MostraVelocità() {
    Velocità.Caption = testi_.TxtVelocita + std::to_string(Slider1.Value());
}

void PannelloAutomatico::PonVelocità(int noteAlMinuto) {
    Slider1.PonValore(std::clamp(noteAlMinuto, Slider1.Min(), Slider1.Max()));
}

void PannelloAutomatico::Slider1_Change() {
    Slider1_Scroll();
    fuocoAStart_();
}

void PannelloAutomatico::Slider1_Scroll() {
    stato_.SecondiNota = 60.0 / Slider1.Value();
    MostraVelocità();
}

}  // namespace corvana
