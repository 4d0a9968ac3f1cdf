#include <array>

#include "core/language_targets.h"

namespace corvana {

namespace {

using T = TestiLingua;
constexpr Cosa testo = Cosa::Testo;
constexpr Cosa consiglio = Cosa::Consiglio;
constexpr Cosa riga = Cosa::Riga;

constexpr Bersaglio Stringa(int id, std::string T::*variabile) {
    return {id, Cosa::Stringa, {}, 0, variabile};
}

constexpr std::array bersagli = {
    Bersaglio{0, testo, "CorvanaMainF"},
    Bersaglio{1, testo, "cmdEsci"},
    Bersaglio{2, testo, "Esci"},
    Bersaglio{3, testo, "es"},
    Bersaglio{4, testo, "mnuCorvana"},
    Bersaglio{5, testo, "mnuRicTasto"},
    Bersaglio{6, testo, "Intonazione"},
    Bersaglio{6, consiglio, "ToolButton1"},
    Bersaglio{7, testo, "mnuRint"},
    Bersaglio{8, testo, "mnuRac"},
    Bersaglio{9, testo, "mnuRicTo"},
    Bersaglio{10, testo, "mnuComposer"},
    Bersaglio{10, consiglio, "ToolButton2"},
    Bersaglio{11, testo, "mnuPromemoria"},
    Bersaglio{11, consiglio, "ToolButton4"},
    // The list's separators have no text of their own in the file.
    Bersaglio{12, riga, "difficolt", 0},
    Bersaglio{13, riga, "difficolt", 1},
    Bersaglio{14, riga, "difficolt", 2},
    Bersaglio{15, riga, "difficolt", 3},
    Bersaglio{16, riga, "difficolt", 5},
    Bersaglio{17, riga, "difficolt", 6},
    Bersaglio{18, riga, "difficolt", 7},
    Bersaglio{19, riga, "difficolt", 8},
    Bersaglio{20, riga, "difficolt", 10},
    Bersaglio{21, consiglio, "difficolt"},
    Bersaglio{22, testo, "Intervallo"},
    Bersaglio{23, consiglio, "Regolo"},
    Bersaglio{24, consiglio, "lblMn"},
    Bersaglio{25, consiglio, "conta"},
    Bersaglio{26, consiglio, "er"},
    Stringa(28, &T::TxtRisposteEsatte),
    Stringa(29, &T::TxtRisposteErrate),
    Stringa(30, &T::TxtRisposteDate),
    Stringa(31, &T::TxtPercentuale),
    Bersaglio{31, testo, "PercEs"},
    Bersaglio{31, consiglio, "PercEs"},
    Stringa(32, &T::TxtTempoImpiegato),
    Stringa(33, &T::TxtNoteMostrate),
    Stringa(34, &T::TxtVelocita),
    Bersaglio{34, testo, "Velocità"},
    Bersaglio{34, consiglio, "Slider1"},
    Bersaglio{35, testo, "lblAuto1"},
    Bersaglio{36, consiglio, "lblAuto2"},
    Bersaglio{37, testo, "Risorse"},
    Bersaglio{38, testo, "mnuMetro"},
    Bersaglio{38, consiglio, "ToolButton3"},
    Bersaglio{39, testo, "Opzioni"},
    Bersaglio{40, testo, "Suono1"},
    Bersaglio{41, testo, "Suono2"},
    Bersaglio{42, testo, "mnuOrgano"},
    Bersaglio{43, testo, "mnuPiano"},
    Bersaglio{44, testo, "mnuNormale"},
    Bersaglio{45, testo, "mnuAutomatico"},
    Bersaglio{45, consiglio, "ToolButton6"},
    Bersaglio{46, testo, "mnuLingua"},
    Bersaglio{47, testo, "mnuIt"},
    Bersaglio{48, testo, "mnuEn"},
    Bersaglio{49, testo, "mnuAiuto"},
    Bersaglio{49, consiglio, "ToolButton7"},
    Bersaglio{50, testo, "mnuVersione"},
    Bersaglio{51, testo, "frmMetroC"},
    Bersaglio{52, consiglio, "lblCloseMetro"},
    Bersaglio{53, consiglio, "lblTs"},
    Stringa(54, &T::TipX1),
    Stringa(55, &T::TipX2),
    Bersaglio{56, consiglio, "cmdSetup"},
    Bersaglio{78, consiglio, "ToolButton5"},
    Bersaglio{167, testo, "mnuSs"},
};

}  // namespace

std::span<const Bersaglio> BersagliPrincipali() {
    return bersagli;
}

}  // namespace corvana
