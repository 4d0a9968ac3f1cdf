// A melody as its file holds it, to be written, read and compared.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "melody/bookmark.h"
#include "melody/mel_reader.h"
#include "melody/mel_writer.h"

namespace corvana::prova {

struct ContenutoMel {
    std::array<VoceMelodia, numeroVoci> voci;  ///< of each only the texts and the instrument
    int tempo = 60;
    std::optional<MetronomoMel> metronomo;
    std::vector<std::string> riferimenti;

    std::string Byte() const {
        return ScriviMel({voci, tempo, metronomo, TestoRiferimenti(riferimenti)});
    }
};

bool operator==(const ContenutoMel& uno, const ContenutoMel& altro);

/// What was read; nothing when it has a fault, or fields of line 4, line 5 or a header that the
/// writer can't put there. Voices without notes are left empty.
std::optional<ContenutoMel> Contenuto(const LetturaMel& letta);

}  // namespace corvana::prova
