#include "trainer/range_panel.h"

#include <algorithm>
#include <utility>

#include "trainer/positions.h"
#include "trainer/shown_notes.h"

namespace corvana {

PannelloIntervalli::PannelloIntervalli(Form& finestra, StatoEsercizio& stato, Cornice& regolo,
                                       std::function<void(bool)> pronto)
    : finestra_(finestra), stato_(stato), pronto_(std::move(pronto)) {
    for (const RigaEsercizio& riga : righeEsercizio)
        difficolt.AddItem(std::string(riga.testo));
    difficolt.Click = [this] { difficolt_Click(); };
    regolo.MouseDown = [this](const Evento& e) { Regolo_MouseDown(e.codice, e.shift, e.x, e.y); };
}

void PannelloIntervalli::difficolt_Click() {
    const int indice = difficolt.ListIndex;
    if (indice < 0) return;
    const RigaEsercizio& riga = righeEsercizio.at(static_cast<std::size_t>(indice));
    if (riga.limiteBasso) {
        PonLimiti(riga.limiteBasso, riga.limiteAlto);
        Nascondinote(finestra_);
        VisualizzaLimiti();
    } else {
        difficolt.Seleziona(0);
    }
    if (std::exchange(CaricamentoLista, false)) return;
    pronto_(true);
}

void PannelloIntervalli::Regolo_MouseDown(int /*Button*/, int /*Shift*/, int /*X*/, int Y) {
    if (segni.Completi()) return;
    pronto_(false);
    if (segni.Nessuno()) Nascondinote(finestra_);
    const Posizione* posizione = PosizioneDaRegolo(Y);
    if (!posizione) return;
    VisualizzaNota(finestra_, static_cast<std::uint8_t>(posizione->numero));
    segni = ConSegno(segni, posizione->numero);
    ImpostaIntervallo();
}

void PannelloIntervalli::ImpostaIntervallo() {
    if (segni.PrimoClick == segni.SecondoClick) {
        segni = {};
        Nascondinote(finestra_);
        return;
    }
    PonLimiti(segni.PrimoClick, segni.SecondoClick);
    if (segni.Completi()) pronto_(true);
}

void PannelloIntervalli::SelezionaRigaDiPartenza() {
    if (const auto riga = RigaDiPartenza(stato_.LimiteBasso, stato_.LimiteAlto))
        difficolt.Seleziona(*riga);
    else
        VisualizzaLimiti();
}

void PannelloIntervalli::PonLimiti(int uno, int altro) {
    stato_.LimiteBasso = static_cast<std::uint8_t>(std::min(uno, altro));
    stato_.LimiteAlto = static_cast<std::uint8_t>(std::max(uno, altro));
}

void PannelloIntervalli::VisualizzaLimiti() {
    VisualizzaNota(finestra_, stato_.LimiteAlto);
    VisualizzaNota(finestra_, stato_.LimiteBasso);
}

}  // namespace corvana
