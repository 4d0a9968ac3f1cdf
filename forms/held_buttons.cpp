#include "forms/held_buttons.h"

#include <algorithm>

#include "forms/form.h"

namespace corvana {

namespace {

struct Origine {
    int x = 0, y = 0;
};

/// Where the control's upper left corner lies on the face of its window.
Origine SullaFaccia(const Controllo* controllo) {
    Origine origine;
    for (; controllo->Padre(); controllo = controllo->Padre()) {
        origine.x += controllo->Left;
        origine.y += controllo->Top;
    }
    return origine;
}

template <class Quale>
std::optional<BottoniPremuti::Pressione> Togli(std::vector<BottoniPremuti::Pressione>& giu,
                                               Quale quale) {
    const auto trovata = std::find_if(giu.begin(), giu.end(), quale);
    if (trovata == giu.end()) return std::nullopt;
    BottoniPremuti::Pressione pressione = std::move(*trovata);
    giu.erase(trovata);
    return pressione;
}

}  // namespace

std::optional<BottoniPremuti::Pressione> BottoniPremuti::Prendi(int bottone) {
    return Togli(giu_, [=](const Pressione& p) { return p.giu.codice == bottone; });
}

std::optional<BottoniPremuti::Pressione> BottoniPremuti::PrendiDi(const Form* form) {
    return Togli(giu_,
                 [=](const Pressione& p) { return !form || &p.controllo->Finestra() == form; });
}

Evento Rilascio(const BottoniPremuti::Pressione& pressione, const Evento& su,
                const Controllo* riferimento) {
    Evento evento = pressione.giu;
    evento.fatto = Fatto::MouseUp;
    if (!riferimento || &riferimento->Finestra() != &pressione.controllo->Finestra()) return evento;
    const Origine da = SullaFaccia(riferimento), a = SullaFaccia(pressione.controllo);
    evento.x = su.x + da.x - a.x;
    evento.y = su.y + da.y - a.y;
    evento.shift = su.shift;
    return evento;
}

}  // namespace corvana
