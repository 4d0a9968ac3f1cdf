// What a process takes of the machine, as the system tells it. Any thread.
#pragma once

#include <map>
#include <string>

namespace corvana::misura {

constexpr const char* questo = "/proc/self";

/// Memory in MiB, each shared page counted in part, of the process whose folder that is.
double LeggiPss(const std::string& cartella = questo);

/// Seconds that each thread has run so far, by its number and name.
using Fili = std::map<std::string, double>;
Fili LeggiFili(const std::string& cartella = questo);

/// Prints the share of a processor that each thread took in the `secondi` since `prima`, and all.
void StampaRiposo(const Fili& prima, int secondi, const std::string& cartella = questo);

}  // namespace corvana::misura
