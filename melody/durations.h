// The words for rhythmic values that the lists of the composer show. Any thread.
#pragma once

#include <array>
#include <string_view>

namespace corvana {

struct Durata {
    std::string_view parola;
    double valore;  ///< in quarter notes
};

/// In the order of the list, which is also the order of search.
constexpr std::array<Durata, 13> durate = {{{"4/4", 4},
                                            {"(4/4).", 6},
                                            {"2/4", 2},
                                            {"(2/4).", 3},
                                            {"1/4", 1},
                                            {"(1/4).", 1.5},
                                            {"1/8", 0.5},
                                            {"(1/8).", 0.75},
                                            {"1/16", 0.25},
                                            {"(1/16).", 0.375},
                                            {"1/32", 0.125},
                                            {"(1/32).", 0.1875},
                                            {"1/64", 0.0625}}};
/// The word for any other value.
constexpr std::string_view altraDurata = "na";

/// The word for a duration token, which is compared as text: the same value spelled otherwise than
/// `TestoNumero` spells it is "na".
std::string_view ParolaDurata(std::string_view token, char separatore);

/// The value of a word; 1 for "na" and for any text that isn't a word.
double ValoreParola(std::string_view parola);

}  // namespace corvana
