#include "tests/composer/careless_editing.h"

#include <array>

namespace corvana::prova {

namespace {

/// So many times of a hundred, on one of the controls of that name, with a value up to that one.
struct AbitudineEditor {
    int suCento;
    const char* controllo;
    int ultimo;  ///< number of the last of them, -1 for a single one
    Fatto fatto = Fatto::Click;
    int massimo = 0;
};

constexpr std::array<AbitudineEditor, 21> abitudiniEditor = {
    {{6, "cmdSimbNote", 6},
     {12, "cmdAttrNota", 5},
     {3, "lblAt", -1},
     {2, "ckConsAtt", -1, Fatto::Click, 1},
     {2, "Label4", -1},
     {2, "Label4", -1, Fatto::DblClick},
     {1, "PausaPer", -1, Fatto::Change},
     {2, "PausaPer", -1, Fatto::LostFocus},
     {8, "lb", 59, Fatto::MouseDown},
     {4, "lb", 59, Fatto::MouseUp},
     {12, "lb", 59, Fatto::DblClick},
     {8, "cmdInsNota", -1},
     {4, "cmdInsPausa", -1},
     {4, "cmdCanc", -1},
     {14, "lblStep", 1},
     {3, "cmbDurata", -1, Fatto::Click, 13},
     {2, "cmbPer", -1, Fatto::Click, 11},
     {2, "cmbAttributi", -1, Fatto::Click, 4},
     {4, "cmdModifica", 0},
     {3, "cmdInsertNote", -1},
     {2, "cmdCancNota", -1}}};

}  // namespace

std::pair<std::string, Evento> GestoDiRedazione(const std::function<int(int, int)>& tra) {
    int dado = tra(0, 99);
    const auto* scelta = abitudiniEditor.begin();
    while (dado >= scelta->suCento && scelta + 1 != abitudiniEditor.end())
        dado -= (scelta++)->suCento;
    Evento e;
    e.fatto = scelta->fatto;
    e.valore = tra(0, scelta->massimo);
    e.testo = std::to_string(tra(-2, 20));
    std::string controllo = scelta->controllo;
    if (scelta->ultimo >= 0) controllo += std::to_string(tra(0, scelta->ultimo));
    return {controllo, e};
}

}  // namespace corvana::prova
