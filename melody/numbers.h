// Numbers in texts, whatever the locale of the process. Any thread.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace corvana {

/// The general conversion: up to 15 significant digits, no trailing zeros, `separatore` between
/// whole and fraction, a capital E before the exponent of very large and very small numbers.
std::string TestoNumero(double numero, char separatore);

/// The number that the text means, point or comma before the fraction, outer blanks and tabs
/// ignored. Throws `Guasto` 13 when it isn't a number and `Guasto` 6 when no double can hold it.
double NumeroReale(std::string_view testo);

/// A blank (or the minus), the digits, a blank: how a number stands alone in its line of a file.
std::string CampoNumero(long numero);

/// The nearest whole number, halves to the even one; the ends of `limiteArrotonda` for what lies
/// beyond.
std::int64_t ArrotondaAlPari(double numero);
/// Far beyond any music, and far enough from the end of 64 bits that sums of it don't reach it.
constexpr double limiteArrotonda = 1LL << 46;

/// The nearest whole number of a text, where a file edited by hand may hold a fraction. Throws
/// `Guasto` 13 when it isn't a number and `Guasto` 6 when 32 bits can't hold it.
std::int32_t NumeroLetto(std::string_view testo);

}  // namespace corvana
