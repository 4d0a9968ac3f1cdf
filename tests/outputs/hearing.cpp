#include "tests/outputs/hearing.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace corvana::prova {

namespace {

constexpr double hertzMinimi = 40;
constexpr double hertzMassimi = 3000;
constexpr double chiarezza = 0.8;    ///< of the best period, else there is no pitch
constexpr double primoBuono = 0.92;  ///< the first peak this near to the best is the period

/// How alike the part is to itself `passo` samples later, -1 to 1.
double Somiglianza(std::span<const float> x, std::size_t passo) {
    double prodotto = 0;
    double energia = 0;
    for (std::size_t i = 0; i + passo < x.size(); ++i) {
        const double a = x[i];
        const double b = x[i + passo];
        prodotto += a * b;
        energia += a * a + b * b;
    }
    return energia > 0 ? 2 * prodotto / energia : 0;
}

bool Cima(const std::vector<double>& y, std::size_t i) {
    return y[i] > y[i - 1] && y[i] >= y[i + 1];
}

/// Where the parabola through a peak and its neighbours has its top.
double Vertice(const std::vector<double>& y, std::size_t i) {
    const double curva = y[i - 1] - 2 * y[i] + y[i + 1];
    const double scarto = curva == 0 ? 0 : 0.5 * (y[i - 1] - y[i + 1]) / curva;
    return static_cast<double>(i) + scarto;
}

/// Energy of the second differences, which strokes are full of, in steps of a millisecond.
std::vector<double> Brillantezza(std::span<const float> mono, std::size_t passo) {
    std::vector<double> energie;
    for (std::size_t i = 2; i + passo <= mono.size(); i += passo) {
        double somma = 0;
        for (std::size_t j = i; j < i + passo; ++j) {
            const double d = mono[j] - 2 * mono[j - 1] + mono[j - 2];
            somma += d * d;
        }
        energie.push_back(somma);
    }
    return energie;
}

/// How well `parte` follows `modello`, whatever its loudness.
double Concordanza(std::span<const float> parte, std::span<const float> modello, std::size_t ogni) {
    double prodotto = 0;
    double energia = 1e-9;
    for (std::size_t i = 0; i < modello.size(); i += ogni) {
        prodotto += static_cast<double>(parte[i]) * modello[i];
        energia += static_cast<double>(parte[i]) * parte[i];
    }
    return prodotto / std::sqrt(energia);
}

}  // namespace

std::vector<float> Mono(std::span<const float> stereo) {
    std::vector<float> mono(stereo.size() / 2);
    for (std::size_t i = 0; i < mono.size(); ++i)
        mono[i] = 0.5F * (stereo[2 * i] + stereo[2 * i + 1]);
    return mono;
}

std::span<const float> Parte(std::span<const float> mono, double inizio, double durata) {
    const auto da = std::min(static_cast<std::size_t>(inizio * frequenzaUdito), mono.size());
    const auto lunga = static_cast<std::size_t>(durata * frequenzaUdito);
    return mono.subspan(da, std::min(lunga, mono.size() - da));
}

double Altezza(std::span<const float> mono) {
    const auto minimo = static_cast<std::size_t>(frequenzaUdito / hertzMassimi);
    const auto massimo =
        std::min(static_cast<std::size_t>(frequenzaUdito / hertzMinimi), mono.size() / 2);
    std::vector<double> somiglianze(massimo + 1);
    for (std::size_t passo = 1; passo <= massimo; ++passo)
        somiglianze[passo] = Somiglianza(mono, passo);
    std::vector<std::size_t> cime;
    for (std::size_t i = minimo; i < massimo; ++i)
        if (somiglianze[i] > 0 && Cima(somiglianze, i)) cime.push_back(i);
    double migliore = 0;
    for (const std::size_t i : cime)
        migliore = std::max(migliore, somiglianze[i]);
    if (migliore < chiarezza) return 0;
    for (const std::size_t i : cime)
        if (somiglianze[i] >= primoBuono * migliore)
            return frequenzaUdito / Vertice(somiglianze, i);
    return 0;
}

