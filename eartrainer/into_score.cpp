#include "eartrainer/into_score.h"

#include <algorithm>
#include <limits>

#include "core/text.h"

namespace corvana {

namespace {

constexpr long contoMassimo = std::numeric_limits<std::int16_t>::max();

}  // namespace

void PunteggioInto::Punteggio(bool esatta) {
    Etichetta& contata = esatta ? txtResatte : txtRerrate;
    contata.Caption = std::to_string(NumeroIntero(contata.Caption(), 0, contoMassimo - 1) + 1);
    const long esatte = NumeroIntero(txtResatte.Caption(), 0, contoMassimo);
    const long errate = NumeroIntero(txtRerrate.Caption(), 0, contoMassimo);
    std::string percento = Percento(esatte, esatte + errate);
    std::replace(percento.begin(), percento.end(), '.', globali_.SeparatoreDecimale);
    lblPerc.Caption = percento;
    lblOk.Visible = esatta;
    lblKo.Visible = !esatta;
}

void PunteggioInto::Azzera() {
    for (Etichetta* etichetta : {&txtResatte, &txtRerrate, &lblPerc})
        etichetta->Caption = "0";
}

void PunteggioInto::NascondiEsito() {
    lblOk.Visible = false;
    lblKo.Visible = false;
}

}  // namespace corvana
