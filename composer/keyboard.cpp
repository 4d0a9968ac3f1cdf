// The keys that light while notes sound, and the ways to silence them.
#include "composer/composer.h"
#include "composer/ranges.h"

namespace corvana {

void frmComposer::MostraTasto(int tasto, bool acceso) {
    if (tasto < 0 || tasto >= tastiTastiera) return;
    lb[static_cast<std::size_t>(tasto)].BackStyle = acceso ? fondoOpaco : fondoTrasparente;
}

void frmComposer::MostraTastoPiano(std::int16_t nota, bool acceso) {
    MostraTasto(nota - notaPiuBassa, acceso);
    // A tied note goes on at the pitch that it has.
    if (!acceso || melodia.attributoAttivo == attributoLegatura) return;
    melodia.notaAttiva = nota;
    lblActNote.Caption = NomeDi(nota);
}

void frmComposer::EsaminaPiano() {
    piano.Esamina(a_.finestre.Tasti(), baseTastiera, a_.suono,
                  [this](std::int16_t nota, bool acceso) { MostraTastoPiano(nota, acceso); });
}

void frmComposer::SpegniTutteLeNote() {
    for (std::int16_t nota = notaPiuBassa; nota <= notaPiuAlta; ++nota) {
        a_.suono.NotaOff(1, nota);
        MostraTasto(nota - notaPiuBassa, false);
        for (std::int16_t canale = 2; canale <= 4; ++canale)
            a_.suono.NotaOff(canale, nota);
    }
}

void frmComposer::SpegniNoteVoci() {
    std::int16_t canale = 0;
    for (const StatoVoce& voce : riproduzione.voci) {
        ++canale;
        if (!SullaTastiera(voce.notaCorrente)) continue;
        a_.suono.NotaOff(canale, voce.notaCorrente);
        MostraTasto(voce.notaCorrente - notaPiuBassa, false);
    }
}

void frmComposer::SpegniTastiera() {
    for (std::int16_t nota = notaPiuBassa; nota <= notaPiuAlta; ++nota) {
        a_.suono.NotaOff(1, nota);
        MostraTasto(nota - notaPiuBassa, false);
    }
}

}  // namespace corvana
