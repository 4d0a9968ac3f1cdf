#include "composer/composer_layout.h"

#include <array>

#include "composer/play_panel.h"

namespace corvana {

namespace {

/// The places that movements are measured from, in twips, and the texts before a language is
/// applied.
constexpr std::array posti = {
    Posto{"frmComposer", 0, 0, 0, 0, "Composizione melodie e armonie"},
    Posto{"mnuPiano", 0, 0, 0, 0, "Pianoforte"},
    Posto{"mnuOrgano", 0, 0, 0, 0, "Organo"},
    Posto{"mnuPlayRitardo", 0, 0, 0, 0, "Play (ritardo 5 Sec.)"},
    Posto{"Regolo", 75, 945, 360, 3120},
    Posto{"lblCursore", 60, 0, 75, 165},
    Posto{"lblAccidente", 135, 0, 165, 165, "#"},
    Posto{"lblRigaCur", sinistraRigaCur, 0, corsaCursore, 0},
    Posto{"Cursore", sinistraRigaCur, 0, 0, 0},
    Posto{"PausaPer", 0, 0, 0, 0, "1"},
    Posto{"cmdPlay", 0, 0, 0, 0, "Play"},
    Posto{"cmdEseguiFile", 0, 0, 0, 0, "Play"},
    Posto{"cmdDelBm", 0, 0, 0, 0, "Elimina"},
    Posto{"lblTs", 0, 0, 0, 0, "Off", "Metronomo On/Off"},
    Posto{"lblVolS", 0, 0, 0, 0, "100"},
    Posto{"lblVolC", 0, 0, 0, 0, "100"},
    Posto{"lblVolT", 0, 0, 0, 0, "100"},
    Posto{"lblVolB", 0, 0, 0, 0, "100"},
};

}  // namespace

void DisponiComposer(Form& finestra) {
    Disponi(finestra, posti.data(), posti.size());
}

}  // namespace corvana
