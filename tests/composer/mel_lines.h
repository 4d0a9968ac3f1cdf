// Melody files as their lines, for tests that need them line by line.
#pragma once

#include <string>
#include <vector>

namespace corvana::prova {

/// A voice's text that says the same so many times.
inline std::string Ripetuto(const std::string& token, int volte) {
    std::string testo;
    for (int i = 0; i < volte; ++i)
        testo += token;
    return testo;
}

using Linee = std::vector<std::string>;

/// The file of these lines.
inline std::string FileDi(const Linee& linee) {
    std::string byte;
    for (const std::string& linea : linee)
        byte += linea + "\r\n";
    return byte;
}

/// The soprano's two notes and nothing else.
inline const Linee soloSoprano = {"60;62;", "1;1;", "n;n;", " 60 ", " 16 "};

/// Two voices, the metronome's settings, the bookmark of the whole melody and one more.
inline const Linee dueVoci = {"60;62;64;65;", "1;1;1;1;",
                              "n;n;n;n;",     " 60 ",
                              "16;2;4;1",     "1 \xF7 4 \xF7Tutta;2 \xF7 3 \xF7 motivo;",
                              "basso;32",     "48;43;",
                              "2;2;",         "n;n;"};

}  // namespace corvana::prova
