#include "eartrainer/tonality_page.h"

#include <algorithm>

namespace corvana {

namespace {

constexpr std::array<std::size_t, 8> ammesseAllEntrata = {0, 2, 5, 7, 12, 14, 16, 19};
constexpr std::int16_t velocitaFigura = 127;

}  // namespace

PaginaTonalita::PaginaTonalita(TelaioInto& telaio) : t_(telaio) {
    for (int i = 0; i < static_cast<int>(tonalita); ++i) {
        const std::string indice = std::to_string(i);
        Etichetta& striscia = lblT.emplace_back(t_.finestra, "lblT(" + indice + ")", &frmTo);
        striscia.BackColor = coloreEscluso;
        striscia.Click = [this, i] { lblT_Click(i); };
        T.emplace_back(t_.finestra, "T" + indice, &frmTo).Click = [this, i] { T_Click(i); };
    }
    ScriviNomi(false);
    cmdT.Click = [this] { cmdT_Click(); };
    lblRipeti.Click = [this] { lblRipeti_Click(); };
    lblTsh.Click = [this] { lblTsh_Click(); };
}

void PaginaTonalita::Carica() {
    ColoreMaggiori = T.front().BackColor;
    ColoreMinori = T.at(tonalitaMaggiori).BackColor;
    for (Etichetta& striscia : lblT)
        striscia.ToolTipText = t_.Testi().ttToEsclusa;
}

void PaginaTonalita::Entra() {
    for (const std::size_t indice : ammesseAllEntrata)
        Ammetti(indice, true);
}

void PaginaTonalita::Ammetti(std::size_t indice, bool ammessa) {
    ToAmmessa.at(indice) = ammessa;
    lblT[indice].BackColor = ammessa ? coloreAmmesso : coloreEscluso;
    lblT[indice].ToolTipText = ammessa ? t_.Testi().ttToAmmessa : t_.Testi().ttToEsclusa;
}

void PaginaTonalita::lblT_Click(int indice) {
    if (TelaioInto::Corre(cmdT)) return;
    const auto quale = static_cast<std::size_t>(indice);
    Ammetti(quale, !ToAmmessa.at(quale));
    // A run can't begin with nothing to ask.
    cmdT.Enabled = std::find(ToAmmessa.begin(), ToAmmessa.end(), true) != ToAmmessa.end();
}

void PaginaTonalita::cmdT_Click() {
    const bool avvia = !TelaioInto::Corre(cmdT);
    t_.PonStart(cmdT, avvia);
    t_.Esercizio.Enabled = !avvia;
    if (avvia) {
        t_.punti.Azzera();
        ToDomanda();
    } else {
        t_.cmdEsci.Enabled = true;
        ToInCorso = false;
    }
}

void PaginaTonalita::ToDomanda() {
    if (Aiuto()) Cella().BackColor = ToMaggiore ? ColoreMaggiori : ColoreMinori;
    bool& ripeti = t_.Stato().RipetiNota;
    if (!ripeti)
        ToIndice = EstraiAmmesso(t_.a.casuale, tonalita,
                                 [this](std::size_t indice) { return ToAmmessa.at(indice); });
    ripeti = false;
    const auto indice = static_cast<std::size_t>(ToIndice);
    ToMaggiore = Maggiore(indice);
    ToInCorso = true;
    ToSuona(Tonica(indice), ToMaggiore);
    ToInCorso = false;
    if (Aiuto()) Cella().BackColor = coloreSvelato;
}

void PaginaTonalita::ToSuona(std::int16_t tonica, bool maggiore) {
    for (const NotaFigura& nota : FiguraTonalita(tonica, maggiore)) {
        t_.NotaOn(nota.nota, velocitaFigura);
        if (Aiuto()) t_.sw(nota.nota, true);
        t_.a.suono.Attendi(nota.durata);
        t_.NotaOff(nota.nota);
        if (Aiuto()) t_.sw(nota.nota, false);
        t_.a.suono.Attendi(nota.pausa);
    }
}

void PaginaTonalita::T_Click(int indice) {
    if (!TelaioInto::Corre(cmdT)) return;
    const bool esatta = indice == ToIndice;
    t_.punti.Punteggio(esatta);
    if (esatta) ToDomanda();
}

void PaginaTonalita::lblRipeti_Click() {
    if (!TelaioInto::Corre(cmdT)) return;
    t_.Stato().RipetiNota = true;
    ToDomanda();
}

void PaginaTonalita::lblTsh_Click() {
    const bool mostra = lblTsh.Caption() == "?";
    lblTsh.Caption = mostra ? "" : "?";
    if (mostra && TelaioInto::Corre(cmdT)) Cella().BackColor = coloreSvelato;
    for (std::size_t i = 0; i < T.size() && !mostra; ++i)
        T[i].BackColor = Maggiore(i) ? ColoreMaggiori : ColoreMinori;
}

void PaginaTonalita::ScriviNomi(bool anglo) {
    for (std::size_t i = 0; i < T.size(); ++i)
        T[i].Caption = NomeTonalita(i, anglo);
}

}  // namespace corvana
