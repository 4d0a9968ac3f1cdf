// Distributions as the benches print them.
#pragma once

#include <string>
#include <vector>

namespace corvana::misura {

/// Prints one line: how many, median, 99th percentile and worst of `valori`, in `unita`.
void Stampa(const std::string& titolo, std::vector<double> valori, const std::string& unita);

/// The value below which a share `quota` (0 to 1) of the sorted `valori` lies.
double Quantile(const std::vector<double>& ordinati, double quota);

}  // namespace corvana::misura
