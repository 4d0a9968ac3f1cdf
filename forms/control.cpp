#include "forms/control.h"

#include "forms/form.h"

namespace corvana {

ProprietaBase::ProprietaBase(Controllo& padrone, Nome nome) : padrone_(padrone), nome_(nome) {
    padrone.proprieta_.push_back(this);
}

void ProprietaBase::Annuncia() {
    padrone_.Finestra().Annuncia(padrone_, *this);
}

void GestoreBase::Annuncia(bool presente) {
    if (ascolto_ == 0) return;
    const int altri = padrone_.Ascolti & ~ascolto_;
    padrone_.Ascolti = presente ? altri | ascolto_ : altri;
}

Controllo::Controllo(Form& form, std::string nome, Genere genere, Controllo* padre)
    : Name(std::move(nome)), tipo(genere), form_(form), padre_(padre ? padre : &form) {
    numero_ = form.Iscrivi(*this);
}

Controllo::Controllo(std::string nome, Form& form)
    : Name(std::move(nome)), tipo(Genere::Finestra), form_(form), padre_(nullptr) {}

bool Controllo::Utilizzabile() const {
    for (const Controllo* c = this; c; c = c->padre_)
        if (!c->Enabled() || !c->Visible()) return false;
    return true;
}

void Controllo::SetFocus() {
    form_.DaiFuoco(*this);
}

void Controllo::Ricevi(const Evento& e) {
    switch (e.fatto) {
        case Fatto::Click: return Click();
        case Fatto::DblClick: return DblClick();
        case Fatto::Change: return Change();
        case Fatto::Scroll: return Scroll();
        case Fatto::Invio: return Invio();
        case Fatto::LostFocus: return LostFocus();
        case Fatto::MouseDown: return MouseDown(e);
        case Fatto::MouseUp: return MouseUp(e);
        case Fatto::MouseMove: return MouseMove(e);
        case Fatto::KeyDown: return form_.Form_KeyDown(e);
        case Fatto::KeyUp: return form_.Form_KeyUp(e);
        case Fatto::Chiudi:
        case Fatto::FuocoPerso:
        case Fatto::Spostata: return;
    }
}

}  // namespace corvana
