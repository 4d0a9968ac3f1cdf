// Lives of the melody window that end by SIGKILL: a process in which a user, whose every gesture is
// known beforehand, edits in real time; and the same gestures without one, for what must be found.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace corvana::misura {

/// One life: the file in which what isn't saved is kept, and what its user does.
struct Vita {
    std::string percorso;
    unsigned seme = 0;
    bool suona =
        false;  ///< while the melody plays, over and over, its tempo and instruments change
};

/// How many gestures had been delivered at an instant of the monotonic clock, in seconds.
struct Segnalazione {
    double istante = 0;
    long gesti = 0;
};

double Monotono();

/// Starts the life in a process of its own, which writes a `Segnalazione` to `tubo` before it
/// delivers each gesture. It never ends by itself.
pid_t Avvia(const Vita& vita, int tubo);

/// What is kept after 0, 1, 2... up to `gesti` gestures of a life that found `rimasta`; empty where
/// nothing is.
std::vector<std::string> Tenute(const Vita& vita, const std::string& rimasta, long gesti);

}  // namespace corvana::misura
