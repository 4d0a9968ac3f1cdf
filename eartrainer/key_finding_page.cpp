#include "eartrainer/key_finding_page.h"

#include "eartrainer/key_spelling.h"

namespace corvana {

PaginaTasti::PaginaTasti(TelaioInto& telaio) : t_(telaio) {
    cmdRicTasto.Click = [this] { cmdRicTasto_Click(); };
    lblSceltaTasti.Click = [this] { lblSceltaTasti_Click(); };
}

void PaginaTasti::Carica() {
    lblSceltaTasti.Caption = t_.Testi().capSoloBianchi;
}

void PaginaTasti::Entra(const std::string& titolo) {
    t_.lblStep.Caption = titolo;
}

void PaginaTasti::cmdRicTasto_Click() {
    const bool avvia = !TelaioInto::Corre(cmdRicTasto);
    t_.PonStart(cmdRicTasto, avvia);
    t_.Esercizio.Enabled = !avvia;
    t_.cmdEsci.Enabled = !avvia;
    if (avvia) {
        t_.punti.Azzera();
        TastoDomanda();
    } else {
        t_.NotaOff(t_.NotaRif);
    }
}

void PaginaTasti::TastoDomanda() {
    NomeChiesto = TastoScegli();
    t_.lblStep.Caption = t_.Testi().msgTastoPrima + NomeChiesto + t_.Testi().msgTastoDopo;
}

std::string PaginaTasti::TastoScegli() {
    if (t_.NotaRif > 0) t_.NotaOff(t_.NotaRif);
    const bool bianchi = lblSceltaTasti.Caption() == t_.Testi().capSoloBianchi;
    const std::int16_t numero =
        CasualeIntero(t_.a.casuale, 1, bianchi ? grafieBianche : grafieTasti);
    const TastoChiesto chiesto = GrafiaTasto(numero, bianchi, t_.a.globali.NomiAnglo);
    t_.NotaRif = chiesto.midi;
    t_.NotaOn(t_.NotaRif);
    return std::string(chiesto.nome);
}

bool PaginaTasti::TastoGiusto(std::int16_t indice) {
    NomeChiesto = GrafiaSemplice(NomeChiesto, t_.a.globali.NomiAnglo);
    return NomeChiesto == t_.Nome(indice + scartoIndiceNota);
}

void PaginaTasti::Tasto(std::int16_t indice) {
    if (!TelaioInto::Corre(cmdRicTasto)) return;
    const bool esatta = TastoGiusto(indice);
    t_.punti.Punteggio(esatta);
    if (esatta) TastoDomanda();
}

void PaginaTasti::lblSceltaTasti_Click() {
    const bool bianchi = lblSceltaTasti.Caption() == t_.Testi().capSoloBianchi;
    lblSceltaTasti.Caption = bianchi ? t_.Testi().capTuttiTasti : t_.Testi().capSoloBianchi;
}

}  // namespace corvana
