// Puts the logic together and runs it from the first window to the last. Logic thread.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "core/globals.h"
#include "sound/platform_midi.h"

namespace corvana {

class Applicazione;
class CorvanaMainF;
class Orologio;

/// What the program finds on the machine.
struct Macchina {
    std::string cartellaProgramma;     ///< where the language files and the cues lie
    std::string percorsoImpostazioni;  ///< the settings' file
    std::string percorsoBlocco;        ///< the lock that tells of another instance
    std::string percorsoRecupero;      ///< the file of what isn't saved; empty: nothing is kept
    std::string cartellaUtente;        ///< the user's home, with a closing separator
    std::string cartellaDocumenti;     ///< the user's documents, with one; may not exist yet
    /// Makes the outputs, given what tells the instant at which the logic stands.
    std::function<std::unique_ptr<PiattaformaMidi>(std::function<double()>)> uscite;
    /// Called first of all on the logic's thread, to have its waits end on time; may be empty.
    std::function<void()> puntuale = {};
    /// Keeps the program's time in place of the system's clock; may be null.
    Orologio* orologio = nullptr;
    /// Holds the user's files and the program's texts in place of the machine's disks; may be null.
    ArchivioFile* file = nullptr;
    /// Called with the main window before it is shown; may be empty.
    std::function<void(CorvanaMainF&)> pronta = {};
};

/// Returns when the last window has closed.
void LogicaDelProgramma(Applicazione& applicazione, const Macchina& macchina);

}  // namespace corvana
