// The keys: those on the screen, which light while notes sound, and the computer's, which play
// them; and the ways to silence what sounds. Logic thread.
#pragma once

#include "composer/composer_state.h"
#include "composer/key_steps.h"
#include "core/globals.h"
#include "piano/computer_piano.h"
#include "piano/screen_keyboard.h"

namespace corvana {

/// The note of the key Z as the window comes to the front.
constexpr std::int16_t baseDiPartenzaTasti = 48;

class PannelloTasti {
public:
    /// All must live as long as the panel.
    PannelloTasti(const Ambiente& ambiente, Form& finestra, StatoComposer& stato);

    TastieraSchermo tastiera;
    std::deque<Etichetta>& lb = tastiera.lb;          ///< its keys
    std::int16_t tastoCorrente = nessunTasto;         ///< last key of `lb` used
    std::int16_t baseTastiera = baseDiPartenzaTasti;  ///< note of the key Z

    /// No key was used yet, at the window's load.
    void Carica();

    /// Lights or clears a key, 0 to 59; any other number does nothing.
    void MostraTasto(int tasto, bool acceso);
    /// The same for a note played on the computer's keyboard, which also becomes the active one.
    void MostraTastoPiano(std::int16_t nota, bool acceso);
    /// One pass of the key poll over the piano's keys.
    void EsaminaPiano();
    /// A key of the piano that comes as an event; any other does nothing.
    void PremiPiano(int codice);
    void LasciaPiano(int codice);
    /// No key of the piano is held any more.
    void LasciaPiano();
    /// Raises the piano on the computer's keyboard by an octave, or brings it back to the lowest.
    void CambiaBase();

    void SpegniTutteLeNote();
    /// Only what the voices of the last play stand on.
    void SpegniNoteVoci();
    void SpegniTastiera();

private:
    PianoDaTastiera::Mostra MostraPiano();

    Ambiente a_;
    StatoComposer& stato_;
    PianoDaTastiera piano_;
};

}  // namespace corvana
