#include "trainer/shown_notes.h"

#include "forms/form.h"
#include "trainer/positions.h"

namespace corvana {

namespace {

void Mostra(const Form& finestra, const Posizione& posizione, bool mostra) {
    Controllo* nota = finestra.Trova("n" + std::to_string(posizione.numero));
    nota->Visible = posizione.specie == Specie::maschera ? !mostra : mostra;
}

}  // namespace

void Nascondinote(const Form& finestra) {
    for (const Posizione& posizione : Posizioni())
        Mostra(finestra, posizione, false);
}

void VisualizzaNota(const Form& finestra, std::uint8_t posizione) {
    if (const Posizione* trovata = CercaPosizione(posizione)) Mostra(finestra, *trovata, true);
}

}  // namespace corvana
