// Which page is in front, and what a click on the keyboard means there.
#include "eartrainer/into.h"

namespace corvana {

std::array<frmInto::Foglio, pagineInto.size()> frmInto::Fogli() {
    return {{{intonazione.frmInto2, &frmInto::mnuNotA_Click},
             {intervalli.FrmIntervalli, &frmInto::mnuRint_Click},
             {accordi.frmRacc, &frmInto::mnuRicTa_Click},
             {tasti.frmRicTasto, &frmInto::mnuRicTasto_Click},
             {tonalita.frmTo, &frmInto::mnuRicTo_Click}}};
}

void frmInto::MostraPagina(PaginaInto pagina) {
    telaio.tastiera.SpegniBarre();
    a_.globali.PaginaInto = DopoIngresso(a_.globali.PaginaInto, pagina);
    HelpContextID = AiutoDi(pagina);
    const auto fogli = Fogli();
    for (const PaginaInto altra : pagineInto)
        fogli.at(static_cast<std::size_t>(altra)).cornice.Visible = altra == pagina;
    if (pagina != PaginaInto::Intonazione) intonazione.Nascondi();
    if (pagina != PaginaInto::Tonalita) telaio.punti.Azzera();
}

void frmInto::mnuNotA_Click() {
    MostraPagina(PaginaInto::Intonazione);
    intonazione.Entra();
}

void frmInto::mnuRint_Click() {
    MostraPagina(PaginaInto::Intervalli);
    intervalli.Entra();
}

void frmInto::mnuRicTa_Click() {
    MostraPagina(PaginaInto::Accordi);
    accordi.Entra();
}

void frmInto::mnuRicTasto_Click() {
    MostraPagina(PaginaInto::Tasti);
    tasti.Entra(menu.mnuRicTasto.Caption);
}

void frmInto::mnuRicTo_Click() {
    // Its cells are laid out in the other notation.
    if (a_.globali.NomiAnglo) mnuNotAnglo_Click();
    MostraPagina(PaginaInto::Tonalita);
    tonalita.Entra();
}

void frmInto::lb_Click(std::int16_t indice) {
    if (intervalli.FrmIntervalli.Visible || tonalita.frmTo.Visible) return;
    if (tasti.frmRicTasto.Visible) return tasti.Tasto(indice);
    if (accordi.frmRacc.Visible) return accordi.Tasto(indice);
    intonazione.Tasto(indice);
}

}  // namespace corvana
