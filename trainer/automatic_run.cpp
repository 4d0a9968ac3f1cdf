// A run in automatic mode: notes change by the clock, and keys that are held answer.
#include "forms/keys.h"
#include "trainer/answer_keys.h"
#include "trainer/drill_panel.h"

namespace corvana {

void PannelloEsercizio::CicloAutomatico() {
    const std::uint32_t questa = corsa_;
    while (InCorso) {
        InizioNota = a_.pompa.Adesso();
        Mostranota();
        ++punteggio.Mostrate;
        punteggio.conta.Text = std::to_string(punteggio.Mostrate);
        Risposto = false;
        if (!AttendiRisposta(questa)) return;
    }
    // The run was stopped just as the note's time ran out.
    --punteggio.Errate;
}

bool PannelloEsercizio::AttendiRisposta(std::uint32_t questa) {
    // The first pass doesn't wait: a key held from the note before answers this one at once.
    a_.pompa.PompaEventi();
    for (;;) {
        // With the window gone there is no output left to silence. And what was delivered may have
        // stopped this run and begun another, whose counters and panel are none of this one's.
        if (!finestra_.Identita() || corsa_ != questa) return false;
        if (a_.finestre.Tasti().Premuto(vk::esc)) break;
        LeggiTasti();
        if (a_.pompa.Adesso() >= InizioNota + stato_.SecondiNota) return true;
        if (!InCorso) break;
        a_.pompa.AttendiEvento(InizioNota + stato_.SecondiNota);
    }
    FermaEsercizio();
    return false;
}

void PannelloEsercizio::LeggiTasti() {
    const TastiPremuti& tasti = a_.finestre.Tasti();
    for (const TastiRisposta& t : tastiAutomatici)
        if (!Risposto && (tasti.Premuto(t.tasto) || tasti.Premuto(t.tastierino)))
            Giudica(t.risposta);
    punteggio.MostraErrate();
    punteggio.MostraPunteggio(a_.globali.testi.TxtNoteMostrate, punteggio.Mostrate);
}

void PannelloEsercizio::Giudica(int risposta) {
    const bool giusta = RispostaGiusta.at(static_cast<std::size_t>(risposta - 1));
    SuonaOnda(a_, giusta ? "rok.wav" : "rko.wav", sndAsincrono);
    ++(giusta ? punteggio.Esatte : punteggio.Errate);
    Risposto = true;
}

}  // namespace corvana
