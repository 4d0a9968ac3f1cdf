#include "utilities/instruments_layout.h"

#include <array>

#include "utilities/instruments.h"

namespace corvana {

namespace {

constexpr std::array postiStrumenti = {
    Posto{"frmStrum", 0, 0, 4245, 3150, "Corvana"},
    Posto{"List1", 225, 225, 2850, 2700, {}, {}, "nome:frmStrum"},
    Posto{"cmdTest", 3300, 300, 720, 720, {}, "Test", "icona:prova"},
    Posto{"cmdEscibg", 3195, 2475, 825, 420, {}, {}, "pulsante dietro"},
    Posto{"cmdEsci", 3195, 2475, 825, 420, "O K", {}, "pulsante"},
    Posto{"frmVoci", 225, 225, 3795, 630, {}, {}, "pannello"},
    Posto{"bgVoci", 0, 0, 3795, 630, {}, {}, "pannello"},
    Posto{"VoceAttiva0", 90, 105, 375, 420, "S", " Soprano ", "voce"},
    Posto{"VoceAttiva1", 495, 105, 375, 420, "C", "Clicca per inserire il contralto", "voce"},
    Posto{"VoceAttiva2", 900, 105, 375, 420, "T", "Clicca per inserire il tenore", "voce"},
    Posto{"VoceAttiva3", 1305, 105, 375, 420, "B", "Clicca per inserire il basso", "voce"},
    Posto{"lblVoceAttiva", 1725, 105, 1110, 420, {}, {}, "centro mezzo"},
    Posto{"cmdPlaybg", 2865, 105, 840, 420, {}, {}, "pulsante dietro"},
    Posto{"cmdPlaySstru", 2865, 105, 840, 420, "Play", {}, "pulsante"},
};

/// With the voices above.
constexpr int listaSotto = 960, listaCorta = 1965;
constexpr int provaSotto = 1035;

}  // namespace

void DisponiStrumenti(frmStrum& f) {
    Disponi(f, postiStrumenti.data(), postiStrumenti.size());
}

void FaPostoAlleVoci(frmStrum& f) {
    f.List1.Top = listaSotto;
    f.List1.Height = listaCorta;
    f.cmdTest.Top = provaSotto;
}

}  // namespace corvana
