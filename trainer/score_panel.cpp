#include "trainer/score_panel.h"

#include <algorithm>
#include <limits>

#include "core/effects.h"
#include "core/text.h"

namespace corvana {

namespace {
constexpr int giorno = 24 * 3600;
constexpr long massimoContato = std::numeric_limits<std::int32_t>::max() - 1;
}  // namespace

PannelloPunteggio::PannelloPunteggio(Form& finestra, const TestiLingua& testi)
    : finestra_(finestra), testi_(testi) {
    for (Casella* casella : {&conta, &er, &PercEs}) {
        casella->Locked = true;
        casella->BackColor = Rgb(255, 254, 251);
    }
}

void PannelloPunteggio::Dipingi() {
    Gradiente(PercMet, 0, 197, 218, 213, 255, 255, "ds", "d2");
    Gradiente(PercBg, 175, 255, 26, 255, 95, 85, "ab", "i");
    Gradiente(bgConta, 239, 135, 31, 255, 228, 255, "ab", "d2");
    Gradiente(bgRis[0], 140, 245, 5, 255, 255, 0, "ab", "d2");
    Gradiente(bgRis[1], 255, 95, 255, 255, 255, 255, "ab", "d2");
    Gradiente(bgRis[2], 255, 165, 69, 255, 245, 255, "ab", "d2");
    Gradiente(bgRis[3], 117, 239, 255, 197, 255, 255, "ab", "d2");
    Gradiente(bgRis[4], 207, 213, 207, 245, 255, 186, "ab", "d2");
}

void PannelloPunteggio::Comincia(int ora) {
    for (Casella* casella : {&conta, &er, &PercEs})
        casella->Text = "0";
    PonRapporto(1);
    frmRisultati.Visible = false;
    Esatte = Errate = Mostrate = 0;
    OraInizio = ora;
}

void PannelloPunteggio::Giusta() {
    ++Esatte;
    conta.Text = std::to_string(NumeroIntero(conta.Text(), 0, massimoContato) + 1);
}

void PannelloPunteggio::Sbagliata() {
    ++Errate;
    MostraErrate();
}

void PannelloPunteggio::MostraErrate() {
    er.Text = std::to_string(Errate);
}

void PannelloPunteggio::MostraPunteggio(const std::string& prefisso, int risposte) {
    Ridate.Caption = prefisso + std::to_string(risposte);
    Percentuale = Percento(Esatte, risposte);
    Lnmostrate.Caption = testi_.TxtPercentuale + Percentuale;
    PercEs.Text = Percentuale;
    PonRapporto(static_cast<float>(Esatte) / static_cast<float>(risposte));
}

void PannelloPunteggio::PonRapporto(float rapporto) {
    // Answers given by hand in an automatic run can outnumber the notes that the clock has shown.
    Rapporto = std::min(rapporto, 1.0F);
    ImpostaBarra(PercMet, PercBg, Rapporto, "v");
}

void PannelloPunteggio::MostraRisultati(int ora) {
    Lresatte.Caption = testi_.TxtRisposteEsatte + std::to_string(Esatte);
    Lrerrate.Caption = testi_.TxtRisposteErrate + std::to_string(Errate);
    OraFine = ora;
    // Minutes and seconds as a time of day has them: whole hours are not told.
    const int durata = (OraFine - OraInizio + giorno) % giorno;
    Tempoimp.Caption = testi_.TxtTempoImpiegato + std::to_string(durata / 60 % 60) + ":" +
                       std::to_string(durata % 60) + " mm:ss";
    frmRisultati.Visible = true;
}

}  // namespace corvana
