// What a process takes of the machine, as the system tells it. Any thread.
#pragma once

#include <map>
#include <string>

namespace corvana::misura {

constexpr const char* questo = "/proc/self";

/// Memory in MiB of the process whose folder that is.
struct Memoria {
    double pss = 0;   ///< each shared page counted in part
    double sola = 0;  ///< what no other process has: its end would give back that much
};
Memoria LeggiMemoria(const std::string& cartella = questo);
/// Prints both in a row.
void StampaMemoria(const std::string& cosa, const Memoria& memoria);

/// What a thread has done so far.
struct Filo {
    double secondi = 0;  ///< that it has run
    long risvegli = 0;   ///< how often it was given a processor
};
/// By the thread's number and name.
using Fili = std::map<std::string, Filo>;
Fili LeggiFili(const std::string& cartella = questo);

/// Prints what each thread did in the `secondi` since `prima`, and all together: the share of a
/// processor, and how often a second it woke. The share has a goal.
void StampaRiposo(const std::string& cosa, const Fili& prima, int secondi,
                  const std::string& cartella = questo);

}  // namespace corvana::misura
