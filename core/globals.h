// The program's shared state: one block, made by the program's start and handed on by reference, so
// that a test makes its own. All windows read and write it directly. Logic thread.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "core/random.h"
#include "core/settings.h"
#include "forms/windows.h"
#include "sound/sound.h"

namespace corvana {

/// What the toolbar pictures need to sink under the pointer and to come back.
struct StatoHover {
    std::string
        HoverNome;  ///< lower-case name of what is highlighted, or "ShToolbar"; empty for none
    bool HoverAttivo = false;  ///< a control is displaced
    Controllo* HoverControllo = nullptr;
    int HoverTop = 0;  ///< its place at rest, in twips
    int HoverLeft = 0;
};

/// Texts that the language file fills; empty until the rows of their window were applied.
struct TestiLingua {
    std::string TxtRisposteEsatte, TxtRisposteErrate, TxtRisposteDate, TxtPercentuale;
    std::string TxtTempoImpiegato, TxtNoteMostrate, TxtVelocita;
    std::string TipX1, TipX2;
};

struct Globali {
    std::string CartellaProgramma;       ///< where data lies, without a closing separator
    std::string PercorsoLingua;          ///< full path of the active language file
    std::string PercorsoNote;            ///< folder of the cue sounds, with a closing separator
    std::string FileAiuto;               ///< the help file's full name
    std::int32_t StrumentoGlobale = 16;  ///< General MIDI program of the note voice
    bool NomiAnglo = false;              ///< note names C, D, E instead of Do, Re, Mi
    std::string percorsoCorrente;        ///< the melody folder
    bool ComposerAperto = false;
    bool IntoAperto = false;
    bool PickerAperto = false;
    bool MetroAttivo = false;          ///< the metronome's loop is running
    std::int32_t ContestoInto = 0;     ///< help page that the ear trainer opens with
    std::array<bool, 5> PaginaInto{};  ///< the page that the ear trainer opens on
    StatoHover hover;
    TestiLingua testi;
};

/// All that a window works with.
struct Ambiente {
    Globali& globali;
    Pompa& pompa;
    Finestre& finestre;
    Dialoghi& dialoghi;
    Suono& suono;
    Impostazioni& impostazioni;
    ArchivioFile& file;
    Casuale& casuale;
};

}  // namespace corvana
