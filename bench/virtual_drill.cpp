// How many hours of automatic drill the virtual clock runs in a second.
#include <chrono>
#include <cstdio>

#include "core/startup.h"
#include "tests/support/rig.h"
#include "trainer/corvana_main.h"

namespace {

using namespace corvana;

double Secondi() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

}  // namespace

int main() {
    constexpr double ore = 100;
    prova::Banco banco;
    CasualeFisso casuale;
    Ambiente ambiente{banco.globali, banco.pompa,        banco.finestre, banco.riquadri,
                      banco.suono,   banco.impostazioni, banco.file,     casuale};
    CorvanaMainF finestra(ambiente, {});
    banco.Clicca(3, "mnuAutomatico");
    banco.Clicca(4, "Start");
    banco.Fine(ore * 3600);
    const double inizio = Secondi();
    banco.SvolgiCopione([&] {
        Main(ambiente, false, [&] { banco.finestre.Mostra(finestra); });
        banco.finestre.FinoAllUltima();
    });
    const double durata = Secondi() - inizio;
    std::printf("%-52s %.0f hours a second (%d notes in %.2f s)\n",
                "automatic drill on the virtual clock", ore / durata,
                finestra.esercizio.punteggio.Mostrate, durata);
}
