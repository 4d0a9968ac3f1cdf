#include "bench/figures.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace corvana::misura {

double Quantile(const std::vector<double>& ordinati, double quota) {
    const double posto = quota * static_cast<double>(ordinati.size() - 1);
    return ordinati.at(static_cast<std::size_t>(std::lround(posto)));
}

void Stampa(const std::string& titolo, std::vector<double> valori, const std::string& unita) {
    std::sort(valori.begin(), valori.end());
    std::printf("%-52s n %5zu   median %8.3f   p99 %8.3f   worst %8.3f %s\n", titolo.c_str(),
                valori.size(), Quantile(valori, 0.5), Quantile(valori, 0.99), valori.back(),
                unita.c_str());
    std::fflush(stdout);
}

}  // namespace corvana::misura
