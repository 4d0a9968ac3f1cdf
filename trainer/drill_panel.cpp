// A run of questions: its start and end, the notes that it asks, the answers of normal mode.
#include "trainer/drill_panel.h"

#include <utility>

#include "core/notation.h"
#include "trainer/exercises.h"
#include "trainer/positions.h"
#include "trainer/shown_notes.h"

namespace corvana {

PannelloEsercizio::PannelloEsercizio(Form& finestra, const Ambiente& ambiente,
                                     StatoEsercizio& stato, Etichetta& nome, VicineEsercizio vicine)
    : finestra_(finestra), a_(ambiente), stato_(stato), nome_(nome), vicine_(std::move(vicine)) {
    Start.BackColor = coloreFermo;
    Start.Click = [this] { Start_Click(); };
}

void PannelloEsercizio::Start_Click() {
    if (Corre()) {
        nome_.Caption = "";
        return FermaEsercizio();
    }
    Start.Caption = "Stop";
    Start.BackColor = coloreRisposta;
    vicine_.fermo(false);
    Nascondinote(finestra_);
    InCorso = true;
    ++corsa_;
    punteggio.Comincia(a_.pompa.OraDelGiorno());
    if (stato_.Modo == "automatico") return CicloAutomatico();
    vicine_.abilitaRisposte(true);
    Mostranota();
}

void PannelloEsercizio::FermaEsercizio() {
    Start.Caption = "Start";
    Start.BackColor = coloreFermo;
    vicine_.fermo(true);
    a_.suono.SuonaNota(-1);
    vicine_.abilitaRisposte(false);
    InCorso = false;
    Nascondinote(finestra_);
    Start.Enabled = true;
    if (punteggio.Esatte + punteggio.Errate == 0) return;
    punteggio.MostraRisultati(a_.pompa.OraDelGiorno());
    a_.suono.SuonaNota(-1);
}

void PannelloEsercizio::Mostranota() {
    Nascondinote(finestra_);
    do {
        stato_.NotaCorrente =
            PosizioneEstratta(a_.casuale.Estrai(), stato_.LimiteBasso, stato_.LimiteAlto);
    } while (!CercaPosizione(stato_.NotaCorrente));
    const int risposta = RispostaDi(*CercaPosizione(stato_.NotaCorrente));
    RispostaGiusta.fill(false);
    RispostaGiusta.at(static_cast<std::size_t>(risposta - 1)) = true;
    VisualizzaNota(finestra_, stato_.NotaCorrente);
    AnnunciaNota();
}

void PannelloEsercizio::AnnunciaNota() {
    const std::int16_t valore = CercaPosizione(stato_.NotaCorrente)->valore;
    nome_.Caption =
        NomeNota(static_cast<std::int16_t>(valore + scartoIndiceNota), a_.globali.NomiAnglo);
    if (stato_.SuonoNota)
        a_.suono.SuonaNota(valore);
    else
        SuonaOnda(a_, "rok.wav", sndSenzaPredefinito);
}

void PannelloEsercizio::DaiRisposta(int risposta) {
    TastoPremuto.at(static_cast<std::size_t>(risposta - 1)) = true;
    ControllaRisposta(risposta);
}

void PannelloEsercizio::ControllaRisposta(int risposta) {
    if (stato_.Modo != "normale" || !InCorso) return;
    const auto indice = static_cast<std::size_t>(risposta - 1);
    if (RispostaGiusta.at(indice) && TastoPremuto.at(indice)) {
        punteggio.Giusta();
        Mostranota();
    } else {
        SuonaOnda(a_, "rko.wav", sndAsincrono);
        punteggio.Sbagliata();
    }
    punteggio.MostraPunteggio(a_.globali.testi.TxtRisposteDate,
                              punteggio.Esatte + punteggio.Errate);
}

}  // namespace corvana
