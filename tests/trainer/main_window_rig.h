// The main window on the virtual clock.
#pragma once

#include "core/startup.h"
#include "tests/support/rig.h"
#include "trainer/corvana_main.h"

namespace corvana::prova {

struct BancoPrincipale : Banco {
    CorvanaMainF finestra{Tutto(), {}};

    /// Instant at which the opening signal is over and the window takes events.
    static constexpr double pronta = 2.25;

    /// Starts the program and runs it to the script's end. True when unwound there.
    bool Avvia() {
        return Esegui([this] {
            Main(Tutto(), false, [this] { finestre.Mostra(finestra); });
            finestre.Esegui();
        });
    }
};

}  // namespace corvana::prova
