// What the pages of the ear trainer have in common: the prompt, the score, the keyboard, the exit
// and the menu that a run disables; and the record of what a page may leave behind, sounding or
// marked, for the next one to clear. The window owns it and hands it to its pages, which don't know
// each other. Logic thread.
#pragma once

#include <functional>

#include "core/notation.h"
#include "eartrainer/answer_colours.h"
#include "eartrainer/into_score.h"
#include "piano/screen_keyboard.h"

namespace corvana {

/// The one channel of the ear trainer, and how hard it strikes where nothing else is said.
constexpr std::int16_t canaleInto = 1;
constexpr std::int16_t velocitaInto = 90;
/// What `SuonaNota` takes to end its note.
constexpr std::int16_t fermaNota = -1;

class TelaioInto {
public:
    /// All must live as long as the frame. `fondoFermo` is the background of a Start button at
    /// rest.
    TelaioInto(const Ambiente& ambiente, Form& finestra, Controllo& esercizio,
               std::function<Colore()> fondoFermo);

    Ambiente a;
    Form& finestra;
    Controllo& Esercizio;  ///< the menu of the pages

    Etichetta lblStep{finestra, "lblStep"};
    PunteggioInto punti{finestra, a.globali};
    TastieraSchermo tastiera{finestra, "img2", nullptr, TastieraSchermo::Corredo::TastiEBarre};
    Etichetta cmdEsci{finestra, "cmdEsci"};

    bool IntInCorso = false;  ///< a run of intervals is on
    std::int16_t IntBassa = 0,
                 IntAlta = 0;  ///< last pair sounded, MIDI numbers; 0 before the first
    std::int16_t NotaRif = 0;  ///< MIDI number of the reference, or of the key that is asked for

    const TestiLingua& Testi() const { return a.globali.testi; }
    StatoInto& Stato() const { return a.globali.into; }
    /// In the notation in use.
    std::string Nome(int midi) const;

    void NotaOn(int nota, std::int16_t velocita = velocitaInto) const;
    void NotaOff(int nota) const;
    /// Lights or clears the key of a MIDI number.
    void sw(int nota, bool acceso);
    /// Lights or clears the mark of a key; none for a number that isn't one's.
    void Segna(int tasto, bool acceso);

    /// Silences the last pair of intervals, and clears its keys if there was one.
    void SpegniCoppia();
    void SpegniTastiCoppia();
    /// Takes the marks of a range away, and the range.
    void TogliEstensione(std::int16_t& basso, std::int16_t& alto);

    /// What a Start button shows: "Stop" while its drill runs.
    void PonStart(Bottone& start, bool corre) const;
    static bool Corre(const Bottone& start) { return start.Caption() != "Start"; }
    /// Closed meanwhile, as a handler that has let events through may find it.
    bool Chiusa() const { return finestra.Identita() == 0; }

private:
    std::function<Colore()> fondoFermo_;
};

/// Draws one of `quanti` until it may be asked. One must be.
template <class Ammesso>
std::int16_t EstraiAmmesso(Casuale& casuale, std::int16_t quanti, Ammesso ammesso) {
    for (;;) {
        const std::int16_t tratto = EstraiIntero(casuale, 0, static_cast<std::int16_t>(quanti - 1));
        if (ammesso(static_cast<std::size_t>(tratto))) return tratto;
    }
}

}  // namespace corvana
