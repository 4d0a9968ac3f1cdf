// How two clicks on the keyboard make a range: what each click makes of the limits, and what the
// learner is told. Pure; any thread.
#pragma once

#include <cstdint>
#include <optional>

namespace corvana {

/// Both limits included, as places of keys from 0; -1 for one that isn't chosen.
struct Estensione {
    std::int16_t basso = -1;
    std::int16_t alto = -1;
    bool operator==(const Estensione&) const = default;
    bool Vuota() const { return basso == -1 && alto == -1; }
    bool Contiene(std::int16_t tasto) const { return tasto >= basso && tasto <= alto; }
    /// A draw from it comes to a key that may be asked for: both limits are chosen, and with white
    /// keys alone there is one between them.
    bool HaDaChiedere(bool soloBianchi) const;
};

enum class EsitoClic : std::uint8_t {
    Primo,         ///< the first limit; `alto` holds it until the second one
    Completa,      ///< the range stands
    StrettoSotto,  ///< too close below the first limit
    StrettoSopra,  ///< too close above it, or the same key
    TroppoAlto,    ///< no chord has its root there
};

struct ClicEstensione {
    Estensione dopo;
    EsitoClic esito;
    bool operator==(const ClicEstensione&) const = default;
};

/// Of the notes that are asked for: two clicks lie a whole tone apart or more. A key that is too
/// close below the first one stays as the lower limit until the next click.
ClicEstensione ClicSuEstensione(Estensione prima, std::int16_t tasto);

/// Of the roots of chords: any two keys, also the same one twice, on which every chord still fits.
ClicEstensione ClicSuFondamentali(Estensione prima, std::int16_t tasto);

}  // namespace corvana
