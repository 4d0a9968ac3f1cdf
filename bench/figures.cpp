#include "bench/figures.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace corvana::misura {

namespace {

const char* NomeQuota(double quota) {
    if (quota >= 1) return ", worst";
    return quota > 0.5 ? ", p99" : ", median";
}

}  // namespace

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

void Stampa(const std::string& titolo, const std::vector<double>& valori, const std::string& unita,
            const Meta& meta) {
    Stampa(titolo, valori, unita);
    std::vector<double> ordinati = valori;
    std::sort(ordinati.begin(), ordinati.end());
    StampaMeta(titolo + NomeQuota(meta.quota), Quantile(ordinati, meta.quota), meta.limite, unita);
}

void StampaMeta(const std::string& cosa, double valore, double limite, const std::string& unita) {
    std::printf("goal  %-72s %9.3f  at most %8.3f %-8s %s\n", cosa.c_str(), valore, limite,
                unita.c_str(), valore <= limite ? "met" : "missed");
    std::fflush(stdout);
}

}  // namespace corvana::misura
