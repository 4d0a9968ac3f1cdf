// How even a row of pulses is.
#pragma once

#include <span>
#include <string>
#include <vector>

namespace corvana::misura {

/// Seconds at which sounds begin that are cut a tenth of a second before the next: to one sample of
/// the 48000 in a second.
std::vector<double> Attacchi(std::span<const float> mono);

/// What a row of pulses comes to.
struct Uniformita {
    std::size_t quanti = 0;  ///< none when they were too few to say anything
    double media = 0;        ///< error of the mean period in ppm
    double p99 = 0;          ///< of what its line tells in milliseconds
    double peggiore = 0;
};

/// Prints one line: how many, error of the mean period in ppm of `periodo` (seconds), and of the
/// pulses' deviations from an even row standard deviation, 99th percentile and worst. Pulses sound
/// by turns with two instruments, whose attacks differ: each has its own row, with one period.
Uniformita StampaPulsi(const std::string& titolo, const std::vector<double>& istanti,
                       double periodo);

/// Prints one line for messages, sent at `istanti` and asked for at `richiesti`: how many, error of
/// the mean period in ppm of `periodo`, by the middle one of the slopes between any two messages at
/// least half the row apart, so that single late ones don't count; what the row of instants asked
/// for lost in all; and how late the messages were, against an even row from the first instant
/// asked for, by median, 99th percentile and worst.
Uniformita StampaMessaggi(const std::string& titolo, const std::vector<double>& istanti,
                          const std::vector<double>& richiesti, double periodo);

}  // namespace corvana::misura
