#include "eartrainer/chord_page.h"

#include <algorithm>
#include <utility>

#include "core/octaves.h"
#include "eartrainer/range_steps.h"

namespace corvana {

namespace {

/// Silence between two chords, in seconds.
constexpr double dopoAccordo = 0.3;

}  // namespace

PaginaAccordi::PaginaAccordi(TelaioInto& telaio, std::function<Colore()> neutro)
    : t_(telaio), neutro_(std::move(neutro)) {
    for (int tipo = 0; tipo < static_cast<int>(tipiAccordo.size()); ++tipo) {
        const std::string indice = std::to_string(tipo);
        Etichetta& risposta = TipoAcc.emplace_back(t_.finestra, "TipoAcc" + indice, &frmRacc);
        risposta.Caption = tipiAccordo.at(static_cast<std::size_t>(tipo)).nome;
        risposta.Click = [this, tipo] { TipoAcc_Click(tipo); };
        Etichetta& striscia = EsclTa.emplace_back(t_.finestra, "EsclTa" + indice, &frmRacc);
        striscia.BackColor = coloreAmmesso;
        striscia.Click = [this, tipo] { EsclTa_Click(tipo); };
    }
    ComdRacStart.Click = [this] { ComdRacStart_Click(); };
    cmdRes.Click = [this] { cmdRes_Click(); };
    lblRipta.Click = [this] { lblRipta_Click(); };
    lblVt.Click = lblModoVt.Click = [this] { lblVt_Click(); };
}

void PaginaAccordi::Carica() {
    StatoInto& stato = t_.Stato();
    stato.AccBasso = stato.AccAlto = limiteAssente;
    AccPronto = false;
    for (Etichetta& striscia : EsclTa)
        striscia.ToolTipText = t_.Testi().ttAccAmmesso;
    lblVt.Caption = t_.Testi().capMostraTasti;
    lblVt.ToolTipText = t_.Testi().ttMostraTasti;
}

void PaginaAccordi::Entra() {
    StatoInto& stato = t_.Stato();
    AccPronto = false;
    t_.TogliEstensione(stato.AccBasso, stato.AccAlto);
    ComdRacStart.Visible = false;
    cmdRes.Visible = false;
    t_.cmdEsci.Visible = true;
    t_.a.suono.SuonaNota(fermaNota);
    t_.TogliEstensione(stato.IntoBasso, stato.IntoAlto);
    t_.IntInCorso = false;
    t_.SpegniCoppia();
    t_.lblStep.Caption = t_.Testi().msgPrimoLimite;
}

void PaginaAccordi::Tasto(std::int16_t indice) {
    if (!AccPronto)
        AccFissaEstensione(indice);
    else if (!TelaioInto::Corre(ComdRacStart))
        t_.a.riquadri.MsgBox(t_.Testi().msgPremiStart);
}

void PaginaAccordi::AccFissaEstensione(std::int16_t indice) {
    StatoInto& stato = t_.Stato();
    const auto [dopo, esito] = ClicSuFondamentali({stato.AccBasso, stato.AccAlto}, indice);
    if (esito == EsitoClic::TroppoAlto) return t_.a.riquadri.MsgBox(t_.Testi().msgAccTroppoAlto);
    stato.AccBasso = dopo.basso;
    stato.AccAlto = dopo.alto;
    t_.Segna(indice, true);
    AccPronto = esito == EsitoClic::Completa;
    t_.lblStep.Caption = AccPronto ? t_.Testi().msgPremiStart : t_.Testi().msgSecondoLimite;
    ComdRacStart.Visible = AccPronto;
}

void PaginaAccordi::cmdRes_Click() {
    AccPronto = false;
    t_.TogliEstensione(t_.Stato().AccBasso, t_.Stato().AccAlto);
    t_.lblStep.Caption = t_.Testi().msgFermato;
}

void PaginaAccordi::ComdRacStart_Click() {
    // Both prompts say that there is no range.
    const std::string& passo = t_.lblStep.Caption();
    if (passo == t_.Testi().msgSecondoLimite || passo == t_.Testi().msgFermato) return;
    TelaioInto::Corre(ComdRacStart) ? Ferma() : Avvia();
}

void PaginaAccordi::Ferma() {
    t_.PonStart(ComdRacStart, false);
    t_.Esercizio.Enabled = true;
    AccFerma();
    t_.lblStep.Caption = std::string();
    Neutralizza();
    t_.cmdEsci.Visible = true;
    cmdRes.Visible = true;
}

void PaginaAccordi::Avvia() {
    t_.lblStep.Caption = t_.Testi().msgAcc;
    t_.PonStart(ComdRacStart, true);
    t_.Esercizio.Enabled = false;
    t_.punti.Azzera();
    t_.cmdEsci.Visible = false;
    cmdRes.Visible = false;
    if (!AccCeNe()) return;
    AccScegli();
    AccSuona();
}

bool PaginaAccordi::AccCeNe() const {
    return std::find(AccEscluso.begin(), AccEscluso.end(), false) != AccEscluso.end();
}

void PaginaAccordi::AccScegli() {
    StatoInto& stato = t_.Stato();
    AccFerma();
    Neutralizza();
    stato.AccTipo = EstraiAmmesso(t_.a.casuale, tipiAccordo.size(),
                                  [this](std::size_t tipo) { return !AccEscluso.at(tipo); });
    const int fondamentale =
        CasualeIntero(t_.a.casuale, stato.AccBasso, stato.AccAlto) + scartoIndiceNota;
    stato.AccNota = NoteAccordo(static_cast<std::int16_t>(fondamentale), stato.AccTipo);
}

void PaginaAccordi::AccSuona() {
    if (!ConTasti()) return;
    if (lblVt.Caption() == t_.Testi().capMostraTasti) {
        MostraTasti(true);
        Risposta().BackColor = coloreSvelato;
    }
    for (const std::int16_t nota : t_.Stato().AccNota)
        t_.NotaOn(nota);
}

void PaginaAccordi::AccFerma() {
    if (!ConTasti()) return;
    MostraTasti(false);
    for (const std::int16_t nota : t_.Stato().AccNota)
        t_.NotaOff(nota);
    t_.a.suono.Attendi(dopoAccordo);
}

bool PaginaAccordi::ConTasti() const {
    const auto& note = t_.Stato().AccNota;
    return std::all_of(note.begin(), note.end(), SullaTastiera);
}

void PaginaAccordi::MostraTasti(bool mostra) {
    for (const std::int16_t nota : t_.Stato().AccNota)
        t_.sw(nota, mostra);
}

void PaginaAccordi::Neutralizza() {
    Risposta().BackColor = neutro_();
}

void PaginaAccordi::TipoAcc_Click(int tipo) {
    if (!TelaioInto::Corre(ComdRacStart) || !AccCeNe()) return;
    const bool esatta = tipo == t_.Stato().AccTipo;
    t_.punti.Punteggio(esatta);
    if (!esatta) return;
    AccScegli();
    AccSuona();
}

void PaginaAccordi::lblRipta_Click() {
    if (TelaioInto::Corre(ComdRacStart) && AccCeNe()) AccSuona();
}

void PaginaAccordi::EsclTa_Click(int tipo) {
    const auto quale = static_cast<std::size_t>(tipo);
    const bool escluso = !AccEscluso.at(quale);
    AccEscluso.at(quale) = escluso;
    EsclTa[quale].BackColor = escluso ? coloreEscluso : coloreAmmesso;
    EsclTa[quale].ToolTipText = escluso ? t_.Testi().ttAccEscluso : t_.Testi().ttAccAmmesso;
}

void PaginaAccordi::lblVt_Click() {
    const bool mostrava = lblVt.Caption() == t_.Testi().capMostraTasti;
    lblVt.Caption = mostrava ? t_.Testi().capNascondiTasti : t_.Testi().capMostraTasti;
    lblVt.ToolTipText = mostrava ? t_.Testi().ttNascondiTasti : t_.Testi().ttMostraTasti;
}

}  // namespace corvana
