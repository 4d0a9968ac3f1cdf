// A visit of the whole program: every window, every page and panel of it that can be brought to the
// front, one after the other. Files are in memory. GUI thread.
#pragma once

#include "sound/recorder.h"
#include "tests/desktop/hand_stage.h"
#include "tests/desktop/memory_home.h"
#include "tests/desktop/readings.h"

namespace corvana::prova {

/// The files and the outputs that the program finds.
struct CasaDiMemoria {
    FileInMemoria casa;
    Registratore* suonato = nullptr;  ///< as long as the logic runs; to be read while it waits
    QTemporaryDir disco;              ///< for the lock, which is no file of the user's

    static constexpr const char* impostazioni = "/casa/.config/corvana";

    std::string Blocco() const { return disco.filePath(QStringLiteral("lock")).toStdString(); }

    void Prepara(Macchina& macchina);
};

/// What was read, by window and place: in one place it changes with what the window does.
using Lette = std::map<std::string, std::map<std::string, std::set<std::string>>>;

class Visita : public CasaDiMemoria, public PalcoAMano {
public:
    Visita();

    /// Called in each place, with the name of the window.
    std::function<void(const std::string&)> guarda;

    /// From the main window, at rest, and back to it.
    void Tutto();
    Lette LeggiTutto();

private:
    void Guarda();
    void Principale();
    void Piccole();
    void Orecchio();
    void Composer();
    void Promemoria();
    /// Of a white key the part that no black one covers.
    void ToccaTasto(const std::string& nome);
    /// Clicks what has so many states, until it is back in the first.
    void Rigira(const std::string& nome, int volte);
    /// A drill with its answer shown, if `aiuto` isn't empty, and ended.
    void Prova(const std::string& start, const std::string& aiuto);
    void Sopra(const std::function<void()>& apri, const std::string& finestra,
               const std::string& sotto);
};

}  // namespace corvana::prova
