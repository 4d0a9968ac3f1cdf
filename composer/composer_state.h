// What the panels of the melody window share: the melody, what is under way with it, and the labels
// that show either. Logic thread.
#pragma once

#include <array>

#include "composer/voice_state.h"
#include "forms/form.h"
#include "melody/entry.h"
#include "melody/melody.h"

namespace corvana {

/// A voice has its colour wherever it is shown.
inline constexpr std::array coloriVoci = {Rgb(216, 252, 255), Rgb(197, 247, 241),
                                          Rgb(252, 241, 171), Rgb(255, 224, 163)};

/// What the playback engine keeps from one play to the next.
struct StatoRiproduzione {
    /// The lower voices play on their own range fields, which a play therefore overwrites; the
    /// soprano's range must outlast it.
    explicit StatoRiproduzione(Melodia& melodia)
        : voci{{{posizioneSoprano, ultimaSoprano},
                {melodia.voci[1].primaNota, melodia.voci[1].ultimaNota},
                {melodia.voci[2].primaNota, melodia.voci[2].ultimaNota},
                {melodia.voci[3].primaNota, melodia.voci[3].ultimaNota}}} {}

    std::int16_t posizioneSoprano = 0;
    std::int16_t ultimaSoprano = 0;
    std::array<StatoVoce, numeroVoci> voci;
    StatoPulso pulso;

    Tick tickTotali = -1;      ///< length of the longest voice; -1 when all are empty
    bool parziale = false;     ///< the play is a range of the soprano
    Tick tickPrimaInizio = 0;  ///< ticks of the soprano before the range
    Tick tickFineRange = 0;    ///< and up to its end
};

/// The step mode, in which notes are heard and changed one by one.
struct StatoPasso {
    bool modoPasso = false;         ///< it is open
    std::int16_t IndiceNotaPP = 0;  ///< note under the step, 0-based, in the active voice
};

struct StatoComposer {
    explicit StatoComposer(Form& finestra);

    Melodia melodia;
    StatoInserimento inserimento;
    StatoPasso passo;
    StatoRiproduzione riproduzione{melodia};
    bool inEsecuzione = false;  ///< a melody plays; a Stop request clears it

    Etichetta lblNome, lblModificato;
    Etichetta lblNe;       ///< number of the note that sounds
    Etichetta lblNt;       ///< how many there are
    Etichetta lblPnn;      ///< the name of the note that sounds
    Etichetta lblActNote;  ///< and of the one that would be entered
};

}  // namespace corvana
