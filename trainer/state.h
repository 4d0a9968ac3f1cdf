// What the note trainer keeps between runs, as the one text that is stored. Stateless; any thread.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace corvana {

/// Limits that hold when there are none of the learner's: those of the list's first row.
constexpr int limiteBassoPredefinito = 43;
constexpr int limiteAltoPredefinito = 53;
constexpr std::int32_t strumentoPredefinito = 16;

struct StatoTrainer {
    int limiteBasso = 0;
    int limiteAlto = 0;
    std::int32_t strumento = strumentoPredefinito;
    int noteAlMinuto = 30;
    bool automatico = false;
};

/// Five fields parted by ";". Limits that are no range become the predefined ones, and so does an
/// instrument outside of 0 to 127.
std::string ComponiStato(const StatoTrainer& stato);

/// The fields of a stored text. Throws `Guasto` when a field that should be a number isn't one, or
/// a limit doesn't fit 0 to 255. A text of fewer than two fields holds no state.
std::optional<StatoTrainer> LeggiStato(const std::string& testo);

}  // namespace corvana
