#include "eartrainer/key_spelling.h"

#include <array>

namespace corvana {

namespace {

struct RigaGrafia {
    std::string_view latino, anglo;
    std::int16_t midi;
    // What the key is called elsewhere; empty where this is that name.
    std::string_view sempliceLatino = {}, sempliceAnglo = {};
};

constexpr std::array<RigaGrafia, grafieTasti> grafie = {{
    {"Dob", "Cb", 59, "Si", "B"},    {"Do", "C", 60},  {"Do#", "C#", 61},
    {"Reb", "Db", 61, "Do#", "C#"},  {"Re", "D", 62},  {"Re#", "D#", 63},
    {"Mib", "Eb", 63, "Re#", "D#"},  {"Mi", "E", 64},  {"Mi#", "E#", 65, "Fa", "F"},
    {"Fab", "Fb", 64, "Mi", "E"},    {"Fa", "F", 65},  {"Fa#", "F#", 66},
    {"Solb", "Gb", 66, "Fa#", "F#"}, {"Sol", "G", 67}, {"Sol#", "G#", 68},
    {"Lab", "Ab", 68, "Sol#", "G#"}, {"La", "A", 69},  {"La#", "A#", 70},
    {"Sib", "Bb", 70, "La#", "A#"},  {"Si", "B", 71},  {"Si#", "B#", 72, "Do", "C"},
}};

/// Places of the white keys' own names.
constexpr std::array<std::size_t, grafieBianche> bianche = {1, 4, 7, 10, 13, 16, 19};

}  // namespace

TastoChiesto GrafiaTasto(std::int16_t numero, bool soloBianchi, bool anglo) {
    const auto posto = static_cast<std::size_t>(numero - 1);
    const RigaGrafia& riga = grafie.at(soloBianchi ? bianche.at(posto) : posto);
    return {anglo ? riga.anglo : riga.latino, riga.midi};
}

std::string GrafiaSemplice(const std::string& nome, bool anglo) {
    for (const RigaGrafia& riga : grafie) {
        const std::string_view semplice = anglo ? riga.sempliceAnglo : riga.sempliceLatino;
        if (!semplice.empty() && nome == (anglo ? riga.anglo : riga.latino))
            return std::string(semplice);
    }
    return nome;
}

}  // namespace corvana
