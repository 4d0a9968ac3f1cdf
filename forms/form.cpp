#include "forms/form.h"

#include <algorithm>
#include <stdexcept>

namespace corvana {

Form::Form(std::string nome) : Controllo(std::move(nome), *this) {
    Iscrivi(*this);
}

Controllo* Form::Trova(std::string_view nome) const {
    const auto e = perNome_.find(nome);
    return e == perNome_.end() ? nullptr : e->second;
}

int Form::Iscrivi(Controllo& controllo) {
    controlli_.push_back(&controllo);
    perNome_.emplace(controllo.Name, &controllo);
    return static_cast<int>(controlli_.size()) - 1;
}

void Form::Annuncia(const Controllo& controllo, const ProprietaBase& proprieta) {
    const Nome nome = proprieta.NomeProprieta();
    if (&controllo == this && (nome == &Valori::Left || nome == &Valori::Top)) collocata_ = true;
    if (specchio_) specchio_->Cambiato(controllo, nome, proprieta.Leggi());
}

void Form::Trascina() const {
    if (specchio_) specchio_->Trascina(*this);
}

void Form::PopupMenu(const MenuContestuale& menu) const {
    if (specchio_ && menu.Utilizzabile()) specchio_->PopupMenu(menu);
}

void Form::ApriAiuto(const std::string& file) const {
    if (specchio_) specchio_->Aiuto(*this, file);
}

void Form::DaiFuoco(const Controllo& controllo) {
    if (specchio_) specchio_->Fuoco(controllo);
}

void Disponi(Form& form, const Posto* posti, std::size_t quanti) {
    std::for_each(posti, posti + quanti, [&](const Posto& posto) {
        Controllo* controllo = form.Trova(posto.nome);
        if (!controllo)
            throw std::logic_error(form.Name + " has no control " + std::string(posto.nome));
        controllo->Left = posto.left;
        controllo->Top = posto.top;
        controllo->Width = posto.width;
        controllo->Height = posto.height;
        controllo->ToolTipText = std::string(posto.consiglio);
        controllo->stile = std::string(posto.stile);
        if (!posto.testo.empty()) controllo->PonTesto(std::string(posto.testo));
    });
}

}  // namespace corvana
