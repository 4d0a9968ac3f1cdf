// Distributions as the benches print them, and the figures that have a goal.
#pragma once

#include <string>
#include <vector>

namespace corvana::misura {

/// What of a distribution has to stay within a limit.
struct Meta {
    double quota;  ///< the quantile that counts; 1 is the worst
    double limite;
};

/// Prints one line: how many, median, 99th percentile and worst of `valori`, in `unita`.
void Stampa(const std::string& titolo, std::vector<double> valori, const std::string& unita);
/// The same, and the row of its goal.
void Stampa(const std::string& titolo, const std::vector<double>& valori, const std::string& unita,
            const Meta& meta);

/// Prints a row of the table with which ./measure ends: the figure, the most that it should be, and
/// whether it is.
void StampaMeta(const std::string& cosa, double valore, double limite, const std::string& unita);

/// The value below which a share `quota` (0 to 1) of the sorted `valori` lies.
double Quantile(const std::vector<double>& ordinati, double quota);

}  // namespace corvana::misura
