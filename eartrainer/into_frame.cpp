#include "eartrainer/into_frame.h"

#include <utility>

#include "core/octaves.h"

namespace corvana {

TelaioInto::TelaioInto(const Ambiente& ambiente, Form& form, Controllo& esercizio,
                       std::function<Colore()> fondoFermo)
    : a(ambiente), finestra(form), Esercizio(esercizio), fondoFermo_(std::move(fondoFermo)) {}

std::string TelaioInto::Nome(int midi) const {
    return NomeNota(static_cast<std::int16_t>(midi), a.globali.NomiAnglo);
}

void TelaioInto::NotaOn(int nota, std::int16_t velocita) const {
    a.suono.NotaOn(canaleInto, static_cast<std::int16_t>(nota), velocita);
}

void TelaioInto::NotaOff(int nota) const {
    a.suono.NotaOff(canaleInto, static_cast<std::int16_t>(nota));
}

void TelaioInto::sw(int nota, bool acceso) {
    const auto breve = static_cast<std::int16_t>(nota);
    if (SullaTastiera(breve)) tastiera.sw(breve, acceso ? 1 : 0);
}

void TelaioInto::Segna(int tasto, bool acceso) {
    if (tasto >= 0 && tasto < tastiTastiera)
        Accendi(tastiera.lbr[static_cast<std::size_t>(tasto)], acceso);
}

void TelaioInto::SpegniCoppia() {
    NotaOff(IntBassa);
    NotaOff(IntAlta);
    SpegniTastiCoppia();
}

void TelaioInto::SpegniTastiCoppia() {
    if (IntBassa <= 0) return;
    sw(IntBassa, false);
    sw(IntAlta, false);
}

void TelaioInto::TogliEstensione(std::int16_t& basso, std::int16_t& alto) {
    Segna(basso, false);
    Segna(alto, false);
    basso = alto = limiteAssente;
}

void TelaioInto::PonStart(Bottone& start, bool corre) const {
    start.Caption = corre ? "Stop" : "Start";
    start.BackColor = corre ? lblStep.BackColor() : fondoFermo_();
}

}  // namespace corvana
