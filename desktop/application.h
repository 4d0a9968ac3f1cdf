// The program as Qt sees it: the one QApplication with the program's look, and the desktop on which
// its windows stand. GUI thread, which is the thread that constructs it; one at a time.
#pragma once

#include <chrono>
#include <functional>
#include <memory>

#include "forms/boxes.h"
#include "forms/event_queue.h"
#include "forms/mirror.h"

namespace corvana {

class Scrivania;

class Applicazione {
public:
    /// Makes the QApplication, unless there is one. `argc` and `argv` must live as long as it.
    Applicazione(int& argc, char** argv);
    Applicazione(const Applicazione&) = delete;
    Applicazione& operator=(const Applicazione&) = delete;
    ~Applicazione();

    /// Where the logic finds what the user did.
    CodaEventi& Coda();
    /// What shows the logic's forms; for the logic thread.
    Specchio& Schermo();
    /// The boxes that the logic waits for; for the logic thread.
    corvana::Riquadri& Riquadri();

    /// Returns when the first window has been painted, or after `pazienza`; for any thread.
    void AspettaDipinta(std::chrono::milliseconds pazienza) const;

    /// The real windows.
    Scrivania& LaScrivania();

    /// Runs `logica` on a thread of its own and the windows on this one until `logica` returns.
    /// SIGINT, SIGTERM, SIGHUP, the end of the session and the loss of the screen's server tell the
    /// logic meanwhile that the program ends (`CodaEventi::ChiediFine`); a logic that doesn't take
    /// note of it, since it computes without an end, is given up after the better part of a second,
    /// together with the process. Returns the exit code of the process: 1 when `logica` ended by an
    /// exception, whose text goes to the error stream.
    int OspitaLogica(std::function<void()> logica);

private:
    struct Interno;
    std::unique_ptr<Interno> interno_;
};

}  // namespace corvana
