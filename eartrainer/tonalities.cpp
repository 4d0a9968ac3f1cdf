#include "eartrainer/tonalities.h"

namespace corvana {

namespace {

struct RigaTonalita {
    const char* latino;
    const char* anglo;
    std::int16_t tonica;
};

constexpr std::array<RigaTonalita, tonalita> righeTonalita = {{
    {"DO", "C", 60},
    {"REb\nDO#", "Db\nC#", 61},
    {"RE", "D", 62},
    {"MIb", "Eb", 63},
    {"MI", "E", 64},
    {"FA", "F", 65},
    {"SOLb\nFA#", "Gb\nF#", 66},
    {"SOL", "G", 67},
    {"LAb", "Ab", 68},
    {"LA", "A", 69},
    {"SIb", "Bb", 70},
    {"SI\nDOb", "B\nCb", 59},
    {"Do", "C", 60},
    {"Do#", "C#", 61},
    {"Re", "D", 62},
    {"Mib\nRe#", "Eb\nD#", 63},
    {"Mi", "E", 64},
    {"Fa", "F", 65},
    {"Fa#", "F#", 66},
    {"Sol", "G", 67},
    {"Lab\nSol#", "Ab\nG#", 68},
    {"La", "A", 69},
    {"Sib\nLa#", "Bb\nA#", 58},
    {"Si", "B", 59},
}};

constexpr std::int16_t laDiapason = 69;
constexpr double lunga = 0.7, corta = 0.5, respiro = 0.1;

}  // namespace

std::string NomeTonalita(std::size_t indice, bool anglo) {
    const RigaTonalita& riga = righeTonalita.at(indice);
    return anglo ? riga.anglo : riga.latino;
}

std::int16_t Tonica(std::size_t indice) {
    return righeTonalita.at(indice).tonica;
}

std::array<NotaFigura, 6> FiguraTonalita(std::int16_t tonica, bool maggiore) {
    const auto sopra = [&](int semitoni) { return static_cast<std::int16_t>(tonica + semitoni); };
    return {{{laDiapason, lunga, lunga},
             {tonica, lunga, 2 * lunga},
             {tonica, corta, respiro},
             {sopra(maggiore ? 4 : 3), corta, respiro},
             {sopra(7), corta, respiro},
             {sopra(12), corta, respiro}}};
}

}  // namespace corvana
