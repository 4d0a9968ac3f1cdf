// On which note the intervals stand: one of the learner's, or drawn from a range.
#include "eartrainer/interval_page.h"

namespace corvana {

void PaginaIntervalli::CollegaRadici() {
    struct Corsa {
        Barra& barra;
        int min, max;
    };
    for (const auto& [barra, min, max] : {Corsa{SelIntRoot, 36, 82}, Corsa{RifInf, 36, radiceZero},
                                          Corsa{RifSup, radiceZero, 82}}) {
        barra.Min = min;
        barra.Max = max;
        barra.Value = radiceZero;
    }
    SelIntRoot.Change = [this] { SelIntRoot_Change(); };
    const auto collega = [this](Barra& barra, Etichetta& nome) {
        barra.Change = [this, &barra, &nome] {
            nome.Caption = t_.Nome(barra.Value);
            ppSuonaRadice(barra.Value);
        };
        nome.MouseDown = [this](const Evento&) { MostraEstensioneRadici(true); };
        nome.MouseUp = [this](const Evento&) { MostraEstensioneRadici(false); };
    };
    collega(RifInf, lblRifInf);
    collega(RifSup, lblRifSup);
}

void PaginaIntervalli::lblFv_Click() {
    const bool variabile = lblFv.Caption() == t_.Testi().capRifFisso;
    lblFv.Caption = variabile ? t_.Testi().capRifVariabile : t_.Testi().capRifFisso;
    if (variabile) {
        lblRifInf.Caption = t_.Nome(RifInf.Value);
        lblRifSup.Caption = t_.Nome(RifSup.Value);
    } else {
        IntRadice = static_cast<std::int16_t>(SelIntRoot.Value - radiceZero);
    }
    frmRifVar.Visible = variabile;
    IntRoot.Visible = !variabile;
    SelIntRoot.Visible = !variabile;
}

void PaginaIntervalli::EstraiRadice() {
    const auto midi = CasualeIntero(t_.a.casuale, static_cast<std::int16_t>(RifInf.Value()),
                                    static_cast<std::int16_t>(RifSup.Value()));
    IntRadice = static_cast<std::int16_t>(midi - radiceZero);
}

void PaginaIntervalli::SelIntRoot_Change() {
    PrendiRadice();
    ppSuonaRadice(SelIntRoot.Value);
}

/// The root that the bar says, and its name.
void PaginaIntervalli::PrendiRadice() {
    IntRadice = static_cast<std::int16_t>(SelIntRoot.Value - radiceZero);
    IntRoot.Caption = t_.Nome(SelIntRoot.Value);
}

void PaginaIntervalli::ppSuonaRadice(int nota) {
    t_.sw(nota, true);
    Suona(nota);
    t_.sw(nota, false);
}

void PaginaIntervalli::MostraEstensioneRadici(bool mostra) {
    t_.sw(RifInf.Value, mostra);
    t_.sw(RifSup.Value, mostra);
}

}  // namespace corvana
