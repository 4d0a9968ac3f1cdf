// The small window as a program. What it is told goes to its output, a line each.
#include <cstdio>

#include "desktop/application.h"
#include "forms/real_clock.h"
#include "tests/screen/small_form.h"

int main(int argc, char** argv) {
    using namespace corvana;
    Applicazione applicazione(argc, argv);
    return applicazione.OspitaLogica([&] {
        OrologioReale orologio;
        Pompa pompa(orologio, applicazione.Coda());
        Finestre finestre(pompa, applicazione.Riquadri(), &applicazione.Schermo());
        prova::FinestraPiccola finestra(finestre, pompa, applicazione.Riquadri(),
                                        [](const std::string& riga) {
                                            std::puts(riga.c_str());
                                            std::fflush(stdout);
                                        });
        finestre.Mostra(finestra);
        finestre.FinoAllUltima();
    });
}
