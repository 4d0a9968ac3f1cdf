#include "melody/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "forms/fault.h"

namespace corvana {

std::string TestoNumero(double numero, char separatore) {
    constexpr int cifre = 15;
    std::array<char, 32> spazio{};
    const auto [fine, errore] = std::to_chars(spazio.data(), spazio.data() + spazio.size(), numero,
                                              std::chars_format::general, cifre);
    std::string testo(spazio.data(), fine);
    std::replace(testo.begin(), testo.end(), '.', separatore);
    std::replace(testo.begin(), testo.end(), 'e', 'E');
    return testo;
}

namespace {

std::string_view SenzaBordi(std::string_view testo) {
    constexpr std::string_view bordi = " \t";
    const std::size_t primo = testo.find_first_not_of(bordi);
    if (primo == std::string_view::npos) return {};
    return testo.substr(primo, testo.find_last_not_of(bordi) - primo + 1);
}

}  // namespace

double NumeroReale(std::string_view testo) {
    std::string cifre(SenzaBordi(testo));
    std::replace(cifre.begin(), cifre.end(), ',', '.');
    // Words that stand for infinity and for no number at all must not pass.
    const bool soloCifre = cifre.find_first_not_of("0123456789+-.eE") == std::string::npos;
    const bool piu = cifre.starts_with('+') && !cifre.starts_with("+-");
    double numero = 0;
    const char* fineTesto = cifre.data() + cifre.size();
    const auto [fine, errore] = std::from_chars(cifre.data() + (piu ? 1 : 0), fineTesto, numero);
    if (!soloCifre || errore == std::errc::invalid_argument || fine != fineTesto)
        throw Guasto(guastoTipo, "Type mismatch");
    if (errore != std::errc{}) throw Guasto(guastoTraboccamento, "Overflow");
    return numero;
}

std::string CampoNumero(long numero) {
    return (numero < 0 ? "" : " ") + std::to_string(numero) + " ";
}

std::int64_t ArrotondaAlPari(double numero) {
    return std::llrint(std::clamp(numero, -limiteArrotonda, limiteArrotonda));
}

std::int32_t NumeroLetto(std::string_view testo) {
    using Limiti = std::numeric_limits<std::int32_t>;
    const std::int64_t numero = ArrotondaAlPari(NumeroReale(testo));
    if (numero < Limiti::min() || numero > Limiti::max())
        throw Guasto(guastoTraboccamento, "Overflow");
    return static_cast<std::int32_t>(numero);
}

}  // namespace corvana
