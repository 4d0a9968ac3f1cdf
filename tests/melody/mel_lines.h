// The bytes of a melody file from its lines.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace corvana::prova {

/// Each line closed.
inline std::string Righe(std::initializer_list<std::string_view> righe,
                         std::string_view fine = "\r\n") {
    std::string byte;
    for (const std::string_view riga : righe)
        byte.append(riga).append(fine);
    return byte;
}

/// The five lines that every file has, with the fifth as it is told, and more lines behind them.
inline std::string ConQuinta(std::string_view quinta, const std::string& altre = "") {
    return Righe({"60;62;64;65;", "1;1;1;1;", "n;n;n;n;", " 60 ", quinta}) + altre;
}

/// Lines behind the five.
inline std::string Dietro(std::initializer_list<std::string_view> righe) {
    return ConQuinta(" 16 ", Righe(righe));
}

}  // namespace corvana::prova
