#include "core/hover.h"

#include "core/text.h"

namespace corvana {

namespace {

const char* Parola(bool sopra) {
    return sopra ? "over" : "out";
}

}  // namespace

void HoverFinestra::Affonda(Controllo& immagine) {
    Evidenzia(immagine, Minuscolo(immagine.Name),
              [&](bool sopra) { EffettoImmagine(stato_, immagine, Parola(sopra)); });
}

void HoverFinestra::Affonda(Controllo& sfondo, Controllo& etichetta, Colore sopra, Colore fuori) {
    const std::string nome = Minuscolo(etichetta.Name);
    Evidenzia(etichetta, nome, [this, &sfondo, &etichetta, sopra, fuori](bool entra) {
        EffettoPulsante(stato_, sfondo, etichetta, Parola(entra), entra ? sopra : fuori);
    });
    Segui(sfondo, nome);
}

void HoverFinestra::Evidenzia(Controllo& controllo, std::string nome, Effetto effetto) {
    Segui(controllo, nome);
    voci_.push_back({std::move(nome), std::move(effetto)});
}

void HoverFinestra::Segui(Controllo& controllo, const std::string& nome) {
    controllo.MouseMove = [this, nome](const Evento&) { Entra(nome); };
}

void HoverFinestra::LasciaSu(std::initializer_list<Controllo*> controlli) {
    for (Controllo* controllo : controlli)
        controllo->MouseMove = [this](const Evento&) { Lascia(); };
}

void HoverFinestra::Entra(const std::string& nome) {
    if (stato_.HoverNome != nome) Lascia();
    stato_.HoverNome = nome;
    Mostra(true);
}

void HoverFinestra::Lascia() {
    Mostra(false);
    stato_.HoverNome.clear();
}

void HoverFinestra::Mostra(bool sopra) {
    for (const Voce& voce : voci_)
        if (voce.nome == stato_.HoverNome) voce.effetto(sopra);
}

}  // namespace corvana