double NotaMidi(double hertz) {
    return 69 + 12 * std::log2(hertz / 440);
}

double Livello(std::span<const float> campioni) {
    double somma = 0;
    for (const float c : campioni)
        somma += static_cast<double>(c) * c;
    return campioni.empty() ? 0 : std::sqrt(somma / static_cast<double>(campioni.size()));
}

double Picco(std::span<const float> campioni) {
    double picco = 0;
    for (const float c : campioni)
        picco = std::max(picco, std::fabs(static_cast<double>(c)));
    return picco;
}

std::vector<double> Attacchi(std::span<const float> mono) {
    constexpr std::size_t passo = 48;
    constexpr std::size_t prima = 20;  // milliseconds that a stroke is compared with
    constexpr double crescita = 2.5;
    constexpr double distanza = 0.1;
    const std::vector<double> energie = Brillantezza(mono, passo);
    if (energie.empty()) return {};
    const double fondo = 1e-3 * *std::max_element(energie.begin(), energie.end());
    std::vector<double> attacchi;
    for (std::size_t i = prima; i < energie.size(); ++i) {
        const double quando = static_cast<double>(i * passo) / frequenzaUdito;
        if (!attacchi.empty() && quando - attacchi.back() < distanza) continue;
        const auto qui = energie.begin() + static_cast<std::ptrdiff_t>(i);
        const double quiete = *std::max_element(qui - static_cast<std::ptrdiff_t>(prima), qui);
        if (*qui > crescita * quiete + fondo) attacchi.push_back(quando);
    }
    return attacchi;
}

std::vector<int> NoteUdite(std::span<const float> mono) {
    constexpr double finestra = 0.08;
    constexpr double passo = 0.04;
    constexpr double udibile = 0.2;  ///< of the loudest moment
    const double soglia = udibile * Picco(mono);
    std::vector<int> note;
    int prima = 0;
    for (double inizio = 0; Parte(mono, inizio, finestra).size() > 0; inizio += passo) {
        const auto parte = Parte(mono, inizio, finestra);
        const double nota = Picco(parte) < soglia ? 0 : NotaMidi(std::max(Altezza(parte), 1.0));
        const int vicina = static_cast<int>(std::lround(nota));
        const bool chiara = nota > 0 && std::fabs(nota - vicina) < 0.25;
        // A note holds on for two moments at least.
        if (chiara && vicina == prima && (note.empty() || note.back() != vicina))
            note.push_back(vicina);
        prima = chiara ? vicina : 0;
    }
    return note;
}

double Ritrova(std::span<const float> mono, std::span<const float> modello, double intorno,
               double raggio) {
    constexpr std::size_t ogni = 5;  // samples of the model that are compared
    const auto da = static_cast<std::size_t>(std::max(0.0, intorno - raggio) * frequenzaUdito);
    const auto a = static_cast<std::size_t>((intorno + raggio) * frequenzaUdito);
    double migliore = 0;
    std::size_t dove = da;
    for (std::size_t i = da; i <= a && i + modello.size() <= mono.size(); ++i) {
        const double somiglianza = Concordanza(mono.subspan(i, modello.size()), modello, ogni);
        if (somiglianza <= migliore) continue;
        migliore = somiglianza;
        dove = i;
    }
    return static_cast<double>(dove) / frequenzaUdito;
}

double Forza(std::span<const float> mono, double hertz) {
    const double omega = 2 * std::numbers::pi * hertz / frequenzaUdito;
    double coseno = 0;
    double seno = 0;
    for (std::size_t i = 0; i < mono.size(); ++i) {
        coseno += mono[i] * std::cos(omega * static_cast<double>(i));
        seno += mono[i] * std::sin(omega * static_cast<double>(i));
    }
    return mono.empty() ? 0 : 2 * std::hypot(coseno, seno) / static_cast<double>(mono.size());
}

}  // namespace corvana::prova
