#include "trainer/answer_panel.h"

namespace corvana {

namespace {

constexpr std::array<const char*, numeroRisposte> nomiLatini = {"DO",  "RE", "MI", "FA",
                                                                "SOL", "LA", "SI"};
constexpr std::array<const char*, numeroRisposte> nomiAnglo = {"C", "D", "E", "F", "G", "A", "B"};

}  // namespace

PannelloRisposte::PannelloRisposte(Form& finestra, const std::function<void(int)>& dai)
    : finestra_(finestra) {
    int risposta = 0;
    for (Bottone* bottone : Bottoni()) {
        bottone->BackColor = coloreRisposta;
        bottone->Click = [dai, r = ++risposta] { dai(r); };
    }
}

std::array<Bottone*, numeroRisposte> PannelloRisposte::Bottoni() {
    return {&pdo, &pre, &pmi, &pfa, &psol, &pla, &psi};
}

void PannelloRisposte::Abilita(bool abilita) {
    for (Bottone* bottone : Bottoni())
        bottone->Enabled = abilita;
}

void PannelloRisposte::PonNomi(bool anglo) {
    const auto& nomi = anglo ? nomiAnglo : nomiLatini;
    const auto bottoni = Bottoni();
    for (std::size_t i = 0; i < bottoni.size(); ++i)
        bottoni.at(i)->Caption = nomi.at(i);
}

}  // namespace corvana
