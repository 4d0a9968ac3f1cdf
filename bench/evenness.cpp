#include "bench/evenness.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <numeric>

#include "bench/figures.h"

namespace corvana::misura {

namespace {

constexpr double frequenza = 48000;
constexpr std::size_t quiete = 2400;  ///< samples of silence before an attack, 50 ms

double Media(const std::vector<double>& valori) {
    return std::accumulate(valori.begin(), valori.end(), 0.0) / static_cast<double>(valori.size());
}

/// The median of the slopes between instants that lie at least half the row apart.
double PeriodoMediano(const std::vector<double>& istanti) {
    std::vector<double> pendenze;
    const std::size_t mezza = istanti.size() / 2;
    for (std::size_t i = 0; i + mezza < istanti.size(); ++i)
        for (std::size_t j = i + mezza; j < istanti.size(); ++j)
            pendenze.push_back((istanti[j] - istanti[i]) / static_cast<double>(j - i));
    std::sort(pendenze.begin(), pendenze.end());
    return Quantile(pendenze, 0.5);
}

/// The slope of the line that fits the instants best.
double Periodo(const std::vector<double>& istanti) {
    const double mezzo = static_cast<double>(istanti.size() - 1) / 2;
    const double media = Media(istanti);
    double xy = 0, xx = 0;
    for (std::size_t i = 0; i < istanti.size(); ++i) {
        const double x = static_cast<double>(i) - mezzo;
        xy += x * (istanti[i] - media);
        xx += x * x;
    }
    return xy / xx;
}

std::vector<double> Scarti(const std::vector<double>& istanti, double periodo) {
    std::vector<double> scarti;
    std::array<std::vector<double>, 2> file;
    for (std::size_t i = 0; i < istanti.size(); ++i)
        file.at(i % 2).push_back(istanti[i] - periodo * static_cast<double>(i));
    for (const auto& fila : file)
        for (const double valore : fila)
            scarti.push_back((valore - Media(fila)) * 1e3);
    return scarti;
}

}  // namespace

std::vector<double> Attacchi(std::span<const float> mono) {
    const auto picco = std::max_element(
        mono.begin(), mono.end(), [](float a, float b) { return std::fabs(a) < std::fabs(b); });
    const float soglia = picco == mono.end() ? 1 : std::fabs(*picco) * 0.02F;
    std::vector<double> attacchi;
    std::size_t silenzio = quiete;
    for (std::size_t i = 0; i < mono.size(); ++i) {
        const bool suona = std::fabs(mono[i]) > soglia;
        if (suona && silenzio >= quiete) attacchi.push_back(static_cast<double>(i) / frequenza);
        silenzio = suona ? 0 : silenzio + 1;
    }
    return attacchi;
}

Uniformita StampaMessaggi(const std::string& titolo, const std::vector<double>& istanti,
                          const std::vector<double>& richiesti, double periodo) {
    if (istanti.size() < 4) {
        std::printf("%-44s only %zu pulses\n", titolo.c_str(), istanti.size());
        return {};
    }
    std::vector<double> ritardi;
    for (std::size_t i = 0; i < istanti.size(); ++i)
        ritardi.push_back((istanti[i] - (richiesti[0] + static_cast<double>(i) * periodo)) * 1e3);
    std::sort(ritardi.begin(), ritardi.end());
    const double chiesti = richiesti.back() - richiesti.front();
    const double media = (PeriodoMediano(istanti) / periodo - 1) * 1e6;
    const double persi = chiesti - static_cast<double>(richiesti.size() - 1) * periodo;
    std::printf(
        "%-44s n %4zu   mean %+8.3f ppm   lost %6.4f   late: median %6.4f   p99 %6.4f   "
        "worst %6.4f ms\n",
        titolo.c_str(), istanti.size(), media, persi * 1e3, Quantile(ritardi, 0.5),
        Quantile(ritardi, 0.99), ritardi.back());
    std::fflush(stdout);
    return {istanti.size(), media, Quantile(ritardi, 0.99), ritardi.back()};
}

Uniformita StampaPulsi(const std::string& titolo, const std::vector<double>& istanti,
                       double periodo) {
    if (istanti.size() < 4) {
        std::printf("%-44s only %zu pulses\n", titolo.c_str(), istanti.size());
        return {};
    }
    const double misurato = Periodo(istanti);
    auto scarti = Scarti(istanti, misurato);
    double quadrati = 0;
    for (double& scarto : scarti) {
        quadrati += scarto * scarto;
        scarto = std::fabs(scarto);
    }
    std::sort(scarti.begin(), scarti.end());
    std::printf("%-44s n %4zu   mean %+8.3f ppm   sd %6.4f   p99 %6.4f   worst %6.4f ms\n",
                titolo.c_str(), istanti.size(), (misurato / periodo - 1) * 1e6,
                std::sqrt(quadrati / static_cast<double>(scarti.size())), Quantile(scarti, 0.99),
                scarti.back());
    std::fflush(stdout);
    return {istanti.size(), (misurato / periodo - 1) * 1e6, Quantile(scarti, 0.99), scarti.back()};
}

}  // namespace corvana::misura
