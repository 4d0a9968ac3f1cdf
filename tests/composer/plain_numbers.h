// Numbers with a point, whatever the locale, and without the program's own conversions.
#pragma once

#include <iomanip>
#include <locale>
#include <sstream>
#include <string>

namespace corvana::prova {

inline std::string ScrittoColPunto(double numero) {
    constexpr int cifre = 15;
    std::ostringstream testo;
    testo.imbue(std::locale::classic());
    testo << std::setprecision(cifre) << numero;
    return testo.str();
}

inline double LettoColPunto(const std::string& testo) {
    std::istringstream lettura(testo);
    lettura.imbue(std::locale::classic());
    double numero = 0;
    lettura >> numero;
    return numero;
}

}  // namespace corvana::prova
