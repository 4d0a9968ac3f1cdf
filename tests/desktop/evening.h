// One evening with the melody window: a folder is made, a melody entered, bookmarked, saved under
// two names, renamed, lengthened by a paste; others come from a medium, one is deleted, the window
// closed and opened again. Nothing is looked at here. GUI thread.
#pragma once

#include "tests/desktop/melody_hand.h"
#include "tests/support/medium_on_disk.h"

namespace corvana::prova {

/// The home of the evening's user: his melodies, a medium with five, and what keeps the unsaved
/// one.
struct CasaDellaSera {
    /// Lies in `cartella`, and is made where it isn't there yet.
    explicit CasaDellaSera(const std::string& cartella);

    const std::string melodie, penna, nonSalvata;  ///< folders with a separator, and a file
    FileConSupporto dischi;

    void Prepara(Macchina& macchina);
};

class Sera : public CasaDellaSera, public PalcoMelodia {
public:
    explicit Sera(const std::string& cartella);

    /// The folder in which all is done.
    std::string DellaSera() const { return melodie + "Serata/"; }

    /// Makes it and enters it.
    void FaiCartella();
    /// Four notes, and a bookmark of two.
    void ScriviMelodia();
    /// As "prima" and "seconda"; "prima" becomes "terza".
    void SalvaERinomina();
    /// Pastes two notes, at the second try, and saves.
    void Allunga();
    /// Saves as "quarta", and deletes that when the question comes a second time.
    void Elimina();
    /// Copies three of the five.
    void Importa();
    /// One note more, which isn't to be saved: No, then Yes.
    void ChiudiSenzaSalvare();

    void Intera();
};

}  // namespace corvana::prova
