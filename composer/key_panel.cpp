#include "composer/key_panel.h"

#include "core/notation.h"
#include "core/octaves.h"

namespace corvana {

PannelloTasti::PannelloTasti(const Ambiente& ambiente, Form& finestra, StatoComposer& stato)
    : tastiera(finestra, "tastiera"), a_(ambiente), stato_(stato) {
    stato_.lblActNote.DblClick = tastiera.Lbdoc.DblClick = [this] { CambiaBase(); };
}

void PannelloTasti::Carica() {
    tastoCorrente = nessunTasto;
    tastiera.PonNomi(a_.globali.NomiAnglo);
    tastiera.figura.NomeLetto = a_.globali.testi.TxtTastiera;
}

void PannelloTasti::MostraTasto(int tasto, bool acceso) {
    if (tasto >= 0 && tasto < tastiTastiera) Accendi(lb[static_cast<std::size_t>(tasto)], acceso);
}

void PannelloTasti::MostraTastoPiano(std::int16_t nota, bool acceso) {
    MostraTasto(nota - notaPiuBassa, acceso);
    // A tied note goes on at the pitch that it has.
    if (!acceso || stato_.inserimento.attributoAttivo == attributoLegatura) return;
    stato_.inserimento.notaAttiva = nota;
    stato_.lblActNote.Caption = NomeNota(nota, a_.globali.NomiAnglo);
}

void PannelloTasti::EsaminaPiano() {
    piano_.Esamina(a_.finestre.Tasti(), baseTastiera, a_.suono, MostraPiano());
}

void PannelloTasti::LasciaPiano() {
    piano_.Esamina({}, baseTastiera, a_.suono, MostraPiano());
}

void PannelloTasti::PremiPiano(int codice) {
    piano_.Premi(codice, baseTastiera, a_.suono, MostraPiano());
}

void PannelloTasti::LasciaPiano(int codice) {
    piano_.Lascia(codice, baseTastiera, a_.suono, MostraPiano());
}

PianoDaTastiera::Mostra PannelloTasti::MostraPiano() {
    return [this](std::int16_t nota, bool acceso) { MostraTastoPiano(nota, acceso); };
}

void PannelloTasti::CambiaBase() {
    baseTastiera = BaseSeguente(baseTastiera);
}

void PannelloTasti::SpegniTutteLeNote() {
    for (std::int16_t nota = notaPiuBassa; nota <= notaPiuAlta; ++nota) {
        a_.suono.NotaOff(1, nota);
        MostraTasto(nota - notaPiuBassa, false);
        for (std::int16_t canale = 2; canale <= 4; ++canale)
            a_.suono.NotaOff(canale, nota);
    }
}

void PannelloTasti::SpegniNoteVoci() {
    std::int16_t canale = 0;
    for (const StatoVoce& voce : stato_.riproduzione.voci) {
        ++canale;
        if (!SullaTastiera(voce.notaCorrente)) continue;
        a_.suono.NotaOff(canale, voce.notaCorrente);
        MostraTasto(voce.notaCorrente - notaPiuBassa, false);
    }
}

void PannelloTasti::SpegniTastiera() {
    for (std::int16_t nota = notaPiuBassa; nota <= notaPiuAlta; ++nota) {
        a_.suono.NotaOff(1, nota);
        MostraTasto(nota - notaPiuBassa, false);
    }
}

}  // namespace corvana
