// Opens a window that has a resident loop, and comes back with the window in front and its loop not
// running: what a test then sends is delivered by whatever pumps.
#pragma once

#include "forms/virtual_clock.h"
#include "forms/windows.h"

namespace corvana::prova {

inline void ApriSenzaCiclo(Finestre& finestre, Pompa& pompa, CodaEventi& coda, Form& finestra) {
    // The loop lets events through before anything else.
    coda.Aggiungi({});
    pompa.PonSveglia([] { throw FineCopione{}; });
    try {
        finestre.Mostra(finestra);
    } catch (const FineCopione&) {}
    pompa.PonSveglia({});
}

}  // namespace corvana::prova
