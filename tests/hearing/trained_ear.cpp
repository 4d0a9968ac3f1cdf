#include "tests/hearing/trained_ear.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "tests/outputs/hearing.h"

namespace corvana::prova {

namespace {

/// Loudness at one frequency, by Goertzel's recurrence.
double Intensita(std::span<const float> suono, double hertz) {
    const double passo = 2 * std::cos(2 * std::numbers::pi * hertz / frequenzaUdito);
    double ora = 0;
    double prima = 0;
    double piuPrima = 0;
    for (const float campione : suono) {
        ora = campione + passo * prima - piuPrima;
        piuPrima = prima;
        prima = ora;
    }
    return std::sqrt(std::max(0.0, prima * prima + piuPrima * piuPrima - passo * prima * piuPrima));
}

}  // namespace

OrecchioEsperto::Impronta OrecchioEsperto::Ascolta(std::span<const float> suono) {
    Impronta impronta{};
    for (std::size_t i = 0; i < impronta.size(); ++i) {
        const double semitoni = piuBassa + static_cast<double>(i) - 69;
        impronta.at(i) = Intensita(suono, 440 * std::exp2(semitoni / 12));
    }
    return impronta;
}

double OrecchioEsperto::Distanza(const Impronta& udita, const Attesa& attesa, Volume volume) {
    double prodotto = 0;
    double quadrato = 0;
    for (std::size_t i = 0; i < udita.size(); ++i) {
        prodotto += udita.at(i) * attesa.massima.at(i);
        quadrato += attesa.massima.at(i) * attesa.massima.at(i);
    }
    const double quanto = volume == Volume::Noto ? 1 : prodotto / quadrato;
    double distanza = 0;
    for (std::size_t i = 0; i < udita.size(); ++i) {
        const double scarto = udita.at(i) - std::clamp(udita.at(i), quanto * attesa.minima.at(i),
                                                       quanto * attesa.massima.at(i));
        distanza += scarto * scarto;
    }
    return distanza;
}

OrecchioEsperto::Attesa OrecchioEsperto::Insieme(const std::vector<int>& note) const {
    Attesa attesa;
    for (std::size_t i = 0; i < attesa.massima.size(); ++i) {
        double somma = 0;
        double forte = 0;
        for (const int nota : note) {
            somma += note_.at(nota).at(i);
            forte = std::max(forte, note_.at(nota).at(i));
        }
        attesa.massima.at(i) = somma;
        attesa.minima.at(i) = std::max(0.0, 2 * forte - somma);
    }
    return attesa;
}

void OrecchioEsperto::Impara(int nota, std::span<const float> suono) {
    note_[nota] = Ascolta(suono);
}

std::size_t OrecchioEsperto::Riconosci(std::span<const float> suono,
                                       const std::vector<std::vector<int>>& possibili,
                                       Volume volume) const {
    const Impronta udita = Ascolta(suono);
    std::vector<double> distanze;
    for (const std::vector<int>& note : possibili) {
        // How loud a note is that was struck twice is never known.
        const Volume suo = note.size() == 1 ? Volume::Qualunque : volume;
        distanze.push_back(Distanza(udita, Insieme(note), suo));
    }
    return static_cast<std::size_t>(std::min_element(distanze.begin(), distanze.end()) -
                                    distanze.begin());
}

int OrecchioEsperto::Nota(std::span<const float> suono) const {
    std::vector<std::vector<int>> sole;
    for (const auto& [nota, impronta] : note_)
        sole.push_back({nota});
    return sole[Riconosci(suono, sole, Volume::Qualunque)].front();
}

}  // namespace corvana::prova
