// The intervals' names, as the ear trainer and the reference chart show them: above each number of
// semitones one spelling, below it another. Pure; any thread.
#pragma once

#include <array>
#include <string_view>

namespace corvana {

constexpr int dimensioniIntervallo = 14;  ///< 0 to 13 semitones

struct NomeIntervallo {
    std::string_view nome;
    int semitoni;
    bool sopra;       ///< in the upper row
    bool consonante;  ///< shaded
};

/// In the order of the labels that show them.
constexpr std::array<NomeIntervallo, 25> nomiIntervalli = {{
    {"5 Gius", 7, true, true},   {"5 Ecc", 8, true, false},   {"6 Mag", 9, true, true},
    {"6 Ecc", 10, true, false},  {"7 Mag", 11, true, false},  {"7 Ecc", 12, true, false},
    {"8 Ecc", 13, true, false},  {"8 Gius", 12, false, true}, {"8 Dim", 11, false, false},
    {"7 Min", 10, false, false}, {"7 Dim", 9, false, false},  {"6 Min", 8, false, true},
    {"6 Dim", 7, false, false},  {"5 Dim", 6, false, false},  {"4 Gius", 5, false, true},
    {"4 Dim", 4, false, false},  {"3 Min", 3, false, true},   {"3 Dim", 2, false, false},
    {"2 Min", 1, false, false},  {"2 Dim", 0, false, true},   {"2 Mag", 2, true, false},
    {"2 Ecc", 3, true, false},   {"3 Mag", 4, true, true},    {"3 Ecc", 5, true, false},
    {"4 Ecc", 6, true, false},
}};

}  // namespace corvana
