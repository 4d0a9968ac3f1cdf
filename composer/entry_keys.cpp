// The keys on the screen: pressed to be heard, and again to be inserted; and how a note that is
// entered sounds.
#include "composer/entry_panel.h"
#include "core/notation.h"
#include "core/octaves.h"

namespace corvana {

void PannelloInserimento::CollegaTasti() {
    for (std::size_t i = 0; i < vicine_.tasti.size(); ++i) {
        const int Index = static_cast<int>(i);
        vicine_.tasti[i].MouseDown = [this, Index](const Evento&) { lb_MouseDown(Index); };
        vicine_.tasti[i].MouseUp = [this, Index](const Evento&) { lb_MouseUp(Index); };
        vicine_.tasti[i].DblClick = [this, Index] { lb_DblClick(Index); };
    }
}

void PannelloInserimento::lb_MouseDown(int Index) {
    const auto nota = static_cast<std::int16_t>(Index + notaPiuBassa);
    inserimento_.soloAscolto = true;
    SuonaAnteprima(nota);
    // A tied note goes on at the pitch that it has.
    if (inserimento_.attributoAttivo == attributoLegatura) return;
    inserimento_.notaAttiva = nota;
    stato_.lblActNote.Caption = NomeNota(nota, a_.globali.NomiAnglo);
}

void PannelloInserimento::lb_MouseUp(int Index) {
    vicine_.mostraTasto(Index, false);
    a_.suono.NotaOff(1, static_cast<std::int16_t>(Index + notaPiuBassa));
    vicine_.tastoUsato(Index);
}

void PannelloInserimento::lb_DblClick(int /*Index*/) {
    inserimento_.senzaSuono = true;
    cmdInsNota_Click();
    TicchettioPausa();
    vicine_.fuocoPlay();
}

void PannelloInserimento::SuonaAnteprima(std::int16_t nota) {
    const Anteprima anteprima =
        PreparaAnteprima(inserimento_, Moltiplicatore(PausaPer.Text()), stato_.melodia.tempo);
    vicine_.mostraTasto(nota - notaPiuBassa, true);
    a_.suono.NotaOn(1, nota, anteprima.velocita);
    a_.pompa.Sleep(static_cast<int>(anteprima.millisecondi));
    vicine_.mostraTasto(nota - notaPiuBassa, false);
    a_.suono.NotaOff(1, nota);
}

void PannelloInserimento::TicchettioPausa() {
    constexpr std::int16_t canale = 10, tasto = 81, forza = 60;
    a_.suono.NotaOn(canale, tasto, forza);
    a_.suono.NotaOff(canale, tasto);
}

}  // namespace corvana
