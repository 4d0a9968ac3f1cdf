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

struct Prova {
    const char* voce;     ///< entry of the main menu
    const char* pagina;   ///< the frame of its page
    const char* bottone;  ///< starts and stops it
    const char* nome;     ///< the picture's
};

void Esercizio(Fotografo& f, const Prova& prova, const std::function<void()>& gioca) {
    const auto apri = [&] {
        f.Scegli(prova.voce);
        f.Attendi("frmInto");
        Deve(Aspetta([&] { return f.Di(prova.pagina).isVisible(); }));
        gioca();
    };
    f.ScattaSopra(prova.nome, "frmInto", apri, [&] { Ferma(f, prova.bottone); });
}

/// With the answer shown.
void Altezza(Fotografo& f) {
    Comincia(f, "IntoStart");
    f.Premi("lblIntoSh");
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
    Esercizio(f, {"Intonazione", "frmInto2", "IntoStart", "pitch"}, [&] { Altezza(f); });
    Esercizio(f, {"mnuRint", "FrmIntervalli", "CmdIntStart", "intervals"}, [&] {
        Comincia(f, "CmdIntStart");
        f.Premi("lblIntSh");
        Deve(Aspetta([&] { return !f.Stato("lblNs").Caption.empty(); }));
    });
    // In this order none of them is hidden by the page of one that was shown before.
    Esercizio(f, {"mnuRicTo", "frmTo", "cmdT", "tonalities"}, [&] {
        f.Premi("cmdT");
        Deve(Aspetta([&] { return f.Testo("cmdT") == "Stop"; }));
    });
    Esercizio(f, {"mnuRicTasto", "frmRicTasto", "cmdRicTasto", "piano-keys"},
              [&] { Comincia(f, "cmdRicTasto"); });
    Esercizio(f, {"mnuRac", "frmRacc", "ComdRacStart", "chords"}, [&] { Accordi(f); });
}

}  // namespace corvana::prova
