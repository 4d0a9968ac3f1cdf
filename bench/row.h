// How a row of timing figures is taken: for how long, beside what, and by whose right.
#pragma once

#include <sys/types.h>

#include <string>
#include <thread>
#include <vector>

namespace corvana::misura {

/// Programs that do nothing but use the processor, twice as many as there are cores.
class ProgrammiOccupati {
public:
    explicit ProgrammiOccupati(bool davvero);
    ProgrammiOccupati(const ProgrammiOccupati&) = delete;
    ProgrammiOccupati& operator=(const ProgrammiOccupati&) = delete;
    ~ProgrammiOccupati();

private:
    std::vector<pid_t> programmi_;
};

/// Stops this process for 50 ms, ten times within `secondi`, as long as it lives.
class Singhiozzo {
public:
    Singhiozzo(bool davvero, double secondi);
    Singhiozzo(const Singhiozzo&) = delete;
    Singhiozzo& operator=(const Singhiozzo&) = delete;
    ~Singhiozzo();

private:
    pid_t chi_ = 0;
};

/// What goes on beside the program while a row is taken.
enum class Intorno { Quiete, Occupato, Fermato };

/// As the rows' titles tell it: "idle", "busy", "stopped", with the calling thread's scheduling,
/// "real-time" or "ordinary".
std::string Titolo(Intorno intorno, bool puntuale);
/// The calling thread has real-time scheduling.
bool Puntuale();

}  // namespace corvana::misura
