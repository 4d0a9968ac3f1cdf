#include "core/notation.h"

#include <array>
#include <cmath>
#include <string_view>

namespace corvana {

namespace {

struct Classe {
    std::string_view latino;
    std::string_view anglo;
};

constexpr std::array<Classe, 12> classi = {{
    {"Do", "C"},
    {"Do#", "C#"},
    {"Re", "D"},
    {"Re#", "D#"},
    {"Mi", "E"},
    {"Fa", "F"},
    {"Fa#", "F#"},
    {"Sol", "G"},
    {"Sol#", "G#"},
    {"La", "A"},
    {"La#", "A#"},
    {"Si", "B"},
}};

constexpr std::int16_t primaMidi = 36;
constexpr std::int16_t ultimaMidi = 95;

/// The pitch class that a number of the naming table means, or -1.
int ClasseDi(std::int16_t midi) {
    if (midi >= primaMidi && midi <= ultimaMidi) return midi % 12;
    switch (midi) {
        case 532: return 7;
        case 534: return 9;
        case 536: return 11;
        default: return -1;
    }
}

}  // namespace

std::string NomeNota(std::int16_t midi, bool nomiAnglo) {
    if (midi == 0) return nomiAnglo ? "R" : "P";
    const int classe = ClasseDi(midi);
    if (classe < 0) return {};
    const Classe& trovata = classi[static_cast<std::size_t>(classe)];
    return std::string(nomiAnglo ? trovata.anglo : trovata.latino);
}

std::int16_t CasualeIntero(Casuale& casuale, std::int16_t basso, std::int16_t alto) {
    return basso == alto ? basso : EstraiIntero(casuale, basso, alto);
}

std::int16_t EstraiIntero(Casuale& casuale, std::int16_t basso, std::int16_t alto) {
    return static_cast<std::int16_t>(std::floor(casuale.Estrai() * (alto - basso + 1) + basso));
}

}  // namespace corvana
