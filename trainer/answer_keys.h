// What the keys of the main window mean. Stateless; any thread.
#pragma once

#include <array>
#include <optional>

namespace corvana {

/// The answer, 1 for DO to 7 for SI, that a released key gives in normal mode.
std::optional<int> RispostaDaTasto(int codice);

/// The row of the range list that a released key selects when no drill runs.
std::optional<int> RigaDaTasto(int codice);

/// The keys that a learner may hold for an answer in automatic mode.
struct TastiRisposta {
    int risposta;
    int tasto;
    int tastierino;  ///< 0 for none
};

/// In the order in which a pass of the automatic drill tests them.
constexpr std::array<TastiRisposta, 7> tastiAutomatici = {{
    {1, 68, 100},
    {3, 70, 102},
    {5, 71, 103},
    {7, 72, 104},
    {2, 97, 0},
    {4, 98, 0},
    {6, 99, 0},
}};

}  // namespace corvana
