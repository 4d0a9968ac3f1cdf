// A melody as it is kept for the next run of the program when it was changed and not saved: all
// that the window holds of it, texts that don't belong together and names of any bytes included,
// for which a melody file has no room. Any thread.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "melody/melody.h"

namespace corvana {

struct VoceTenuta {
    std::string note, durate, attributi;
    std::int32_t strumento = 0;
    bool operator==(const VoceTenuta&) const = default;
};

struct MelodiaTenuta {
    std::array<VoceTenuta, numeroVoci> voci;
    std::int32_t tempo = 0;
    bool metroAttivo = false;
    std::string pulsazioni, durataPulsazioni;
    std::int32_t inizioPuls = 0;
    std::string nome;          ///< of the melody; empty for a new one
    std::string nomeMostrato;  ///< what the window shows as its name
    std::string cartella;      ///< the current folder, into which it would be saved
    std::vector<std::string> riferimenti;
    bool operator==(const MelodiaTenuta&) const = default;
};

/// A line that tells what it is, fields with their lengths before them, and a checksum.
std::string ScriviTenuta(const MelodiaTenuta& melodia);
/// Takes any bytes. Nothing unless `ScriviTenuta` would give just these.
std::optional<MelodiaTenuta> LeggiTenuta(std::string_view byte);

/// What stands behind the fields `corpo` and the line before them.
std::string SommaTenuta(std::string_view corpo);

}  // namespace corvana
