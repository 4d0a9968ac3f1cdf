// A run of questions: its start and end, the answers of normal mode, the score.
#include <algorithm>
#include <limits>

#include "core/effects.h"
#include "core/text.h"
#include "trainer/answer_keys.h"
#include "trainer/corvana_main.h"

namespace corvana {

namespace {
constexpr int giorno = 24 * 3600;
constexpr long massimoContato = std::numeric_limits<std::int32_t>::max() - 1;
}  // namespace

void CorvanaMainF::Start_Click() {
    if (Corre()) {
        lblnn.Caption = "";
        return FermaEsercizio();
    }
    Start.Caption = "Stop";
    Start.BackColor = pdo.BackColor();
    PonFermo(false);
    conta.Text = "0";
    er.Text = "0";
    PercEs.Text = "0";
    PonRapporto(1);
    Nascondinote();
    InCorso = true;
    ++corsa_;
    frmRisultati.Visible = false;
    Esatte = Errate = Mostrate = 0;
    OraInizio = a_.pompa.OraDelGiorno();
    if (Modo == "automatico") return CicloAutomatico();
    AbilitaRisposte(true);
    Mostranota();
}

void CorvanaMainF::FermaEsercizio() {
    Start.Caption = "Start";
    Start.BackColor = cmdEsci.BackColor();
    PonFermo(true);
    PrimoClick = SecondoClick = 0;
    a_.suono.SuonaNota(-1);
    AbilitaRisposte(false);
    InCorso = false;
    Nascondinote();
    Start.Enabled = true;
    if (Esatte + Errate == 0) return;
    MostraRisultati();
    a_.suono.SuonaNota(-1);
}

void CorvanaMainF::PonFermo(bool fermo) {
    es.Enabled = fermo;
    Opzioni.Enabled = fermo;
    Risorse.Enabled = fermo;
    f1.Enabled = fermo;
    Esci.Enabled = fermo;
    cmdEsci.Enabled = fermo;
    cmdEscibg.Enabled = fermo;
    Regolo.Visible = fermo;
}

void CorvanaMainF::MostraRisultati() {
    const TestiLingua& testi = a_.globali.testi;
    Lresatte.Caption = testi.TxtRisposteEsatte + std::to_string(Esatte);
    Lrerrate.Caption = testi.TxtRisposteErrate + std::to_string(Errate);
    OraFine = a_.pompa.OraDelGiorno();
    // Minutes and seconds as a time of day has them: whole hours are not told.
    const int durata = (OraFine - OraInizio + giorno) % giorno;
    Tempoimp.Caption = testi.TxtTempoImpiegato + std::to_string(durata / 60 % 60) + ":" +
                       std::to_string(durata % 60) + " mm:ss";
    frmRisultati.Visible = true;
}

void CorvanaMainF::DaiRisposta(int risposta) {
    TastoPremuto.at(static_cast<std::size_t>(risposta - 1)) = true;
    ControllaRisposta(risposta);
}

void CorvanaMainF::ControllaRisposta(int risposta) {
    if (Modo != "normale" || !InCorso) return;
    const auto indice = static_cast<std::size_t>(risposta - 1);
    if (RispostaGiusta.at(indice) && TastoPremuto.at(indice)) {
        ++Esatte;
        conta.Text = std::to_string(NumeroIntero(conta.Text(), 0, massimoContato) + 1);
        Mostranota();
    } else {
        SuonaOnda("rko.wav", sndAsincrono);
        ++Errate;
        er.Text = std::to_string(Errate);
    }
    const int date = Esatte + Errate;
    Ridate.Caption = a_.globali.testi.TxtRisposteDate + std::to_string(date);
    MostraPunteggio(date);
}

void CorvanaMainF::MostraPunteggio(int risposte) {
    Percentuale = Percento(Esatte, risposte);
    Lnmostrate.Caption = a_.globali.testi.TxtPercentuale + Percentuale;
    PercEs.Text = Percentuale;
    PonRapporto(static_cast<float>(Esatte) / static_cast<float>(risposte));
}

void CorvanaMainF::PonRapporto(float rapporto) {
    // Answers given by hand in an automatic run can outnumber the notes that the clock has shown.
    Rapporto = std::min(rapporto, 1.0F);
    ImpostaBarra(PercMet, PercBg, Rapporto, "v");
}

void CorvanaMainF::AbilitaRisposte(bool abilita) {
    for (Bottone* bottone : Risposte())
        bottone->Enabled = abilita;
}

void CorvanaMainF::Form_KeyUp(const Evento& tasto) {
    if (Corre()) {
        if (const auto risposta = RispostaDaTasto(tasto.codice)) DaiRisposta(*risposta);
    } else if (const auto riga = RigaDaTasto(tasto.codice)) {
        difficolt.Seleziona(*riga);
    }
}

}  // namespace corvana
