#include "forms/controls.h"

#include <algorithm>

#include "forms/fault.h"
#include "forms/form.h"

namespace corvana {

void Casella::Accogli(const Evento& e) {
    if (e.fatto == Fatto::Change && !Locked) Text.PonDaUtente(e.testo);
}

void Casella::Ripeti() {
    Finestra().Annuncia(*this, Text);
}

void Lista::AddItem(std::string riga) {
    Righe righe = List;
    righe.push_back(std::move(riga));
    List = std::move(righe);
}

void Lista::PonRiga(int indice, std::string testo) {
    Righe righe = List;
    righe.at(static_cast<std::size_t>(indice)) = std::move(testo);
    List = std::move(righe);
}

void Lista::Clear() {
    ListIndex = -1;
    List = Righe{};
}

void Lista::Seleziona(int indice) {
    ListIndex = indice;
    Click();
}

void Lista::Accogli(const Evento& e) {
    const bool esiste = e.valore >= 0 && e.valore < static_cast<int>(List->size());
    if (e.fatto == Fatto::Click && esiste) ListIndex.PonDaUtente(e.valore);
}

void Lista::Ripeti() {
    Finestra().Annuncia(*this, ListIndex);
}

std::string Lista::Scelta() const {
    const int scelta = ListIndex;
    const bool esiste = scelta >= 0 && scelta < static_cast<int>(List->size());
    return esiste ? List()[static_cast<std::size_t>(scelta)] : std::string{};
}

ListaMultipla::ListaMultipla(Form& form, std::string nome, Controllo* padre)
    : Lista(form, std::move(nome), padre) {
    // A property is made with its control, not with its value.
    // cppcheck-suppress useInitializationList
    MultiSelect = true;
}

void ListaMultipla::Clear() {
    Selected = NumeriRiga{};
    Lista::Clear();
}

void ListaMultipla::Accogli(const Evento& e) {
    Lista::Accogli(e);
    if (e.fatto != Fatto::Click) return;
    NumeriRiga scelte = e.scelte;
    std::erase_if(scelte,
                  [&](int riga) { return riga < 0 || riga >= static_cast<int>(List->size()); });
    std::sort(scelte.begin(), scelte.end());
    scelte.erase(std::unique(scelte.begin(), scelte.end()), scelte.end());
    Selected.PonDaUtente(std::move(scelte));
}

void ListaMultipla::Ripeti() {
    Lista::Ripeti();
    Finestra().Annuncia(*this, Selected);
}

void Combo::PonTesto(const std::string& testo) {
    const auto riga = std::find(List->begin(), List->end(), testo);
    if (riga == List->end()) throw Guasto(guastoProprieta, "Invalid property value");
    Seleziona(static_cast<int>(riga - List->begin()));
}

bool Barra::Contiene(int valore) const {
    return valore >= std::min(Min(), Max()) && valore <= std::max(Min(), Max());
}

void Barra::PonValore(int valore) {
    if (!Contiene(valore)) throw Guasto(guastoProprieta, "Invalid property value");
    if (valore == Value()) return;
    Value = valore;
    Change();
}

void Barra::Accogli(const Evento& e) {
    const bool muove = e.fatto == Fatto::Change || e.fatto == Fatto::Scroll;
    if (muove && Contiene(e.valore)) Value.PonDaUtente(e.valore);
}

void Barra::Ripeti() {
    Finestra().Annuncia(*this, Value);
}

void Spunta::Accogli(const Evento& e) {
    if (e.fatto == Fatto::Click) Value.PonDaUtente(e.valore != 0);
}

void Spunta::Ripeti() {
    Finestra().Annuncia(*this, Value);
}

}  // namespace corvana
