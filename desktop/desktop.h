// The desktop: starts the logic on its own thread, shows the windows that it asks for, and ends
// when it has ended. GUI thread; needs a QApplication, which outlives it.
#pragma once

#include <QDialog>
#include <QPointer>
#include <QSocketNotifier>
#include <chrono>
#include <exception>
#include <functional>
#include <future>
#include <memory>
#include <thread>
#include <vector>

#include "desktop/first_paint.h"
#include "desktop/help_window.h"
#include "desktop/keyboard.h"
#include "desktop/remote_mirror.h"
#include "desktop/translator.h"
#include "desktop/window_view.h"

namespace corvana {

class Scrivania {
public:
    Scrivania();
    Scrivania(const Scrivania&) = delete;
    Scrivania& operator=(const Scrivania&) = delete;
    /// Ends the logic as `Termina` does.
    ~Scrivania();

    CodaEventi& Coda() { return coda_; }
    Specchio& Schermo() { return specchio_; }
    corvana::Riquadri& Riquadri() { return specchio_; }

    /// Starts the logic; its windows appear as the Qt loop runs. Once only.
    void Avvia(std::function<void()> logica);
    /// The logic has returned, and all that it said has been shown.
    bool Finita() const { return finita_; }
    /// Starts the logic and runs the Qt loop until it has returned. Returns 1 when the logic ended
    /// by an exception, else 0.
    int OspitaLogica(std::function<void()> logica);
    /// Tells the logic that the program ends, and answers No to the box that is open and to all
    /// that would follow. The logic unwinds, closes its windows and returns; nobody is asked.
    void ChiediFine();
    /// The same, and returns when the logic has ended.
    void Termina();
    /// The same without touching any window, for a process whose screen has gone. False when the
    /// logic takes no note of it within `pazienza`, and goes on.
    bool TerminaAlBuio(std::chrono::milliseconds pazienza);

    /// When the first window has been painted.
    PrimaPittura& Dipinta() { return dipinta_; }

    /// The window in front, or null.
    VistaFinestra* Davanti();
    /// The box that waits for an answer, or null.
    QDialog* Riquadro() const { return riquadro_; }
    /// The help; null until it is first asked for.
    FinestraAiuto* Aiuto() const { return aiuto_.get(); }

private:
    void Ritira();
    void Smista(Comando& comando);
    void Fai(const MostraFinestra& comando);
    void Fai(const CambiaProprieta& comando);
    void Fai(const DaiFuoco& comando);
    void Fai(const ChiudiFinestra& comando);
    void Fai(const TrascinaFinestra& comando);
    void Fai(const ApriMenu& comando);
    void Fai(const MostraAiuto& comando);
    void Fai(const CambiaLingua& comando);
    void Fai(const ApriRiquadro& comando);
    void Fai(const FineLogica& comando);
    VistaFinestra* Cerca(std::uint32_t identita);
    void Attendi();

    CodaEventi coda_;
    Cassetta cassetta_;
    SpecchioRemoto specchio_{cassetta_};
    Tastiera tastiera_;
    ParoleSchermo parole_;
    Traduttore traduttore_{parole_};
    PrimaPittura dipinta_;
    std::vector<std::unique_ptr<VistaFinestra>> finestre_;
    std::unique_ptr<FinestraAiuto> aiuto_;
    QPointer<QDialog> riquadro_;
    QSocketNotifier notifica_;
    std::thread logica_;
    std::exception_ptr errore_;  ///< what ended the logic; to be read when its thread has ended
    std::promise<void> fineLogica_;
    bool finita_ = false;
};

}  // namespace corvana
