// The main window on the virtual clock, with every other window stood in for.
#pragma once

#include "core/startup.h"
#include "tests/support/rig.h"
#include "trainer/corvana_main.h"
#include "trainer/positions.h"

namespace corvana::prova {

struct BancoPrincipale : Banco {
    /// Names of the other windows and of the helpers that were called for, in order.
    std::vector<std::string> aperte;
    CorvanaMainF finestra{Tutto(), TutteLeSecondarie()};
    PannelloPunteggio& punteggio = finestra.esercizio.punteggio;

    /// Instant at which the opening signal is over and the window takes events.
    static constexpr double pronta = 2.25;

    /// Starts the program and runs it to the script's end. True when unwound there, false when the
    /// window was closed.
    bool Avvia();
    /// Stores what the program of an earlier day would have left.
    void PonStato(const std::string& stato) { impostazioni.ScriviValore("CorvanaLastS", stato); }
    std::string Stato() { return impostazioni.LeggiValore("CorvanaLastS"); }

    /// Queues the draw that picks this position from a range.
    void Estrai(int posizione, int limiteBasso, int limiteAlto);
    void Righello(double t, int y);
    void Slitta(double t, int valore);  ///< moves the slider and lets it go
    void Chiudi(double t) { Fa(t, Fatto::Chiudi, ""); }

    Secondarie TutteLeSecondarie();
    /// The notes that are to be seen on the staff.
    std::vector<int> NoteInVista() const;
    /// Names of the wave files that were played, without their folder.
    std::vector<std::string> Onde() const;
};

}  // namespace corvana::prova
