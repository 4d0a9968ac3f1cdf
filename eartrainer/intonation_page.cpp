#include "eartrainer/intonation_page.h"

namespace corvana {

namespace {

// What two answers of one kind in a row look like.
constexpr Colore coloreKo1 = Rgb(241, 107, 201), coloreKo2 = Rgb(247, 202, 233);
constexpr Colore coloreOk1 = Rgb(192, 247, 0), coloreOk2 = Rgb(0, 191, 11);
constexpr Colore tastiNeriPallidi = Rgb(213, 241, 237);

// In seconds; the question's length is the sound layer's.
constexpr double durataRiferimento = 1.2;
constexpr double dopoRiferimento = 0.1;

constexpr std::int16_t prossimaDomanda = -2;

}  // namespace

PaginaIntonazione::PaginaIntonazione(TelaioInto& telaio) : t_(telaio) {
    IntoStart.Click = [this] { IntoStart_Click(); };
    cmdReimposta.Click = [this] { cmdReimposta_Click(); };
    lblRipInto.Click = [this] { lblRipInto_Click(); };
    lblIntoSh.Click = [this] { lblIntoSh_Click(); };
    lblMod.Click = Label6.Click = [this] { lblMod_Click(); };
    lblSolotb.Click = lblT1.Click = lblT2.Click = [this] { lblSolotb_Click(); };
}

void PaginaIntonazione::Carica() {
    Nascondi();
    IntoPronto = false;
    t_.Stato().ConRiferimento = 1;
    lblMod.Caption = "/";
    lblMod.ToolTipText = t_.Testi().ttRifSi;
    t_.Stato().IntoBasso = t_.Stato().IntoAlto = limiteAssente;
    IntoEstensioneOk = IntoRifOk = false;
    for (Etichetta* etichetta : {&lblSolotb, &lblT1, &lblT2})
        etichetta->ToolTipText = " " + t_.Testi().capTuttiTasti + " ";
}

void PaginaIntonazione::Nascondi() {
    frInto.Visible = false;
    IntoStart.Visible = false;
    cmdReimposta.Visible = false;
}

void PaginaIntonazione::Entra() {
    StatoInto& stato = t_.Stato();
    t_.IntInCorso = false;
    IntoPronto = IntoFermato = IntoEstensioneOk = false;
    stato.IntoBasso = stato.IntoAlto = limiteAssente;
    t_.SpegniCoppia();
    t_.TogliEstensione(stato.AccBasso, stato.AccAlto);
    IntoRipristina();
}

void PaginaIntonazione::Tasto(std::int16_t indice) {
    if (t_.IntInCorso || IntoFermato) return;
    if (!IntoPronto)
        IntoFissaEstensione(indice);
    else if (t_.a.suono.IntoAttesa)
        Giudica(indice);
}

void PaginaIntonazione::IntoStart_Click() {
    TelaioInto::Corre(IntoStart) ? Ferma() : Avvia();
}

void PaginaIntonazione::Avvia() {
    t_.PonStart(IntoStart, true);
    t_.Esercizio.Enabled = false;
    IntoFermato = false;
    IntoPronto = true;
    frInto.Visible = true;
    cmdReimposta.Visible = false;
    t_.punti.Azzera();
    t_.lblStep.Caption = t_.Testi().msgAscolta;
    IntoDomanda();
}

void PaginaIntonazione::Ferma() {
    t_.PonStart(IntoStart, false);
    t_.Esercizio.Enabled = true;
    IntoFermato = true;
    IntoRifOk = false;
    cmdReimposta.Visible = true;
    t_.cmdEsci.Visible = true;
    t_.lblStep.Caption = t_.Testi().msgFermato;
    t_.tastiera.SpegniTasti();
    t_.a.suono.SuonaNota(fermaNota);
}

void PaginaIntonazione::IntoDomanda() {
    StatoInto& stato = t_.Stato();
    if (ConRiferimento()) {
        t_.a.pompa.PompaEventi();
        if (t_.Chiusa()) {
            stato.RipetiNota = false;
            return;
        }
        SuonaRiferimento();
    }
    // The events may have taken the range.
    if (stato.RipetiNota || Limiti().HaDaChiedere(stato.SoloBianchi))
        t_.a.suono.SuonaNota(prossimaDomanda);
}

void PaginaIntonazione::SuonaRiferimento() {
    t_.NotaOn(t_.NotaRif);
    const bool mostra = NomeInVista();
    if (mostra) {
        t_.sw(t_.NotaRif, true);
        lblIntoNN.Caption = t_.Nome(t_.NotaRif);
    }
    t_.a.suono.Attendi(durataRiferimento);
    t_.NotaOff(t_.NotaRif);
    if (mostra) t_.sw(t_.NotaRif, false);
    t_.a.suono.Attendi(dopoRiferimento);
}

std::int16_t PaginaIntonazione::ScegliIntoNota() {
    StatoInto& stato = t_.Stato();
    const auto estrai = [&] {
        stato.IntoNota = EstraiIntero(t_.a.casuale, stato.IntoBasso, stato.IntoAlto);
    };
    if (!stato.RipetiNota) {
        estrai();
        while (stato.SoloBianchi && TastoNero(stato.IntoNota))
            estrai();
    }
    stato.RipetiNota = false;
    return stato.IntoNota;
}

void PaginaIntonazione::MostraNome(std::int16_t intoNota) {
    lblIntoNN.Caption = t_.Nome(intoNota + scartoIndiceNota);
}

void PaginaIntonazione::Giudica(std::int16_t indice) {
    const bool esatta = indice == t_.Stato().IntoNota;
    t_.punti.Punteggio(esatta);
    bool& alterna = esatta ? OkAlterna : KoAlterna;
    alterna = !alterna;
    if (!esatta) {
        t_.punti.lblKo.BackColor = alterna ? coloreKo1 : coloreKo2;
        return;
    }
    t_.punti.lblOk.BackColor = alterna ? coloreOk1 : coloreOk2;
    IntoDomanda();
}

void PaginaIntonazione::lblRipInto_Click() {
    if (!TelaioInto::Corre(IntoStart)) return;
    t_.Stato().RipetiNota = true;
    IntoDomanda();
}

void PaginaIntonazione::lblIntoSh_Click() {
    const bool mostra = lblIntoSh.Caption() == "?";
    lblIntoSh.Caption = mostra ? "" : "?";
    lblIntoNN.Visible = mostra;
    if (mostra) MostraNome(t_.Stato().IntoNota);
}

void PaginaIntonazione::lblMod_Click() {
    const bool con = !ConRiferimento();
    t_.Stato().ConRiferimento = con ? 1 : 0;
    lblMod.Caption = con ? "/" : "o";
    lblMod.ToolTipText = con ? t_.Testi().ttRifSi : t_.Testi().ttRifNo;
}

void PaginaIntonazione::lblSolotb_Click() {
    bool& solo = t_.Stato().SoloBianchi;
    solo = !solo;
    for (Etichetta* nero : {&lblT1, &lblT2})
        nero->BackColor = solo ? tastiNeriPallidi : 0;
    const std::string& testo = solo ? t_.Testi().capSoloBianchi : t_.Testi().capTuttiTasti;
    for (Etichetta* etichetta : {&lblSolotb, &lblT1, &lblT2})
        etichetta->ToolTipText = " " + testo + " ";
}

}  // namespace corvana
