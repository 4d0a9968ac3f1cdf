#include "tests/desktop/help_drills.h"

namespace corvana::prova {

namespace {

/// Starts what the button starts, and waits until the prompt has changed: the first question has
/// sounded then, or begins to.
void Comincia(Fotografo& f, const char* bottone) {
    const std::string prima = f.Stato("lblStep").Caption;
    f.Premi(bottone);
    Deve(
        Aspetta([&] { return f.Testo(bottone) == "Stop" && f.Stato("lblStep").Caption != prima; }));
}

void Ferma(Fotografo& f, const char* bottone) {
    f.Premi(bottone);
    Deve(Aspetta([&] { return f.Testo(bottone) == "Start"; }));
}

/// In the drill of that entry of the main menu, whose button is `bottone`.
void Esercizio(Fotografo& f, const char* voce, const char* nome, const char* bottone,
               const std::function<void()>& gioca) {
    f.ScattaSopra(
        nome, "frmInto",
        [&] {
            f.Scegli(voce);
            f.Attendi("frmInto");
            Deve(Aspetta([&] { return f.Di("cmdEsci").isVisible(); }));
            gioca();
        },
        [&] { Ferma(f, bottone); });
}

/// With the answer shown.
void Altezza(Fotografo& f) {
    f.Premi("lblIntoSh");
    Comincia(f, "IntoStart");
    Deve(Aspetta([&] { return !f.Stato("lblIntoNN").Caption.empty(); }));
}

void Accordi(Fotografo& f) {
    f.Premi("lb12");
    f.Premi("lb31");
    Deve(Aspetta([&] { return f.Di("ComdRacStart").isVisible(); }));
    Comincia(f, "ComdRacStart");
}

}  // namespace

void EserciziOrecchio(Fotografo& f) {
    Esercizio(f, "Intonazione", "pitch", "IntoStart", [&] { Altezza(f); });
    Esercizio(f, "mnuRint", "intervals", "CmdIntStart", [&] {
        Comincia(f, "CmdIntStart");
        f.Premi("lblIntSh");
        Deve(Aspetta([&] { return !f.Stato("lblNs").Caption.empty(); }));
    });
    Esercizio(f, "mnuRac", "chords", "ComdRacStart", [&] { Accordi(f); });
    Esercizio(f, "mnuRicTasto", "piano-keys", "cmdRicTasto", [&] { Comincia(f, "cmdRicTasto"); });
    Esercizio(f, "mnuRicTo", "tonalities", "cmdT", [&] {
        f.Premi("cmdT");
        Deve(Aspetta([&] { return f.Testo("cmdT") == "Stop"; }));
    });
}

}  // namespace corvana::prova
