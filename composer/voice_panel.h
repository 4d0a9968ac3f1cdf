// The four voices as the window shows them: the names of their notes and their ranges. Keeps what
// is split from the texts, and what is shown of it, in step with the texts. Logic thread.
#pragma once

#include <functional>

#include "composer/composer_state.h"
#include "core/globals.h"

namespace corvana {

class PannelloVoci {
public:
    /// `sopranoContato` is called whenever the soprano's notes were counted anew. All must live as
    /// long as the panel.
    PannelloVoci(const Ambiente& ambiente, Form& finestra, StatoComposer& stato,
                 std::function<void()> sopranoContato);

private:
    Form& finestra_;

public:
    Etichetta LblNoteString{finestra_, "LblNoteString"};
    Etichetta LblNoteStringC{finestra_, "LblNoteStringC"};
    Etichetta LblNoteStringT{finestra_, "LblNoteStringT"};
    Etichetta LblNoteStringB{finestra_, "LblNoteStringB"};
    Casella lblNini{finestra_, "lblNini"}, lblNfine{finestra_, "lblNfine"};
    Casella lblNiniC{finestra_, "lblNiniC"}, lblNfineC{finestra_, "lblNfineC"};
    Casella lblNiniT{finestra_, "lblNiniT"}, lblNfineT{finestra_, "lblNfineT"};
    Casella lblNiniB{finestra_, "lblNiniB"}, lblNfineB{finestra_, "lblNfineB"};

    /// The controls that each voice has its own of.
    struct ControlliVoce {
        Etichetta& nomi;
        Casella& prima;
        Casella& ultima;
    };
    const std::array<ControlliVoce, numeroVoci> perVoce{{{LblNoteString, lblNini, lblNfine},
                                                         {LblNoteStringC, lblNiniC, lblNfineC},
                                                         {LblNoteStringT, lblNiniT, lblNfineT},
                                                         {LblNoteStringB, lblNiniB, lblNfineB}}};

    /// Empties all, at the window's load.
    void Carica();

    /// Splits the texts of the active voice and refreshes its counters and boxes. Throws `Guasto` 6
    /// for more notes than a voice may hold.
    void AggiornaVoce();
    /// Rebuilds the note names of the active voice.
    void MostraNoteVoce();
    /// The same for the soprano, by its range, of which some notes may not be there.
    void MostraTrattoSoprano();
    /// The names of all notes of the voices that have any, whatever their ranges.
    void MostraNomiInteri();
    /// Takes the token behind `IndiceNotaPP` out of the active voice.
    void TogliNota();
    void AzzeraMelodia();

    /// Splits and shows the soprano that was loaded. False, with nothing shown, when its texts
    /// don't belong together.
    bool PrendiSoprano();
    /// The whole soprano is its range.
    void MostraSopranoIntero();
    /// Splits and shows the other voices; the soprano is the active one then.
    void PrendiAltreVoci();

    /// Locks the range boxes, or unlocks them.
    void Blocca(bool bloccate);

private:
    void AggiornaSoprano();
    static void AggiornaAltra(VoceMelodia& voce, const ControlliVoce& controlli);
    std::string NomiFino(const VoceMelodia& voce, long note) const;

    Ambiente a_;
    StatoComposer& stato_;
    Melodia& melodia_;
    std::function<void()> sopranoContato_;
};

}  // namespace corvana
